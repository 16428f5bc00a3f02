#pragma once

#include <filesystem>

namespace bosquel {

/// The program's folder, where its settings, the auto-save and the drawings lie: the folder of the executable
/// when it can be written, otherwise the user's own data folder for the program, which is made, with the
/// examples in it.
std::filesystem::path carpetaDelPrograma();

/// What comes with the program and does not change: where it was installed, or else beside the executable.
std::filesystem::path carpetaDeDatos();

}  // namespace bosquel
