#pragma once

#include "model/dibujo.h"

#include <span>
#include <string_view>

namespace bosquel {

// What the dialogs of the furnishing kinds differ in, tables and chairs around them apart. Controls are named
// as on the form; captions stand as they are shown.

/// Where an element keeps something; nullptr for an element that does not exist.
template <class T>
using Sitio = T* (*)(Dibujo& dibujo, int indice);

/// A size that is typed, in metres.
struct CampoMueble {
    std::string_view control, rotulo;
    Sitio<double> valor = nullptr;
};

/// A number that is chosen among a few.
struct OpcionMueble {
    int indice = 0;  ///< of the button in its group
    std::string_view rotulo;
    double valor = 0;
};
struct OpcionesMueble {
    std::string_view control, titulo;
    std::span<const OpcionMueble> opciones;
    Sitio<double> valor = nullptr;
};

/// A layout: what the element holds, and how it is read aloud.
struct CodigoDist {
    std::string_view codigo, leido;
};
/// The buttons `Dist` by their index.
struct GrupoDist {
    std::string_view titulo;
    std::span<const CodigoDist> codigos;
    bool rotulados = false;  ///< the buttons show their code: it is no direction
};

struct FichaMueble {
    Clase clase = Clase::MblMesa;
    std::string_view titulo;
    std::span<const CampoMueble> campos = {};
    bool midenAlPulsar = false;  ///< a press of `Dist` writes the sizes first
    OpcionesMueble opciones = {};
    Sitio<int> ChkEscurridor = nullptr;
    GrupoDist Dist = {};
};

/// The row of a furnishing kind. A kind that has none, the table among them, gives one without contents.
const FichaMueble& fichaDe(Clase clase);

}  // namespace bosquel
