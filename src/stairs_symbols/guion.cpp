#include "stairs_symbols/guion.h"

#include "model/blancos.h"
#include "model/polar.h"

#include <array>
#include <charconv>
#include <cmath>
#include <functional>
#include <map>
#include <string>
#include <utility>

namespace bosquel {

namespace {

constexpr std::size_t maximoArgumentos = 5;

/// A statement taken apart: its name and what stands between the parentheses. One that has more arguments
/// than any may have is none.
struct Sentencia {
    std::string_view verbo;
    std::array<std::string_view, maximoArgumentos> argumentos;
    std::size_t cuantos = 0;
};

/// What stands before the first `signo`; `texto` goes on behind it.
std::string_view cortar(std::string_view& texto, char signo) {
    const auto fin = texto.find(signo);
    const std::string_view parte = texto.substr(0, fin);
    texto.remove_prefix(fin == std::string_view::npos ? texto.size() : fin + 1);
    return parte;
}

std::optional<Sentencia> partir(std::string_view linea) {
    if (linea.ends_with('\r')) linea.remove_suffix(1);
    linea = sinBlancos(linea);
    const auto abre = linea.find('(');
    if (abre == std::string_view::npos || linea.back() != ')') return std::nullopt;
    Sentencia sentencia{linea.substr(0, abre), {}, 0};
    std::string_view dentro = linea.substr(abre + 1, linea.size() - abre - 2);
    while (!dentro.empty()) {
        if (sentencia.cuantos == maximoArgumentos) return std::nullopt;
        sentencia.argumentos[sentencia.cuantos++] = sinBlancos(cortar(dentro, ','));
    }
    return sentencia;
}

std::optional<double> numero(std::string_view texto) {
    double valor = 0;
    const char* const fin = texto.data() + texto.size();
    const auto [hasta, error] = std::from_chars(texto.data(), fin, valor);
    if (error != std::errc() || hasta != fin || !std::isfinite(valor)) return std::nullopt;
    return valor;
}

class Lector {
  public:
    explicit Lector(const MarcoGuion& marco) : marco_(marco) {}

    void leer(std::string_view guion) {
        while (!guion.empty())
            if (const auto sentencia = partir(cortar(guion, '\n'))) leer(*sentencia);
    }

    ListasGuion listas;

  private:
    /// The statements: how many numbers follow the point, and what becomes of them.
    struct Verbo {
        std::string_view nombre;
        std::size_t numeros;
        void (Lector::*accion)(std::string_view nombre, PuntoGuion punto, const std::array<double, 3>& n);
    };
    static const std::array<Verbo, 5> verbos;

    void leer(const Sentencia& sentencia) {
        for (const Verbo& verbo : verbos)
            if (verbo.nombre == sentencia.verbo) leer(verbo, sentencia);
    }

    void leer(const Verbo& verbo, const Sentencia& sentencia) {
        if (sentencia.cuantos != verbo.numeros + 2 || sentencia.argumentos[0].empty()) return;
        const auto lugar = punto(sentencia.argumentos[1]);
        std::array<double, 3> numeros{};
        for (std::size_t i = 0; i < verbo.numeros; ++i) {
            const auto valor = numero(sentencia.argumentos[i + 2]);
            if (!valor) return;
            numeros[i] = *valor;
        }
        if (lugar) (this->*verbo.accion)(sentencia.argumentos[0], *lugar, numeros);
    }

    /// "[12|238]", or an end of an earlier line: "[L1_B]".
    std::optional<PuntoGuion> punto(std::string_view texto) const {
        if (texto.size() < 2 || texto.front() != '[' || texto.back() != ']') return std::nullopt;
        std::string_view dentro = texto.substr(1, texto.size() - 2);
        if (dentro.find('|') == std::string_view::npos) return extremo(dentro);
        const auto x = numero(sinBlancos(cortar(dentro, '|')));
        const auto y = numero(sinBlancos(dentro));
        return x && y ? std::optional(situar(*x, *y)) : std::nullopt;
    }

    std::optional<PuntoGuion> extremo(std::string_view referencia) const {
        const auto guionBajo = referencia.rfind('_');
        if (guionBajo == std::string_view::npos) return std::nullopt;
        const auto linea = lineas_.find(referencia.substr(0, guionBajo));
        const std::string_view cual = referencia.substr(guionBajo + 1);
        if (linea == lineas_.end() || (cual != "A" && cual != "B")) return std::nullopt;
        return cual == "A" ? linea->second.A : linea->second.B;
    }

    /// From the frame's millimetres to sheet units, turned about the frame's centre.
    PuntoGuion situar(double x, double y) const {
        const double giro = radianes(marco_.Angle);
        const double dx = x - marco_.RectX / 2;
        const double dy = y - marco_.RectY / 2;
        return {(marco_.RectX / 2 + dx * std::cos(giro) + dy * std::sin(giro)) * marco_.factor,
                (marco_.RectY / 2 - dx * std::sin(giro) + dy * std::cos(giro)) * marco_.factor};
    }

    /// `LINE(name, point, angle, length)`: the end follows from the start in the turned frame, so that what
    /// joins it stays joined.
    void linea(std::string_view nombre, PuntoGuion A, const std::array<double, 3>& n) {
        const double direccion = radianes(n[0] + marco_.Angle);
        const double largo = n[1] * marco_.factor;
        const PuntoGuion B{A.X + largo * std::cos(direccion), A.Y - largo * std::sin(direccion)};
        listas.Lines.push_back({A, B, n[1], n[0]});
        lineas_.insert_or_assign(std::string(nombre), listas.Lines.back());
    }
    /// `RECT(name, point, length, wide, angle)`
    void rect(std::string_view, PuntoGuion P1, const std::array<double, 3>& n) {
        listas.Rects.push_back({P1, n[0], n[1], n[2]});
    }
    /// `CIRCLE(name, point, radius)`
    void circle(std::string_view, PuntoGuion C, const std::array<double, 3>& n) {
        listas.Circles.push_back({C, n[0], 0, 360});
    }
    /// `ARC(name, point, radius, start, end)`
    void arc(std::string_view, PuntoGuion C, const std::array<double, 3>& n) {
        listas.Arcs.push_back({C, n[0], n[1], n[2]});
    }
    /// `MASKRECT(name, point, length, wide, angle)`
    void maskrect(std::string_view, PuntoGuion P1, const std::array<double, 3>& n) {
        listas.mascara = RectGuion{P1, n[0], n[1], n[2]};
    }

    MarcoGuion marco_;
    std::map<std::string, LineaGuion, std::less<>> lineas_;
};

constexpr std::array<Lector::Verbo, 5> Lector::verbos{{
    {"LINE", 2, &Lector::linea},
    {"RECT", 3, &Lector::rect},
    {"CIRCLE", 1, &Lector::circle},
    {"ARC", 3, &Lector::arc},
    {"MASKRECT", 3, &Lector::maskrect},
}};

}  // namespace

ListasGuion leerGuion(std::string_view guion, const MarcoGuion& marco) {
    Lector lector(marco);
    lector.leer(guion);
    return std::move(lector.listas);
}

}  // namespace bosquel
