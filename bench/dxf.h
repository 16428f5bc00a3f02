#pragma once

#include "surface/calco.h"

#include <filesystem>

namespace bosquel::bench {

/// Writes the strokes of a picture as a drawing-exchange file, for programs of others to paint. Fills are
/// left out, and so is the colour.
void escribirDxf(const Calco& calco, const std::filesystem::path& ruta);

}  // namespace bosquel::bench
