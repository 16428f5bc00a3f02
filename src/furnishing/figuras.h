#pragma once

#include "furnishing/pluma.h"
#include "model/elementos.h"

namespace bosquel {

// The outline of each furnishing kind, without its fill state. A code that a kind does not know, and a side
// that is no number, draw nothing.

void figura(const Pluma& pluma, const MblMesa& mesa);
void figura(const Pluma& pluma, const MblSilla& una);
void figura(const Pluma& pluma, const MblCama90& cama);
void figura(const Pluma& pluma, const MblCama130& cama);
void figura(const Pluma& pluma, const MblArmario& armario);
void figura(const Pluma& pluma, const MblAsiento& asiento);

void figura(const Pluma& pluma, const MblInodoro& inodoro);
void figura(const Pluma& pluma, const MblLavabo& lavabo);
void figura(const Pluma& pluma, const MblBidet& bidet);
void figura(const Pluma& pluma, const MblBañera& bañera);
void figura(const Pluma& pluma, const MblDucha& ducha);
void figura(const Pluma& pluma, const MblUrinario& urinario);

void figura(const Pluma& pluma, const MblCocina& cocina);
void figura(const Pluma& pluma, const MblNevera& nevera);
void figura(const Pluma& pluma, const MblFregadero& fregadero);
void figura(const Pluma& pluma, const MblLavadora& lavadora);
void figura(const Pluma& pluma, const MblLavadero& lavadero);
void figura(const Pluma& pluma, const MblVertedero& vertedero);

/// The index of the last seat or bowl in a row of `n`, which has one at least.
int ultimoDeFila(double n);

/// The side that a kind holds as a text in centimetres, in mm; blanks around it come off.
std::optional<double> ladoDeTexto(std::string_view texto);

}  // namespace bosquel
