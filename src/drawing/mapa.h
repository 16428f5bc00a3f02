#pragma once

#include "model/dibujo.h"

#include <cstdint>
#include <tuple>
#include <unordered_map>
#include <vector>

namespace bosquel {

/// How near to the eye something on the sheet lies. Grips lie over what they stand on.
struct Altura {
    std::int32_t orden = 0;
    bool esPinza = false;
    Clase clase = Clase::MblMesa;
    int indice = 0;

    bool operator<(const Altura& otra) const {
        return std::tie(orden, esPinza, clase, indice) <
               std::tie(otra.orden, otra.esPinza, otra.clase, otra.indice);
    }
};

/// Where everything with a place of its own stands, by squares of the sheet, so that what lies under the
/// pointer or in a part of the sheet is found without asking each element.
class Mapa {
  public:
    /// Takes what has been announced since the last time, and tells the drawing's zones what of the sheet is
    /// no longer true.
    void ponerAlDia(Dibujo& dibujo);

    /// Calls `paso(cual)` for everything that the pointer may mean at a point, in no order.
    template <class Paso>
    void enPunto(double x, double y, Paso paso) const {
        const auto probar = [&](Clave clave) {
            const Ficha& ficha = fichas_.at(clave);
            if (ficha.blanco.contiene(x, y)) paso(ficha.cual);
        };
        for (const Clave clave : grandes_)
            probar(clave);
        const auto casilla = casillas_.find(casillaDe(x, y));
        if (casilla == casillas_.end()) return;
        for (const Clave clave : casilla->second)
            probar(clave);
    }

    /// What paints in a part of the sheet, in no order, each once.
    std::vector<Referencia> enZona(const Recuadro& zona) const;

  private:
    using Clave = std::uint32_t;
    using Casilla = std::int64_t;

    struct Ficha {
        Referencia cual;
        Recuadro extension;  ///< all that it paints
        Recuadro blanco;     ///< where the pointer finds it
    };
    struct Rango {
        std::int64_t x1, y1, x2, y2;
    };

    static Clave claveDe(Referencia cual);
    static Casilla casilla(std::int64_t columna, std::int64_t fila);
    static Casilla casillaDe(double x, double y);
    static std::optional<Rango> rangoDe(const Recuadro& zona);
    template <class Paso>
    void porCasillas(const Recuadro& zona, Paso paso);

    void anotar(const Dibujo& dibujo, Referencia cual, ZonaSucia& zona);
    void borrar(Referencia cual, ZonaSucia& zona);
    void rehacer(Dibujo& dibujo);

    std::unordered_map<Clave, Ficha> fichas_;
    std::unordered_map<Casilla, std::vector<Clave>> casillas_;
    std::vector<Clave> grandes_;  ///< what covers too many squares to be listed in each
};

}  // namespace bosquel
