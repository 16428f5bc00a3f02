#pragma once

#include <filesystem>

namespace bosquel {

/// The program's folder, where its settings, the auto-save and the drawings lie: the folder of the executable
/// when it can be written, otherwise the user's own data folder for the program, which is made.
std::filesystem::path carpetaDelPrograma();

/// The folder of the executable, whether or not it can be written.
std::filesystem::path carpetaDelEjecutable();

/// Where the manual lies: as asked for, or else under the same name as it comes with the program, beside the
/// executable or in the data folder of the installed program. `pedido` if it lies nowhere.
std::filesystem::path sitioDelManual(const std::filesystem::path& pedido,
                                     const std::filesystem::path& ejecutable = carpetaDelEjecutable());

}  // namespace bosquel
