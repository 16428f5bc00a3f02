#pragma once

#include <filesystem>

namespace bosquel {

/// The program's folder, where its settings, the auto-save and the drawings lie: the folder of the executable
/// when it can be written, otherwise the user's own data folder for the program, which is made.
std::filesystem::path carpetaDelPrograma();

}  // namespace bosquel
