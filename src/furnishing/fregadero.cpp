#include "furnishing/figuras.h"
#include "surface/fila.h"

namespace bosquel {

namespace {

/// How a sink lies. `largoEnY`: its long side runs down the sheet. `escurridorDelante`: the drainer lies at
/// the start of the long side and pushes the bowls along; otherwise past the last of them. `desague` is the
/// place of the drain across, in mm.
struct Postura {
    std::string_view codigo;
    bool largoEnY, escurridorDelante;
    double desague;
};

// clang-format off
constexpr std::array<Postura, 8> posturas{{
    {"WD", false, true,  350},
    {"WU", false, true,  150},
    {"ED", false, false, 350},
    {"EU", false, false, 150},
    {"SR", true,  false, 350},
    {"SL", true,  false, 150},
    {"NR", true,  true,  350},
    {"NL", true,  true,  150},
}};
// clang-format on

/// Draws in millimetres along and across the sink.
class Fregadero {
  public:
    Fregadero(const Pluma& pluma, const Postura& postura, const MblFregadero& fregadero)
        : pluma_(pluma),
          postura_(postura),
          senos_(fregadero.NumeroSenos),
          escurridor_(fregadero.Escurridor == 1 ? 1 : 0) {}

    void dibujar() const {
        cuadro(0, 0, 425 * senos_ + 300 * escurridor_ + 200 - 20, 490);
        if (postura_.escurridorDelante) escurridor(100);
        porFila(pluma_.salida().superficie, 0, ultimoDeFila(senos_), [&](int i) {
            seno(i * 425.0 + (postura_.escurridorDelante ? 350 * escurridor_ + 300 : 275));
        });
        if (!postura_.escurridorDelante) escurridor(425 * senos_ + 100);
    }

  private:
    void seno(double largo) const {
        circulo(largo, 250, 175);
        circulo(largo, postura_.desague, 15);
        circulo(largo, postura_.desague, 30);
    }

    void escurridor(double desde) const {
        if (escurridor_ == 0) return;
        cuadro(desde, 100, desde + 300, 400);
        for (const double ranura : {160, 220, 280, 340})
            pluma_.linea(punto(desde, ranura), punto(desde + 300, ranura));
    }

    PuntoMm punto(double largo, double traves) const {
        return postura_.largoEnY ? PuntoMm{traves, largo} : PuntoMm{largo, traves};
    }
    void cuadro(double largo1, double traves1, double largo2, double traves2) const {
        pluma_.cuadro(punto(largo1, traves1), punto(largo2, traves2));
    }
    void circulo(double largo, double traves, double radio) const {
        pluma_.circulo(punto(largo, traves), radio);
    }

    const Pluma& pluma_;
    const Postura& postura_;
    double senos_;
    int escurridor_;
};

}  // namespace

void figura(const Pluma& pluma, const MblFregadero& fregadero) {
    for (const Postura& postura : posturas)
        if (postura.codigo == fregadero.Orientacion) Fregadero(pluma, postura, fregadero).dibujar();
}

}  // namespace bosquel
