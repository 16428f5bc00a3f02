#pragma once

#include "model/geometria.h"

#include <array>
#include <string_view>

namespace bosquel {

/// An option of the window, by the index of its button.
struct OpcionSalida {
    std::string_view rotulo;
    bool disponible = true;
};

/// The two largest sizes are there for show: no page is laid out for them.
inline constexpr std::array<OpcionSalida, 4> optTamaño{{{"A4"}, {"A3"}, {"A2", false}, {"A1", false}}};
inline constexpr std::array<OpcionSalida, 2> optSentido{{{"V "}, {"H "}}};

/// A page with one picture box on it. Lengths in twips.
struct Papel {
    std::string_view nombre;  ///< of its preview window
    std::string_view titulo;
    double ancho, alto;  ///< of the paper held upright
    bool apaisado;
    double anchoImagen, altoImagen;  ///< of the box `Image1`

    /// The box as it lies on the page as it is read. The picture stands at its top left corner in its natural
    /// size, and what does not fit is cut off.
    Recuadro Image1() const { return {0, margenSuperior, anchoImagen, altoImagen}; }

    static constexpr double margenSuperior = 1000;  ///< the other three are 0
};

/// The page for the indices of `optTamaño` and `optSentido`; none if there is no page for them.
const Papel* papelPara(int tamano, int sentido);

}  // namespace bosquel
