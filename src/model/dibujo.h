#pragma once

#include "model/clases.h"
#include "model/coleccion.h"
#include "model/elementos.h"
#include "model/modos.h"
#include "model/zona.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace bosquel {

/// The fields of a drag. They outlive it: what one drag leaves behind is where the next one starts from.
struct Arrastre {
    std::int32_t AgarreX = 0, AgarreY = 0;  ///< where inside the element the pointer went down
    std::int32_t ArrastreOrigenX = 0, ArrastreOrigenY = 0;
    std::int32_t ArrastreAnclaAX = 0, ArrastreAnclaAY = 0;
    std::int32_t ArrastreAnclaBX = 0, ArrastreAnclaBY = 0;
    std::int32_t ArrastreDX = 0, ArrastreDY = 0;  ///< the last step
    bool ArrastreAlterna = false;                 ///< the next sample is measured from anchor B
    bool ArrastrePrimero = false;                 ///< the next sample opens a new pair of anchors
};

/// An element, named by its kind and its index.
struct Referencia {
    Clase clase = Clase::MblMesa;
    std::int16_t indice = 0;

    bool operator==(const Referencia&) const = default;
};

/// Where the sheet lies in the viewport and how large it is, in sheet units. `Left` and `Top` are 0 or less
/// while the sheet is larger than the viewport.
struct HojaDibujo {
    float Left = 0, Top = 0, Width = 10000, Height = 10000;
};

/// The one open drawing: all elements, the sheet's settings, the selection and the tool mode. Everything
/// reads and writes it directly. Lengths are millimetres, positions sheet units.
struct Dibujo {
    Coleccion<bosquel::MblMesa> MblMesa;
    Coleccion<bosquel::MblSilla> MblSilla;
    Coleccion<bosquel::MblCama90> MblCama90;
    Coleccion<bosquel::MblCama130> MblCama130;
    Coleccion<bosquel::MblArmario> MblArmario;
    Coleccion<bosquel::MblAsiento> MblAsiento;
    Coleccion<bosquel::MblInodoro> MblInodoro;
    Coleccion<bosquel::MblLavabo> MblLavabo;
    Coleccion<bosquel::MblBidet> MblBidet;
    Coleccion<bosquel::MblBañera> MblBañera;
    Coleccion<bosquel::MblDucha> MblDucha;
    Coleccion<bosquel::MblUrinario> MblUrinario;
    Coleccion<bosquel::MblCocina> MblCocina;
    Coleccion<bosquel::MblNevera> MblNevera;
    Coleccion<bosquel::MblFregadero> MblFregadero;
    Coleccion<bosquel::MblLavadora> MblLavadora;
    Coleccion<bosquel::MblLavadero> MblLavadero;
    Coleccion<bosquel::MblVertedero> MblVertedero;
    Coleccion<bosquel::Pared> Pared;
    Coleccion<bosquel::Ventana> Ventana;
    Coleccion<bosquel::Puerta> Puerta;
    Coleccion<bosquel::TextoLibre> TextoLibre;
    Coleccion<bosquel::Escalera> Escalera;
    Coleccion<bosquel::Electrico> Electrico;

    double FactorZoomActual = 0.5;  ///< sheet units per millimetre
    double ZoomPasoBajo = 0.5, ZoomPasoMedio = 1.0, ZoomPasoAlto = 1.5;
    double RelacionZoom = 1;  ///< new factor divided by old, of the last zoom

    std::int32_t AreaHight = 20000, AreaWidth = 20000;  ///< the sheet's size, mm
    double Cuadricula = 100;                            ///< grid spacing, mm
    bool Iman = false;                                  ///< snap to the grid
    bool VerCuadricula = false;
    std::int16_t AutoSave = 5;  ///< minutes between auto-saves, 0 for none

    std::int16_t TotalGrupos = 0;  ///< the highest group number given so far
    double DistParalela = 1;       ///< last distance of the parallel tool, m

    Modo ModoActual = Modo::Aspa;
    std::optional<Clase> ElementoActual;  ///< nothing: none yet, or the sheet itself was pressed last
    std::int16_t IndiceActual = 0;
    std::int16_t ParedBajoPuntero = 0, VentanaBajoPuntero = 0, PuertaBajoPuntero = 0, EscaleraBajoPuntero = 0;
    std::int16_t ParedUno = 0, ParedDos = 0;  ///< the walls chosen by the two-wall tools
    std::int16_t GrupoEnMovimiento = 0;       ///< the group being dragged as one, 0 if none
    double PuntoUnionX = 0, PuntoUnionY = 0;  ///< the last crossing of two lines

    std::string Esquema = "Blanco y Negro";  ///< colour scheme
    std::string Perfil;                      ///< colour profile

    Arrastre arrastre;
    HojaDibujo Hoja;
    ZonaSucia sucia;                               ///< where something at rest has changed
    ZonaSucia paso;                                ///< where something that is being dragged was and is now
    std::vector<Referencia> cambiados;             ///< elements that have changed, see `anunciar`
    bool todoCambiado = true;                      ///< anything may have changed, see `anunciarTodo`
    std::optional<Referencia> ObjetoEnMovimiento;  ///< what is being dragged, walls excepted
    std::int32_t ordenFrente = 0, ordenFondo = 0;  ///< the ends of the z-order, see `alFrente`
};

/// Furniture, a text, a stair or a symbol has changed in any way, has come or is gone: where it was and where
/// it is now is painted again when the event ends.
void anunciar(Dibujo& dibujo, Clase clase, int indice);

/// Anything on the sheet may have changed.
void anunciarTodo(Dibujo& dibujo);

/// The z-order: whatever is brought to the front lies over all the rest, what is sent to the back under it.
template <class Cosa>
void alFrente(Dibujo& dibujo, Cosa& cosa) {
    cosa.orden = ++dibujo.ordenFrente;
}
template <class Cosa>
void alFondo(Dibujo& dibujo, Cosa& cosa) {
    cosa.orden = --dibujo.ordenFondo;
}

/// What stands on the sheet at a place of its own: nullptr for a hole, for a model, and for walls and
/// openings.
Situado* situado(Dibujo& dibujo, Referencia cual);
const Situado* situado(const Dibujo& dibujo, Referencia cual);

/// Calls `paso` with the collection of a kind and gives what it gives: the one place that knows which
/// collection belongs to which kind.
template <class D, class Paso>
decltype(auto) conColeccion(D& dibujo, Clase clase, Paso&& paso) {
    switch (clase) {
        case Clase::MblMesa: return paso(dibujo.MblMesa);
        case Clase::MblSilla: return paso(dibujo.MblSilla);
        case Clase::MblCama90: return paso(dibujo.MblCama90);
        case Clase::MblCama130: return paso(dibujo.MblCama130);
        case Clase::MblArmario: return paso(dibujo.MblArmario);
        case Clase::MblAsiento: return paso(dibujo.MblAsiento);
        case Clase::MblInodoro: return paso(dibujo.MblInodoro);
        case Clase::MblLavabo: return paso(dibujo.MblLavabo);
        case Clase::MblBidet: return paso(dibujo.MblBidet);
        case Clase::MblBañera: return paso(dibujo.MblBañera);
        case Clase::MblDucha: return paso(dibujo.MblDucha);
        case Clase::MblUrinario: return paso(dibujo.MblUrinario);
        case Clase::MblCocina: return paso(dibujo.MblCocina);
        case Clase::MblNevera: return paso(dibujo.MblNevera);
        case Clase::MblFregadero: return paso(dibujo.MblFregadero);
        case Clase::MblLavadora: return paso(dibujo.MblLavadora);
        case Clase::MblLavadero: return paso(dibujo.MblLavadero);
        case Clase::MblVertedero: return paso(dibujo.MblVertedero);
        case Clase::Pared: return paso(dibujo.Pared);
        case Clase::Ventana: return paso(dibujo.Ventana);
        case Clase::Puerta: return paso(dibujo.Puerta);
        case Clase::TextoLibre: return paso(dibujo.TextoLibre);
        case Clase::Escalera: return paso(dibujo.Escalera);
        case Clase::Electrico: break;
    }
    return paso(dibujo.Electrico);
}

}  // namespace bosquel
