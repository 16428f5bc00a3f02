#pragma once

#include "drawing/mapa.h"
#include "model/dibujo.h"
#include "platform/plataforma.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <string_view>
#include <vector>

namespace bosquel {

/// A scroll bar of the sheet: a percentage, 0 to 100.
struct Barra {
    static constexpr int maximo = 100, cambioGrande = 10, cambioChico = 2;
    bool activa = false;
    int valor = 0;
};

/// The ruler, which floats over the sheet and does not scroll. Sheet units of the viewport.
struct Regla {
    static constexpr float grosor = 380;
    enum class Orientacion : std::uint8_t { VAB, HID };  ///< upright at the right edge, or lying

    double FactorZoom = 0.5;
    Orientacion orientacion = Orientacion::VAB;
    float Left = 0, Top = 0, Width = grosor, Height = 0;
    bool Visible = false;
};

/// The grid as it was last drawn on the sheet: what the settings say reaches it only when it is drawn again.
struct CuadriculaDibujada {
    std::int32_t paso = 0;  ///< sheet units; 0 for none
    double ancho = 0, alto = 0;
};

/// The frame around the selected element, a little larger than its box. Sheet units.
struct MarcoDeSeleccion {
    static constexpr double aire = 15;
    Recuadro recuadro;
    bool Visible = false;
};

/// A wall that is being dragged, and its openings, which were looked up once.
struct ParedEnMovimiento {
    std::int16_t indice = 0;
    std::vector<Referencia> aberturas;
};

/// The palettes of element buttons, of which one at most is on view.
enum class Paleta : std::uint8_t { FrMuebles, FrBaño, FrCocina, FrUsuario, FrElectrico, ninguna };

/// All that the hands of the main window work on: the drawing, the view on it, and the gate between commands
/// and auto-save.
struct Sesion {
    Sesion(Plataforma& plataforma_, std::filesystem::path carpeta_)
        : plataforma(plataforma_), carpeta(std::move(carpeta_)) {}

    Plataforma& plataforma;
    std::filesystem::path carpeta;  ///< the program's folder

    Dibujo dibujo;

    double visorAncho = 0, visorAlto = 0;  ///< the viewport `ContImagen`, sheet units
    Barra HScroll1, VScroll1;
    Regla regla;
    CuadriculaDibujada cuadricula;
    Segmento Vector;  ///< the rubber line that pans the sheet
    MarcoDeSeleccion RectSel;
    std::optional<Referencia> foco;  ///< the piece of furniture or the text that has the input focus
    Mapa mapa;
    Paleta paleta = Paleta::FrUsuario;
    std::string_view Letrero = "Divisiones";
    int bordeElevado = -1;  ///< the main button whose border is raised, -1 for none

    bool Ocupado = false;           ///< a command of the user is running
    bool GuardandoAuto = false;     ///< an auto-save is writing
    bool SalvadoPendiente = false;  ///< the due minute has come while a command was running
    std::int32_t MinutosAutoSave = 0;
    bool EjecutandoZoom = false;

    std::array<std::int32_t, 8>
        DesfaseLineas{};  ///< start grip minus the ends of lines 1 and 3, x and y in turn
    std::array<std::int32_t, 4> DesfaseGrips{};  ///< start grip minus end grip, start grip minus centre grip
    std::vector<ParedEnMovimiento> paredesEnMovimiento;

    bool vistaSucia = true;  ///< something around the drawing has to be shown anew
};

/// Lets the outside show what has changed so far.
void publicar(Sesion& sesion);

/// Gives other events a turn; what has changed shows first.
void cederEventos(Sesion& sesion, Espera espera = Espera::completa);

/// Shows a message and gives the answer; what has changed shows first.
Respuesta preguntar(Sesion& sesion, const Mensaje& mensaje);

/// A dialog that is open has written into the drawing: sheet and selection frame follow.
void mostrarLoEscrito(Sesion& sesion);

/// Shows a dialog until it is closed; what has changed shows first. One that writes into the drawing while it
/// is open has an `alEscribir`, which it calls after each write: so the sheet shows it at once.
template <class Dialogo>
void mostrar(Sesion& sesion, Dialogo& dialogo) {
    if constexpr (requires { dialogo.alEscribir; })
        dialogo.alEscribir = [&sesion] { mostrarLoEscrito(sesion); };
    publicar(sesion);
    sesion.plataforma.mostrar(dialogo);
}

/// The tool in hand changes.
void ponerModo(Sesion& sesion, Modo modo);
/// A tool ends: mode "Aspa" and its cursor.
void volverAlAspa(Sesion& sesion);

}  // namespace bosquel
