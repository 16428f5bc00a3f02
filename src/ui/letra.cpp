#include "ui/letra.h"

#include "surface/superficie_salida.h"

#include <algorithm>
#include <cmath>

namespace bosquel {

QFont fuenteTexto(double puntos, double escala) {
    QFont letra(QStringLiteral("sans-serif"));
    letra.setStyleHint(QFont::SansSerif);
    constexpr double sinDesbordar = 1e5;
    letra.setPixelSize(
        static_cast<int>(std::lround(std::clamp(puntos * unidadesPorPunto * escala, 1.0, sinDesbordar))));
    return letra;
}

QFont sinSuavizar(QFont letra) {
    letra.setStyleStrategy(QFont::NoAntialias);
    letra.setHintingPreference(QFont::PreferFullHinting);
    return letra;
}

}  // namespace bosquel
