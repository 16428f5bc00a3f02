#include "apoyo/mono.h"

#include "apoyo/dibujo_guardado.h"
#include "apoyo/invariantes.h"
#include "drawing/archivo.h"

#include <algorithm>
#include <array>

namespace bosquel::apoyo {

namespace fs = std::filesystem;

namespace {

/// A drawing of more elements than these is emptied: what many do to the program is a matter of its own.
constexpr int demasiados = 300;

int cuantos(const Dibujo& dibujo) {
    int total = 0;
    for (const DatosClase& fila : todasLasClases())
        total += conColeccion(dibujo, fila.clase, [](const auto& coleccion) { return coleccion.ultimo(); });
    return total;
}

// Texts that no field was made for.
const std::vector<std::string> disparates{"",
                                          " ",
                                          "0",
                                          "-1",
                                          "abc",
                                          "ñandú",
                                          "1,2,3",
                                          "1.2.3",
                                          "1.000,5",
                                          "1,000.5",
                                          "+5",
                                          "--5",
                                          "1e3",
                                          "1e308",
                                          "-1e308",
                                          "1e-308",
                                          "1e999",
                                          "nan",
                                          "inf",
                                          "-inf",
                                          "0,0001",
                                          "32767",
                                          "32768",
                                          "-32769",
                                          "2147483647",
                                          "2147483648",
                                          "99999999999999999999",
                                          "&H7F",
                                          "\"comillas\"",
                                          "'",
                                          "[Cabecera]",
                                          "=",
                                          ";",
                                          "a=b",
                                          "日本",
                                          "𝄞",
                                          "Texto Libre(1)",
                                          std::string(300, '9'),
                                          std::string(5000, 'x'),
                                          std::string(260, '\'')};

}  // namespace

Mono::Mono(unsigned semilla) : azar_(semilla) {
    pon();
}

const std::vector<Mono::Accion>& Mono::acciones() {
    // clang-format off
    static const std::vector<Accion> todas{
        {10, &Mono::boton}, {8, &Mono::relacion}, {3, &Mono::tipo},      {8, &Mono::mueble},
        {12, &Mono::division}, {2, &Mono::electrico}, {10, &Mono::mueve},  {8, &Mono::pulsa},
        {8, &Mono::suelta},  {22, &Mono::clic},    {8, &Mono::dobleClic}, {14, &Mono::arrastra},
        {3, &Mono::regla},   {6, &Mono::teclado},  {4, &Mono::relojes},   {3, &Mono::vista},
        {1, &Mono::guardaYAbre},
    };
    // clang-format on
    return todas;
}

std::string Mono::paso() {
    banco_.plataforma.turnos = 0;
    if (cuantos(banco_.dibujo()) > demasiados) return vacia();
    int resto = 0;
    for (const Accion& accion : acciones())
        resto += accion.peso;
    resto = azar_.entre(1, resto);
    for (const Accion& accion : acciones())
        if ((resto -= accion.peso) <= 0) return (this->*accion.hacer)();
    return {};
}

void Mono::comprueba() {
    Sesion& sesion = banco_.sesion();
    puedeSeguirOcupado_ = puedeSeguirOcupado_ && sesion.Ocupado;
    EXPECT_EQ(sesion.Ocupado, puedeSeguirOcupado_);
    EXPECT_FALSE(banco_.plataforma.relojDeArena());
    EXPECT_TRUE(sesion.foco || marcoVisible_ || !sesion.RectSel.Visible) << "a frame around nothing";
    marcoVisible_ = sesion.RectSel.Visible;
    comprobar(sesion);
    if (suerte(20)) comprobarTrazos(sesion);
    for (int i = 0; i < 4; ++i) {
        const Punto punto = lugar();
        comprobarMapa(sesion, punto.x, punto.y);
    }
    PlataformaFalsa& p = banco_.plataforma;
    p.mensajes.clear();
    p.peticiones.clear();
    p.preguntasDeTexto.clear();
    p.cursores.clear();
    p.titulos.clear();
    p.ayudas.clear();
    p.relojesDeArena.clear();
    p.autoSave.clear();
    p.timer2.clear();
    p.repintados.clear();
    p.pasos.clear();
    p.esperas.clear();
}

std::string Mono::boton() {
    static constexpr std::array frecuentes{Principal::Zoom,     Principal::Definir, Principal::Opciones,
                                           Principal::Eliminar, Principal::Colores, Principal::Imprimir,
                                           Principal::Guardar,  Principal::Salir,   Principal::Ayuda};
    static constexpr std::array raros{Principal::Nuevo, Principal::Abrir};
    const Principal cual = suerte(8) ? una(raros) : una(frecuentes);
    auto& archivos = banco_.plataforma.archivos;
    archivos.clear();
    if (cual == Principal::Abrir && !suerte(20)) {
        archivos.push_back(archivoAjeno());
    } else if (cual != Principal::Abrir && !suerte(20)) {
        static const std::vector<std::string> nombres{"a", "b.bqr",      "AutoSave.bqr",
                                                      ".", "no/hay.bqr", "x.bmp"};
        archivos.push_back(banco_.ruta(una(nombres)));
    }
    banco_.bosquel.pulsarPrincipal(cual);
    puedeSeguirOcupado_ = cual == Principal::Salir;
    return std::string(BttPrincipal[static_cast<std::size_t>(cual)]);
}

std::string Mono::relacion() {
    const int cual = azar_.entre(0, 3);
    banco_.bosquel.pulsarOperacion(cual);
    puedeSeguirOcupado_ = false;
    // Two walls to join, most times.
    for (int i = azar_.entre(0, 3); i > 0; --i)
        clicEn(lugarDeMuro());
    return std::string(BttOperacion[static_cast<std::size_t>(cual)]);
}

std::string Mono::tipo() {
    const int cual = azar_.entre(0, 5);
    banco_.bosquel.pulsarTipo(cual);
    puedeSeguirOcupado_ = false;
    return std::string(BttTipo[static_cast<std::size_t>(cual)]);
}

std::string Mono::mueble() {
    const int cual = azar_.entre(0, 5);
    switch (azar_.entre(0, 2)) {
        case 0: banco_.bosquel.pulsarMueble(cual); break;
        case 1: banco_.bosquel.pulsarBaño(cual); break;
        default: banco_.bosquel.pulsarCocina(cual);
    }
    if (suerte(20)) banco_.bosquel.pulsarPrincipal(Principal::Definir);
    return "mueble " + std::to_string(cual);
}

std::string Mono::division() {
    const int cual = azar_.entre(0, 5);
    banco_.bosquel.pulsarUsuario(cual);
    puedeSeguirOcupado_ = banco_.dibujo().Pared.contador == 1;
    if (suerte(70)) clic();
    return std::string(BttUsuario[static_cast<std::size_t>(cual)]);
}

std::string Mono::electrico() {
    const int cual = azar_.entre(0, 5);
    banco_.bosquel.pulsarElectrico(cual);
    return std::string(BttElectrico[static_cast<std::size_t>(cual)]);
}

void Mono::pulsar(Punto en) {
    (suerte(90) ? boton1_ : otroBoton_) = true;
    banco_.bosquel.pulsar(en.x, en.y);
}

void Mono::soltar(Punto en) {
    boton1_ = otroBoton_ = false;
    banco_.bosquel.soltar(en.x, en.y);
}

std::string Mono::mueve() {
    mover(lugar());
    return "move";
}

std::string Mono::pulsa() {
    pulsar(lugar());
    return "press";
}

std::string Mono::suelta() {
    // A dialog may have swallowed it: then the next event tells that no button is held.
    if (suerte(80)) soltar(lugar());
    boton1_ = otroBoton_ = false;
    return "release";
}

std::string Mono::clic() {
    clicEn(lugar());
    return "click";
}

void Mono::clicEn(Punto en) {
    mover(en);
    pulsar(en);
    soltar(en);
}

std::string Mono::dobleClic() {
    const Punto en = lugar();
    clicEn(en);
    if (suerte(70)) mover(en);
    boton1_ = true;
    banco_.bosquel.dobleClic(en.x, en.y);
    if (suerte(80)) soltar(en);
    return "double click";
}

std::string Mono::arrastra() {
    const Punto de = lugar();
    const Punto a = suerte(70) ? Punto{de.x + static_cast<float>(azar_.entre(-9000, 9000)) / 7,
                                       de.y + static_cast<float>(azar_.entre(-9000, 9000)) / 7}
                               : lugar();
    mover(de);
    pulsar(de);
    for (int i = 1; i <= 3; ++i) {
        const float parte = static_cast<float>(i) / 3;
        mover({de.x + (a.x - de.x) * parte, de.y + (a.y - de.y) * parte});
        if (suerte(3)) interrumpe();
    }
    soltar(a);
    return "drag";
}

std::string Mono::regla() {
    const auto lado = [&] { return static_cast<float>(azar_.entre(-20000, 20000)) / 3; };
    switch (azar_.entre(0, 4)) {
        case 0: banco_.bosquel.dobleClicRegla(); break;
        case 1: banco_.bosquel.soltarRegla(); break;
        default:
            banco_.bosquel.pulsarRegla(lado(), lado());
            for (int i = azar_.entre(0, 4); i > 0; --i)
                banco_.bosquel.moverRegla(suerte(80), lado(), lado());
            if (suerte(80)) banco_.bosquel.soltarRegla();
    }
    return "ruler";
}

std::string Mono::teclado() {
    switch (azar_.entre(0, 4)) {
        case 0:
            banco_.bosquel.suprimir();
            puedeSeguirOcupado_ = false;
            return "Supr";
        case 1: banco_.bosquel.perderFoco(); return "Tab";
        default: banco_.bosquel.escribirTexto(tecleado()); return "text";
    }
}

std::string Mono::relojes() {
    interrumpe();
    return "timer";
}

/// What comes whenever the program lets events through.
void Mono::interrumpe() {
    if (suerte(70)) return banco_.bosquel.minutoDeAutoSave();
    if (cesiones_ == 0) banco_.bosquel.pasarTimer2();
}

std::string Mono::vista() {
    Sesion& sesion = banco_.sesion();
    switch (azar_.entre(0, 4)) {
        case 0:
            banco_.bosquel.redimensionar(15.0 * azar_.entre(0, 2000), 15.0 * azar_.entre(0, 2000));
            return "resize";
        case 1:
            if (sesion.HScroll1.activa) banco_.bosquel.cambiarHScroll1(azar_.entre(0, Barra::maximo));
            return "scroll";
        case 2:
            if (sesion.VScroll1.activa) banco_.bosquel.cambiarVScroll1(azar_.entre(0, Barra::maximo));
            return "scroll";
        case 3: banco_.bosquel.cruzarPrincipal(static_cast<Principal>(azar_.entre(0, 10))); return "cross";
        default: banco_.bosquel.cruzarVentana(); return "cross";
    }
}

std::string Mono::guardaYAbre() {
    banco_.plataforma.archivos.clear();
    puedeSeguirOcupado_ = false;
    // What does not read back as it was is settled the first time: from then on nothing changes.
    banco_.guarda("uno.bqr");
    banco_.abre("uno.bqr");
    banco_.guarda("dos.bqr");
    banco_.abre("dos.bqr");
    banco_.guarda("tres.bqr");
    EXPECT_EQ(banco_.bytes("tres.bqr"), enLineas(trasAbrir(banco_.lineas("dos.bqr"))))
        << "what is saved comes back";
    return "save and open";
}

std::string Mono::vacia() {
    siATodo_ = true;
    banco_.boton("Nuevo");
    siATodo_ = false;
    puedeSeguirOcupado_ = false;
    EXPECT_EQ(cuantos(banco_.dibujo()), 0);
    return "empty";
}

Punto Mono::lugarDeMuro() {
    std::vector<Punto> todos;
    banco_.dibujo().Pared.recorrer(
        [&](int, const Pared& pared) { todos.push_back(banco_.centro(pared.ParedPickCentro)); });
    return todos.empty() ? lugar() : una(todos);
}

/// The middle of each grip, and a point inside whatever stands at a place of its own.
std::vector<Punto> Mono::blancos() {
    const Dibujo& dibujo = banco_.dibujo();
    std::vector<Punto> todos;
    for (const DatosClase& fila : todasLasClases())
        conColeccion(dibujo, fila.clase, [&](const auto& coleccion) {
            coleccion.recorrer([&](int, const auto& elemento) {
                if constexpr (requires { elemento.pinzas(); })
                    for (const Pinza* pinza : elemento.pinzas())
                        todos.push_back(banco_.centro(*pinza));
                else
                    todos.push_back({elemento.Left + 60, elemento.Top + 60});
            });
        });
    return todos;
}

Punto Mono::lugar() {
    if (const auto todos = blancos(); !todos.empty() && suerte(70)) return una(todos);
    if (suerte(3))
        return {static_cast<float>(azar_.entre(-1000000000, 1000000000)),
                static_cast<float>(azar_.entre(-9, 9))};
    return {static_cast<float>(azar_.entre(-500, 12000)), static_cast<float>(azar_.entre(-500, 12000))};
}

std::string Mono::tecleado() {
    if (suerte(30)) return una(disparates);
    const char separador = suerte(50) ? ',' : '.';
    return std::to_string(azar_.entre(suerte(10) ? -20 : 0, 20)) + separador +
           std::to_string(azar_.entre(0, 99));
}

/// Types into a field, or leaves it as it is.
void Mono::escribe(std::string& campo) {
    if (suerte(50)) campo = tecleado();
}

/// What a colour dialog gives; nothing if it is cancelled.
std::optional<Color> Mono::color() {
    if (suerte(20)) return std::nullopt;
    return static_cast<Color>(azar_.entre(0, 0xFFFFFF));
}

/// A drawing whose values, keys or heads have been written over here and there.
std::string Mono::estropeado(std::string dibujo) {
    for (int i = azar_.entre(1, 12); i > 0 && !dibujo.empty(); --i) {
        const auto sitio = static_cast<std::size_t>(azar_.entre(0, static_cast<int>(dibujo.size()) - 1));
        const auto igual = dibujo.find('=', sitio);
        const auto fin = dibujo.find('\r', igual);
        if (suerte(30) || igual == std::string::npos || fin == std::string::npos)
            dibujo[sitio] = static_cast<char>(azar_.entre(0, 255));
        else
            dibujo.replace(igual + 1, fin - igual - 1, tecleado());
    }
    return dibujo;
}

/// A file to open: one of those that were saved, one that was damaged since, one of the collected oddities,
/// or none at all.
fs::path Mono::archivoAjeno() {
    static const std::vector<fs::path> rarezas = [] {
        const fs::path carpeta = fs::path(BOSQUEL_SRC).parent_path() / "fuzz" / "corpus" / "dibujo";
        std::vector<fs::path> rutas;
        for (const auto& entrada : fs::directory_iterator(carpeta))
            rutas.push_back(entrada.path());
        std::sort(rutas.begin(), rutas.end());
        return rutas;
    }();
    static const std::vector<std::string> propios{"a.bqr", "b.bqr", "AutoSave.bqr", "dos.bqr"};
    switch (azar_.entre(0, 4)) {
        case 0: return una(rarezas);
        case 1: return banco_.ruta("no hay");
        case 2: return banco_.ruta(una(propios));
        default:
            banco_.pon("estropeado.bqr", estropeado(banco_.bytes(una(propios))));
            return banco_.ruta("estropeado.bqr");
    }
}

}  // namespace bosquel::apoyo
