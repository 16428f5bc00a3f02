#pragma once

#include "output/lienzo_salida.h"
#include "output/papel.h"
#include "surface/grabadora.h"

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

namespace bosquel::apoyo {

/// Pictures without pixels: they write down what is drawn on them and what is done with them, in its order.
class LienzoFalso : public LienzoSalida {
  public:
    std::vector<std::string> hechos;  ///< "vaciar", "poner", "tomar", "guardar RUTA color", "ver A4"...
    std::vector<AreaSalida> areas;    ///< all that have been copied
    std::vector<std::string> trazos;
    int ancho = -1, alto = -1, veces = 0;        ///< of the sheet's picture, and how often it was painted
    int cabe = std::numeric_limits<int>::max();  ///< the longest side that there is memory for

    TamanoSalida pintarHoja(TamanoSalida tamano,
                            const std::function<void(SuperficieSalida&)>& dibujar) override {
        ancho = std::min(tamano.ancho, cabe);
        alto = std::min(tamano.alto, cabe);
        ++veces;
        Grabadora hoja;
        dibujar(hoja);
        trazos = hoja.trazos();
        return {ancho, alto};
    }
    void recortar(const AreaSalida& area) override { areas.push_back(area); }
    void vaciarPortapapeles() override { hechos.emplace_back("vaciar"); }
    void ponerEnPortapapeles() override { hechos.emplace_back("poner"); }
    void tomarDelPortapapeles() override { hechos.emplace_back("tomar"); }
    void vistaPrevia(const Papel& papel) override { hechos.push_back("ver " + std::string(papel.nombre)); }
    void guardar(const std::filesystem::path& ruta, Profundidad profundidad) override {
        hechos.push_back("guardar " + ruta.string() +
                         (profundidad == Profundidad::dosTonos ? " dos tonos" : " color"));
    }
};

}  // namespace bosquel::apoyo
