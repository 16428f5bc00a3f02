#include "furnishing/figuras.h"
#include "surface/fila.h"

#include <algorithm>
#include <cmath>

namespace bosquel {

namespace {

/// How seats lie: their row along x or along y; their backs at the far end of the depth or at the near one.
struct Postura {
    std::string_view codigo;
    bool filaEnX, respaldoAlFondo;
};

constexpr std::array<Postura, 4> posturasAsiento{
    {{"W", false, true}, {"E", false, false}, {"S", true, false}, {"N", true, true}}};
constexpr std::array<Postura, 4> posturasSilla{
    {{"Oeste", false, true}, {"Este", false, false}, {"Sur", true, false}, {"Norte", true, true}}};

/// In depth and along the row, in surface units.
struct Par {
    double fondo = 0, fila = 0;
};

void caja(const Pluma& pluma, const Postura& postura, Par lugar, Par tamano) {
    if (postura.filaEnX)
        pluma.caja(lugar.fila, lugar.fondo, tamano.fila, tamano.fondo);
    else
        pluma.caja(lugar.fondo, lugar.fila, tamano.fondo, tamano.fila);
}

void asientos(const Pluma& pluma, const Postura& postura, const MblAsiento& asiento) {
    const double W = pluma.salida().kEntero(asiento.AnchoAsiento);
    const double F = pluma.salida().kEntero(asiento.FondoAsiento);
    const double B = pluma.salida().kEntero(190);
    const double n = asiento.NumeroAsientos;
    const bool alFondo = postura.respaldoAlFondo;
    const double brazo = alFondo ? B / 2 : B;
    caja(pluma, postura, {alFondo ? F : 0, B / 2}, {B, n * W + B});
    caja(pluma, postura, {brazo, 0}, {F - B / 2, B});
    caja(pluma, postura, {brazo, B + n * W}, {F - B / 2, B});
    porFila(pluma.salida().superficie, 0, ultimoDeFila(n), [&](int i) {
        caja(pluma, postura, {alFondo ? 0 : B, B + i * W}, {F, W});
    });
}

/// A seat and, a gap behind it, the strip of its back.
void silla(const Pluma& pluma, const Postura& postura, double lado) {
    const double A = pluma.salida().kEntero(lado);
    const double d = pluma.salida().kEntero(50);
    const double w = A - 2 * d;
    caja(pluma, postura, {postura.respaldoAlFondo ? 0 : 2 * d, 0}, {w, A});
    caja(pluma, postura, {postura.respaldoAlFondo ? w + d : 0, 0}, {d, A});
}

}  // namespace

int ultimoDeFila(double n) {
    return static_cast<int>(std::clamp(std::floor(n) - 1, 0.0, double{maximoEnFila}));
}

void figura(const Pluma& pluma, const MblAsiento& asiento) {
    for (const Postura& postura : posturasAsiento)
        if (postura.codigo == asiento.Orientacion) asientos(pluma, postura, asiento);
}

void figura(const Pluma& pluma, const MblSilla& una) {
    for (const Postura& postura : posturasSilla)
        if (postura.codigo == una.Orientacion) silla(pluma, postura, una.AnchoSilla);
}

void figura(const Pluma& pluma, const MblArmario& armario) {
    pluma.caja(0, 0, pluma.salida().kEntero(armario.DimX - 20), pluma.salida().kEntero(armario.DimY - 20));
}

}  // namespace bosquel
