#include "ui/color_qt.h"

namespace bosquel {

QColor colorQt(Color color) {
    const auto plano = static_cast<unsigned>(rgb(color));
    return QColor::fromRgb(static_cast<int>(plano & 0xFFU), static_cast<int>((plano >> 8U) & 0xFFU),
                           static_cast<int>((plano >> 16U) & 0xFFU));
}

Color colorDe(const QColor& color) {
    return color.red() | color.green() << 8 | color.blue() << 16;
}

}  // namespace bosquel
