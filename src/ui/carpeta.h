#pragma once

#include <filesystem>

namespace bosquel {

/// The program's folder, where its settings, the auto-save and the drawings lie: the folder of the executable
/// when it can be written, otherwise the user's own data folder for the program, which is made, with the
/// examples in it.
std::filesystem::path carpetaDelPrograma();

/// What comes with the program and does not change: where it was installed, or else beside the executable.
std::filesystem::path carpetaDeDatos();

/// Where the manual lies: as asked for, or else under the same name with what comes with the program.
/// `pedido` if it lies nowhere.
std::filesystem::path sitioDelManual(const std::filesystem::path& pedido,
                                     const std::filesystem::path& datos = carpetaDeDatos());

}  // namespace bosquel
