#pragma once

#include <QtGlobal>
#include <algorithm>
#include <cmath>

namespace bosquel {

/// Sheet units to one logical pixel.
inline constexpr double unidadesPorPixel = 15;

/// Whole logical pixels; what no window reaches is cut, so that sheets of any size stay within an int.
inline int aPixeles(double unidades) {
    constexpr double lejos = 1e8;
    return static_cast<int>(std::lround(std::clamp(unidades / unidadesPorPixel, -lejos, lejos)));
}

inline float aUnidades(double pixeles) {
    return static_cast<float>(pixeles * unidadesPorPixel);
}

}  // namespace bosquel
