#pragma once

#include "apoyo/carpeta_temporal.h"
#include "apoyo/plataforma_falsa.h"
#include "appearance/colores.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace bosquel::apoyo {

inline constexpr Color verde = 0x00FF00, azul = 0xFF0000;

/// A drawing, and a folder of its own for the profiles.
class PruebaColores : public testing::Test {
  protected:
    Colores abrir() { return {dibujo, plataforma, carpeta.ruta()}; }

    void ponFichero(std::string_view bytes) const { ponerBytes(carpeta / "PerfilesColor.ini", bytes); }
    std::string fichero() const { return bytesDe(carpeta / "PerfilesColor.ini"); }

    /// Presses "Guardar" and types the name.
    void guarda(Colores& dialogo, const std::string& nombre) {
        plataforma.textos = {nombre};
        plataforma.mensajes.clear();
        dialogo.cmdGuardarPerfil();
    }

    CarpetaTemporal carpeta;
    PlataformaFalsa plataforma;
    Dibujo dibujo;
};

/// The same item as many times as are asked for, joined by "#".
inline std::string repetir(const std::string& elemento, int veces) {
    std::string lista = elemento;
    for (int i = 1; i < veces; ++i)
        lista += "#" + elemento;
    return lista;
}

template <class Grupo, class Valor>
bool todos(const Grupo& grupo, const Valor& valor, std::size_t desde = 0) {
    return std::all_of(grupo.begin() + static_cast<std::ptrdiff_t>(desde), grupo.end(),
                       [&](const auto& uno) { return uno == valor; });
}

}  // namespace bosquel::apoyo
