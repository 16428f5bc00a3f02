#pragma once

#include <string>
#include <vector>

namespace bosquel::apoyo {

/// A profile file done the plain way, byte by byte and line by line, with nothing kept between two calls:
/// what the real one is held against. All texts are bytes of Windows-1252.
class PerfilIngenuo {
  public:
    explicit PerfilIngenuo(std::string bytes) : bytes_(std::move(bytes)) {}

    const std::string& bytes() const { return bytes_; }
    std::string leer(const std::string& seccion, const std::string& clave, const std::string& otro) const;
    void guardar(const std::string& seccion, const std::string& clave, const std::string& valor);

  private:
    struct Linea {
        std::string texto;
        std::string fin;
    };
    std::vector<Linea> lineas() const;

    std::string bytes_;
};

}  // namespace bosquel::apoyo
