#pragma once

#include "apoyo/carpeta_temporal.h"
#include "persistence/perfiles.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace bosquel::apoyo {

/// A test with one profile file in a folder of its own.
class Perfil : public testing::Test {
  protected:
    void poner(std::string_view bytes) const { ponerBytes(ruta_, bytes); }
    std::string bytes() const { return bytesDe(ruta_); }
    std::string leer(std::string_view seccion, std::string_view clave, std::string_view otro = "-") const {
        return LeerIni(ruta_, seccion, clave, otro);
    }
    void guardar(std::string_view seccion, std::string_view clave, std::string_view valor) const {
        GuardarIni(ruta_, seccion, clave, valor);
    }

    CarpetaTemporal carpeta_;
    std::filesystem::path ruta_ = carpeta_ / "Bqr.ini";
};

}  // namespace bosquel::apoyo
