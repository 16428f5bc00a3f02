#include "exigir.h"
#include "furnishing/dibujar_elemento.h"
#include "model/textos_numero.h"
#include "stairs_symbols/simbolo.h"
#include "surface/medidora.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// Parses arbitrary bytes as the script of a symbol and draws it as it lies: the first line holds angle, width
// and height of its frame, zoom and output scale, parted by semicolons.

using namespace bosquel;
using fuzz::exigir;

namespace {

/// Counts what is drawn, and wants it finite.
class Revisora : public Medidora {
  public:
    bool bastanLosExtremos() const override { return false; }
    std::size_t trazos = 0;

  protected:
    void trazarLinea(double x1, double y1, double x2, double y2, Color) override {
        revisar({x1, y1, x2, y2});
    }
    void trazarCaja(double x1, double y1, double x2, double y2, Color) override { revisar({x1, y1, x2, y2}); }
    void trazarCurva(const Curva& curva, Color) override {
        revisar({curva.x, curva.y, curva.ejeX(), curva.ejeY()});
    }

  private:
    void revisar(std::array<double, 4> valores) {
        ++trazos;
        exigir(std::all_of(valores.begin(), valores.end(), [](double valor) { return std::isfinite(valor); }),
               "strokes are finite");
    }
};

std::string_view cortar(std::string_view& texto, char signo) {
    const auto fin = std::min(texto.find(signo), texto.size());
    const std::string_view parte = texto.substr(0, fin);
    texto.remove_prefix(std::min(fin + 1, texto.size()));
    return parte;
}

std::array<std::size_t, 5> tamanos(const ListasGuion& listas) {
    return {listas.Lines.size(), listas.Rects.size(), listas.Circles.size(), listas.Arcs.size(),
            listas.Ellipses.size()};
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t cuantos) {
    std::string todo(datos, datos + cuantos);
    std::string_view guion = todo;
    std::string_view cabeza = cortar(guion, '\n');
    const auto siguiente = [&](double otro) { return realDeTexto(cortar(cabeza, ';')).value_or(otro); };

    Dibujo dibujo;
    Electrico& electrico = dibujo.Electrico.crear(1);
    electrico.Visible = true;
    electrico.Guion = guion;
    electrico.Angle = siguiente(0);
    electrico.RectX = siguiente(200);
    electrico.RectY = siguiente(200);
    dibujo.FactorZoomActual = siguiente(1);
    const double escala = siguiente(1);

    const ListasGuion listas = listasDe(electrico, dibujo.FactorZoomActual);
    const auto cuantas = tamanos(listas);
    exigir(cuantas == tamanos(leerGuion(guion, {})),
           "how a symbol lies changes nothing in what it is made of");
    const auto lineas = static_cast<std::size_t>(std::count(guion.begin(), guion.end(), '\n')) + 1;
    std::size_t piezas = 0;
    for (const std::size_t lista : cuantas)
        piezas += lista;
    exigir(piezas <= lineas, "a line makes one piece at most");

    Revisora superficie;
    DibujarElemento(salidaDe(dibujo, superficie, escala), dibujo, Clase::Electrico, 1);
    exigir(superficie.trazos <= 4 * piezas + 4, "no piece takes more than four strokes");
    return 0;
}
