#pragma once

#include <filesystem>
#include <string>
#include <system_error>
#include <unistd.h>

namespace bosquel::fuzz {

/// A folder for the files of one process, in memory where the system has such a place.
class Carpeta {
  public:
    Carpeta() {
        const std::filesystem::path memoria = "/dev/shm";
        ruta_ = (std::filesystem::is_directory(memoria) ? memoria : std::filesystem::temp_directory_path()) /
                ("bosquel-fuzz-" + std::to_string(::getpid()));
        std::filesystem::create_directories(ruta_);
    }
    ~Carpeta() {
        std::error_code error;
        std::filesystem::remove_all(ruta_, error);
    }
    Carpeta(const Carpeta&) = delete;
    Carpeta& operator=(const Carpeta&) = delete;

    std::filesystem::path operator/(const char* nombre) const { return ruta_ / nombre; }
    const std::filesystem::path& ruta() const { return ruta_; }

  private:
    std::filesystem::path ruta_;
};

}  // namespace bosquel::fuzz
