#pragma once

#include <filesystem>
#include <string>

namespace bosquel {

/// A path as it was typed, with the extension that the dialog adds to a bare name: any name without a point.
inline std::filesystem::path conExtension(std::filesystem::path ruta, const char* extension) {
    if (ruta.filename().string().find('.') == std::string::npos) ruta += std::string(".") + extension;
    return ruta;
}

}  // namespace bosquel
