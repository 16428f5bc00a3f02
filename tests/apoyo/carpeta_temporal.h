#pragma once

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

namespace bosquel::apoyo {

/// An empty folder of its own for one test, gone with all that is in it at the end.
class CarpetaTemporal {
  public:
    CarpetaTemporal() {
        std::random_device azar;
        do {
            ruta_ = std::filesystem::temp_directory_path() / ("bosquel-prueba-" + std::to_string(azar()));
        } while (!std::filesystem::create_directory(ruta_));
    }
    ~CarpetaTemporal() {
        std::error_code error;
        std::filesystem::remove_all(ruta_, error);
    }
    CarpetaTemporal(const CarpetaTemporal&) = delete;
    CarpetaTemporal& operator=(const CarpetaTemporal&) = delete;

    std::filesystem::path operator/(const std::filesystem::path& nombre) const { return ruta_ / nombre; }
    const std::filesystem::path& ruta() const { return ruta_; }

    /// How many things lie in the folder: a left-over of a write would show.
    auto cuantos() const {
        return std::distance(std::filesystem::directory_iterator(ruta_),
                             std::filesystem::directory_iterator());
    }

  private:
    std::filesystem::path ruta_;
};

inline std::string bytesDe(const std::filesystem::path& ruta) {
    std::ifstream archivo(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(archivo), {}};
}

inline void ponerBytes(const std::filesystem::path& ruta, std::string_view bytes) {
    std::ofstream(ruta, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

}  // namespace bosquel::apoyo
