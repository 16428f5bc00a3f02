#pragma once

#include <QString>
#include <string_view>

namespace bosquel {

/// The core's texts are UTF-8.
inline QString aQString(std::string_view texto) {
    return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}

}  // namespace bosquel
