#include "apoyo/perfil_ingenuo.h"

#include <optional>

namespace bosquel::apoyo {

namespace {

bool blanco(char c) {
    return c == ' ' || c == '\t' || c == '\v' || c == '\f' || c == '\x1A';
}

std::string recortar(std::string texto) {
    while (!texto.empty() && blanco(texto.front()))
        texto.erase(0, 1);
    while (!texto.empty() && blanco(texto.back()))
        texto.pop_back();
    return texto;
}

std::string hastaNulo(const std::string& texto) {
    return texto.c_str();
}

std::string limpio(const std::string& texto) {
    return recortar(hastaNulo(texto));
}

bool iguales(const std::string& a, const std::string& b) {
    const std::string grandes =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZ"
        "\xC0\xC1\xC2\xC3\xC4\xC5\xC6\xC7\xC8\xC9\xCA\xCB"
        "\xCC\xCD\xCE\xCF\xD0\xD1\xD2\xD3\xD4\xD5\xD6\xD8"
        "\xD9\xDA\xDB\xDC\xDD\xDE\x8A\x8C\x8E\x9F";
    const std::string chicas =
        "abcdefghijklmnopqrstuvwxyz"
        "\xE0\xE1\xE2\xE3\xE4\xE5\xE6\xE7\xE8\xE9\xEA\xEB"
        "\xEC\xED\xEE\xEF\xF0\xF1\xF2\xF3\xF4\xF5\xF6\xF8"
        "\xF9\xFA\xFB\xFC\xFD\xFE\x9A\x9C\x9E\xFF";
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        const std::size_t x = grandes.find(a[i]);
        const std::size_t y = grandes.find(b[i]);
        if ((x < grandes.size() ? chicas[x] : a[i]) != (y < grandes.size() ? chicas[y] : b[i])) return false;
    }
    return true;
}

std::optional<std::string> seccionDe(const std::string& linea) {
    const std::string texto = recortar(linea);
    if (texto.empty() || texto[0] != '[') return std::nullopt;
    for (std::size_t i = texto.size(); i-- > 1;)
        if (texto[i] == ']') return limpio(texto.substr(1, i - 1));
    return std::nullopt;
}

std::optional<std::string> claveEscrita(const std::string& linea) {
    if (seccionDe(linea) || linea.find('=') == std::string::npos) return std::nullopt;
    return recortar(linea.substr(0, linea.find('=')));
}

constexpr std::size_t ninguna = std::string::npos;

}  // namespace

std::vector<PerfilIngenuo::Linea> PerfilIngenuo::lineas() const {
    std::vector<Linea> todas;
    bool abierta = false;
    for (std::size_t i = bytes_.starts_with("\xEF\xBB\xBF") ? 3 : 0; i < bytes_.size(); ++i) {
        if (!abierta) todas.emplace_back();
        const char c = bytes_[i];
        abierta = c != '\r' && c != '\n';
        if (abierta) todas.back().texto += c;
        if (!abierta) todas.back().fin += c;
        if (c == '\r' && i + 1 < bytes_.size() && bytes_[i + 1] == '\n') todas.back().fin += bytes_[++i];
    }
    return todas;
}

std::string PerfilIngenuo::leer(const std::string& seccion, const std::string& clave,
                                const std::string& otro) const {
    const std::vector<Linea> todas = lineas();
    std::size_t i = 0;
    while (i < todas.size() &&
           !(seccionDe(todas[i].texto) && iguales(*seccionDe(todas[i].texto), limpio(seccion))))
        ++i;
    for (++i; i < todas.size() && !seccionDe(todas[i].texto); ++i) {
        const std::optional<std::string> escrita = claveEscrita(todas[i].texto);
        if (!escrita || !iguales(limpio(*escrita), limpio(clave))) continue;
        std::string valor = limpio(todas[i].texto.substr(todas[i].texto.find('=') + 1));
        const bool comillas =
            valor.size() > 1 && valor[0] == valor.back() && (valor[0] == '"' || valor[0] == '\'');
        if (comillas) valor = valor.substr(1, valor.size() - 2);
        return valor.empty() ? otro : valor.substr(0, 254);
    }
    return otro;
}

void PerfilIngenuo::guardar(const std::string& seccion, const std::string& clave, const std::string& valor) {
    std::vector<Linea> todas = lineas();
    std::size_t cabecera = ninguna;
    std::size_t sitio = ninguna;   // the line of the key
    std::size_t ultima = ninguna;  // the last line of the section that has text
    bool dentro = false;
    bool algunaSeccion = false;
    for (std::size_t i = 0; i < todas.size(); ++i) {
        const std::optional<std::string> nombre = seccionDe(todas[i].texto);
        if (nombre) {
            algunaSeccion = true;
            dentro = cabecera == ninguna && iguales(*nombre, limpio(seccion));
            if (dentro) cabecera = i;
        }
        if (!dentro) continue;
        if (!recortar(todas[i].texto).empty()) ultima = i;
        const std::optional<std::string> escrita = claveEscrita(todas[i].texto);
        if (sitio == ninguna && escrita && iguales(limpio(*escrita), limpio(clave))) sitio = i;
    }

    const std::string marca = bytes_.starts_with("\xEF\xBB\xBF") ? bytes_.substr(0, 3) : "";
    const Linea nueva{limpio(clave) + "=" + valor, "\r\n"};
    if (sitio != ninguna) {
        todas[sitio] = {*claveEscrita(todas[sitio].texto) + "=" + valor, "\r\n"};
    } else if (cabecera != ninguna) {
        if (todas[ultima].fin.empty()) todas[ultima].fin = "\r\n";
        todas.insert(todas.begin() + static_cast<std::ptrdiff_t>(ultima) + 1, nueva);
    } else {
        if (!todas.empty() && todas.back().fin.empty()) todas.back().fin = "\r\n";
        if (algunaSeccion) todas.push_back({"", "\r\n"});
        todas.push_back({"[" + limpio(seccion) + "]", "\r\n"});
        todas.push_back(nueva);
    }
    bytes_ = marca;
    for (const Linea& linea : todas)
        bytes_ += linea.texto + linea.fin;
}

}  // namespace bosquel::apoyo
