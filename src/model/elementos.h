#pragma once

#include "model/colores.h"
#include "model/geometria.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace bosquel {

// The 24 kinds as plain records. Lengths are in millimetres, positions in sheet units (see
// docs/geometria.md), angles in degrees. The values given here are those of the models, slot 0 of the
// collections, at the start of the program. Texts that a file holds stay texts, since a file may hold any and
// keeps what it has.

inline constexpr const char* estadoNuevo = "Nuevo";      ///< until the element's dialog is first applied
inline constexpr const char* estadoEdicion = "Edicion";  ///< ever after

/// What stands on the sheet at a place of its own. A new one is not visible. `orden` is its place in the
/// z-order: the higher, the nearer to the eye; among equals the order of the output counts.
struct Situado {
    float Left = 0, Top = 0;
    bool Visible = false;
    std::int32_t orden = 0;
};

/// What furniture, stairs and symbols share.
struct Elemento : Situado {
    double FactorZOOM = 0.5;
    Color LineColor = colorTextoVentana;
};

struct ElementoConFondo : Elemento {
    Color BackColor = blanco;
};

struct MblMesa : ElementoConFondo {
    double MesaDimX = 1000, MesaDimY = 1000;
    double AnchoSilla = 400, AltoSilla = 300;
    std::string ColocacionSillas = "4RLUD";
};

struct MblSilla : ElementoConFondo {
    double AnchoSilla = 450;
    std::string Orientacion = "Sur";
};

struct MblCama90 : ElementoConFondo {
    std::string Orientacion = "NL";
};

struct MblCama130 : ElementoConFondo {
    std::string Orientacion = "N";
};

struct MblArmario : ElementoConFondo {
    double DimX = 1500, DimY = 600;
};

struct MblAsiento : ElementoConFondo {
    double AnchoAsiento = 600, FondoAsiento = 650;
    double NumeroAsientos = 3;
    std::string Orientacion = "S";
};

struct MblInodoro : Elemento {
    std::string Orientacion = "S";
};

struct MblLavabo : Elemento {
    std::string Orientacion = "S";
};

struct MblBidet : Elemento {
    std::string Orientacion = "S";
};

struct MblBañera : Elemento {
    double Longitud = 1600;
    std::string Orientacion = "W";
};

/// `Orientacion` holds the side of the tray in centimetres, no direction.
struct MblDucha : Elemento {
    std::string Orientacion = "70";
};

struct MblUrinario : Elemento {
    std::string Orientacion = "S";
};

/// `Orientacion` holds the side of the hob in centimetres, no direction.
struct MblCocina : ElementoConFondo {
    std::string Orientacion = "60";
};

struct MblNevera : ElementoConFondo {
    std::string Orientacion = "SL";
};

struct MblFregadero : ElementoConFondo {
    std::string Orientacion = "EU";
    double NumeroSenos = 1;
    int Escurridor = 1;  ///< 1 with a drainer, 0 without
};

/// `Orientacion` holds the side of the machine in centimetres, no direction.
struct MblLavadora : ElementoConFondo {
    std::string Orientacion = "60";
};

struct MblLavadero : ElementoConFondo {
    std::string Orientacion = "W";
};

struct MblVertedero : ElementoConFondo {
    std::string Orientacion = "N";
};

/// A grip: a small square on the sheet by which a wall, a window or a door is picked. Hidden until its
/// element is drawn. `orden` is its place in the z-order: the higher, the nearer to the eye.
struct Pinza {
    float Left = 0, Top = 0;
    float Lado = 0;
    Color BackColor = blanco;
    bool Visible = false;
    std::int32_t orden = 0;

    Recuadro recuadro() const { return {Left, Top, Lado, Lado}; }
};

/// A wall. `InicialX`, `InicialY` and the stored ends of lines 1 and 3 are what the file holds and what
/// `Longitud` is measured from; `lineas` is what stands on the sheet. Lines 1 and 3 are the long sides, 2 and
/// 4 the caps at start and end. `LineColor` counts in the model only: it is the colour of all walls.
struct Pared {
    bool Visible1 = true, Visible2 = true;
    std::string Estado = estadoNuevo;
    float InicialX = 0, InicialY = 0;
    float Linea1X2 = 0, Linea1Y2 = 0;
    float Linea3X1 = 0, Linea3Y1 = 0, Linea3X2 = 0, Linea3Y2 = 0;
    std::string Tipo = "Tabique";  ///< "Muro", "Tabique" or "Pilar"; all but "Muro" are partitions
    std::int16_t NumeroGrupo = 0;
    double AnchoTabique = 100, AnchoMuro = 200;
    std::int16_t Angulo = 0;
    double Longitud = 4000;
    Color LineColor = colorTextoVentana;

    bool EnMovimiento = false;  ///< being dragged: painted over all that stands still

    std::array<Segmento, 4> lineas;
    Pinza ParedPick, ParedPickBIS, ParedPickCentro;  ///< at the start, at the end, in the middle

    bool esMuro() const { return Tipo == "Muro"; }
    double ancho() const { return esMuro() ? AnchoMuro : AnchoTabique; }
    std::array<Pinza*, 3> pinzas() { return {&ParedPick, &ParedPickBIS, &ParedPickCentro}; }
    std::array<const Pinza*, 3> pinzas() const { return {&ParedPick, &ParedPickBIS, &ParedPickCentro}; }
};

/// What windows and doors share: they have no place of their own but the one that their wall gives them.
/// `AnchoTabique`, `AnchoMuro` and `Angulo` are copies of the wall's at placing. `LineColor` counts in the
/// model only.
struct Abertura {
    double Distancia = 0;
    std::string Alineacion = "Centro";   ///< "Centro", "Izquierda" or "Derecha"
    std::string Orientacion = "Arriba";  ///< "Arriba" or "Abajo", as seen on the screen
    std::string Estado = estadoNuevo;
    std::int16_t GrupoInicialPared = 0;
    std::int16_t NumeroPared = 0;
    double AnchoTabique = 100, AnchoMuro = 200;
    std::int16_t Angulo = 0;
    double Longitud = 1000;
    Color LineColor = colorTextoVentana;
};

struct Ventana : Abertura {
    std::string Tipo = "Tabique";
    std::array<Segmento, 8> lineas;
    Pinza VentanaPick;

    std::array<const Pinza*, 1> pinzas() const { return {&VentanaPick}; }
};

/// The lines of a door that only tell the swing of a leaf.
inline constexpr std::size_t cuerdaPuerta = 8, segundaCuerdaPuerta = 12;

/// `Longitud` is that of one leaf.
struct Puerta : Abertura {
    Puerta() {
        Distancia = 100;
        Alineacion = "Izquierda";
        Orientacion = "Abajo";
        Longitud = 720;
    }
    std::string OrientacionLateral = "Izquierda";  ///< "Izquierda", "Derecha" or "Doble"
    std::array<Segmento, 12> lineas;
    Pinza PuertaPick;

    std::array<const Pinza*, 1> pinzas() const { return {&PuertaPick}; }
};

struct TextoLibre : Situado {
    float Width = 0, Height = 0;  ///< the box that its text fills
    double FontSize = 6;          ///< points: 12 times the zoom factor
    Color ForeColor = colorTextoVentana;
    std::string Text;
};

struct Escalera : Elemento {
    std::int32_t Stairs = 1;
    std::int32_t StairEye = 150, WidthSteps = 280;
    std::array<std::int32_t, 3> WidthStair{1000, 1000, 1000};
    std::array<std::int32_t, 3> StepsStair{8, 2, 6};
    std::array<bool, 3> RailingSide{};
    std::int16_t Angle = 0;
    std::string Orientacion = "D";
    bool Resaltado = false;
};

/// What is drawn is `Guion`, the script of the symbol `ObjectType`: whoever gives the element a symbol gives
/// it both (stairs_symbols/catalogo.h). The file holds the name alone.
struct Electrico : ElementoConFondo {
    std::string ObjectType = "Punto de Luz";
    std::string Guion;
    double RectX = 250, RectY = 250;
    double Angle = 0;
    bool Resaltado = false;
};

}  // namespace bosquel
