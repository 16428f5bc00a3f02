#include "stairs_symbols/escalera.h"

#include "surface/fila.h"
#include "surface/primitivas.h"

#include <algorithm>
#include <cmath>

namespace bosquel {

namespace {

class Trazado {
  public:
    Trazado(const Salida& salida, const Escalera& escalera)
        : salida_(salida),
          escalera_(escalera),
          p_(salida, escalera),
          angulo_(escalera.Angle),
          s_(escalera.Orientacion == "D" ? 1 : -1),
          P_(inicio()) {}

    void dibujar() const {
        tramoUno();
        if (escalera_.Stairs > 1) {
            ojo();
            if (escalera_.StepsStair[1] != 0) tramoDos();
        }
        if (escalera_.Stairs == 3) tramoTres();
        if (escalera_.RailingSide[0]) barandaUno();
        if (escalera_.RailingSide[1]) barandaDos();
        if (escalera_.RailingSide[2]) barandaTres();
    }

  private:
    PuntoSalida inicio() const {
        const double centro = p_.D / 2;
        const PuntoSalida medio{salida_.lugar(escalera_.Left) + centro,
                                salida_.lugar(escalera_.Top) + centro};
        const PuntoSalida esquina =
            polar(polar(medio, angulo_ - 90, -s_ * p_.C / 2), angulo_ + 180, p_.A / 2);
        return p_.r[0] != 0 ? traves(esquina, p_.r[0]) : esquina;
    }

    PuntoSalida aLoLargo(PuntoSalida desde, double distancia) const {
        return polar(desde, angulo_, distancia);
    }
    PuntoSalida traves(PuntoSalida desde, double distancia) const {
        return polar(desde, angulo_ + 90, -s_ * distancia);
    }
    /// The point reached from the start by `u` along and then by `v` across.
    PuntoSalida N(double u, double v) const { return traves(aLoLargo(P_, u), v); }

    void rectaLarga(PuntoSalida desde, double distancia) const {
        TrazarRecta(salida_.superficie, escalera_.LineColor, desde, {}, angulo_, distancia);
    }
    void rectaTraves(PuntoSalida desde, double distancia) const {
        TrazarRecta(salida_.superficie, escalera_.LineColor, desde, {}, angulo_ + 90, -s_ * distancia);
    }
    void recuadro(PuntoSalida desde, double largo, double ancho) const {
        TrazarRecuadro(salida_.superficie, escalera_.LineColor, desde, largo, s_ * ancho, angulo_);
    }
    /// Draws the strokes between the steps of a flight: one less than there are steps.
    template <class Paso>
    void peldanos(std::size_t tramo, Paso paso) const {
        porFila(salida_.superficie, 1, std::max(escalera_.StepsStair[tramo], 1) - 1, paso);
    }

    void tramoUno() const {
        recuadro(P_, p_.L[0], p_.W[0]);
        peldanos(0, [&](int i) { rectaTraves(aLoLargo(P_, i * p_.t), p_.W[0]); });
    }

    void ojo() const {
        recuadro(traves(P_, p_.W[0]), p_.L[0], p_.e);
        if (p_.e < 2 * p_.d) return;
        recuadro(aLoLargo(traves(P_, p_.W[0] + p_.d), p_.d), p_.L[0] - 2 * p_.d, p_.e - 2 * p_.d);
    }

    void tramoDos() const {
        recuadro(N(p_.L[0], p_.W[0]), p_.W[1], p_.L[1]);
        peldanos(1, [&](int i) { rectaLarga(N(p_.L[0], i * p_.t + p_.W[0]), p_.W[1]); });
    }

    void tramoTres() const {
        const double salto = p_.t * (static_cast<double>(escalera_.StepsStair[0]) - escalera_.StepsStair[2]);
        const PuntoSalida Q = aLoLargo(traves(P_, p_.W[0] + p_.e), salto);
        recuadro(Q, p_.L[2], p_.W[2]);
        peldanos(2, [&](int i) { rectaTraves(aLoLargo(Q, i * p_.t), p_.W[2]); });
    }

    void barandaUno() const {
        const auto& [r1, r2, r3] = p_.r;
        if (!escalera_.RailingSide[1]) {
            recuadro(P_, p_.A, -r1);
            return;
        }
        rectaLarga(P_, p_.A - r2);
        rectaTraves(P_, -r1);
        rectaLarga(N(0, -r1), p_.A);
    }

    void barandaDos() const {
        const auto& [r1, r2, r3] = p_.r;
        const PuntoSalida B = N(p_.A - r2, 0);
        if (!escalera_.RailingSide[0]) rectaLarga(B, r2);
        rectaTraves(B, p_.C - r1 - r3);
        rectaTraves(N(p_.A, -r1), p_.C);
        if (!escalera_.RailingSide[2]) rectaLarga(N(p_.A - r2, p_.C - r1), r2);
    }

    void barandaTres() const {
        const auto& [r1, r2, r3] = p_.r;
        const double T = p_.L[0] - p_.L[2];
        const PuntoSalida R = N(T, p_.C - r1 - r3);
        if (!escalera_.RailingSide[1]) {
            recuadro(R, p_.A - T, r3);
            return;
        }
        rectaLarga(R, p_.A - r2 - T);
        rectaTraves(R, r3);
        rectaLarga(N(T, p_.C - r1), p_.A - T);
    }

    const Salida& salida_;
    const Escalera& escalera_;
    PlantaEscalera p_;
    double angulo_;
    double s_;
    PuntoSalida P_;
};

}  // namespace

PlantaEscalera::PlantaEscalera(const Salida& salida, const Escalera& escalera)
    : d(salida.kEntero(50)), m(salida.kEntero(180)), t(salida.kEntero(escalera.WidthSteps)) {
    const std::array<bool, 3> hay{true, escalera.Stairs > 1, escalera.Stairs == 3};
    for (std::size_t i = 0; i < hay.size(); ++i) {
        r[i] = escalera.RailingSide[i] ? d : 0;
        L[i] = hay[i] ? salida.kEntero(static_cast<double>(escalera.WidthSteps) * escalera.StepsStair[i]) : 0;
        W[i] = salida.kEntero(escalera.WidthStair[i]);
    }
    e = hay[1] ? std::max<double>(escalera.StairEye, L[1]) : 0;
    A = L[0] + (hay[1] ? W[1] : 0) + r[1];
    const double giro = escalera.StepsStair[1] != 0 ? L[1] : e;
    C = W[0];
    if (hay[1]) C += giro;
    if (hay[2]) C += r[0] + W[2] + r[2];
    if (!hay[1]) C += r[2] + r[0];
    D = redondear(std::sqrt((A + m) * (A + m) + (C + m) * (C + m)));
}

void DibujarEscalera(const Salida& salida, const Escalera& escalera) {
    if (escalera.Orientacion != "D" && escalera.Orientacion != "R") return;
    Trazado(salida, escalera).dibujar();
}

}  // namespace bosquel
