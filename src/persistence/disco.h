#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace bosquel {

/// The bytes of a file: none if it does not exist; nothing if something stands there that cannot be read,
/// and is therefore not to be replaced either.
std::optional<std::string> leerArchivo(const std::filesystem::path& ruta);

/// Puts the bytes in the place of the file, whole or not at all: they go to a temporary file beside it, are
/// flushed, and take its name. A file that may not be written stays; one that exists keeps its permissions; a
/// symbolic link is followed. True if it was done.
bool sustituirArchivo(const std::filesystem::path& ruta, std::string_view bytes);

}  // namespace bosquel
