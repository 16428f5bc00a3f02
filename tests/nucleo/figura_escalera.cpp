#include "apoyo/muestrario.h"
#include "furnishing/dibujar_elemento.h"
#include "furnishing/recuadro.h"
#include "stairs_symbols/escalera.h"
#include "surface/fila.h"
#include "surface/grabadora.h"
#include "surface/primitivas.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <utility>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

Dibujo conEscalera(const Escalera& escalera, double factor = 1) {
    Dibujo dibujo;
    dibujo.FactorZoomActual = factor;
    dibujo.Escalera.crear(1) = escalera;
    dibujo.Escalera.en(1)->Visible = true;
    return dibujo;
}

/// The stair worked out in one go: every stroke by its ends.
class Cuenta {
  public:
    Cuenta(Escalera e, double factor, double escala)
        : e_(std::move(e)), k_(factor * escala), escala_(escala) {}

    std::vector<std::string> trazos() {
        const double d = k(50);
        const double m = k(180);
        const bool dos = e_.Stairs > 1;
        const bool tres = e_.Stairs == 3;
        const double r1 = e_.RailingSide[0] ? d : 0;
        const double r2 = e_.RailingSide[1] ? d : 0;
        const double r3 = e_.RailingSide[2] ? d : 0;
        const double L1 = k(e_.WidthSteps * e_.StepsStair[0]);
        const double L2 = dos ? k(e_.WidthSteps * e_.StepsStair[1]) : 0;
        const double L3 = tres ? k(e_.WidthSteps * e_.StepsStair[2]) : 0;
        const double W1 = k(e_.WidthStair[0]);
        const double W2 = k(e_.WidthStair[1]);
        const double W3 = k(e_.WidthStair[2]);
        const double t = k(e_.WidthSteps);
        const double eye = dos ? std::max<double>(e_.StairEye, L2) : 0;
        const double A = L1 + (dos ? W2 : 0) + r2;
        const double G = !dos ? 0 : e_.StepsStair[1] != 0 ? L2 : eye;
        const double S = tres ? r1 + W3 + r3 : dos ? 0 : r3 + r1;
        const double C = W1 + G + S;
        const double D = std::nearbyint(std::sqrt((A + m) * (A + m) + (C + m) * (C + m)));
        s_ = e_.Orientacion == "D" ? 1 : -1;
        PuntoSalida P{std::nearbyint(e_.Left * escala_) + D / 2, std::nearbyint(e_.Top * escala_) + D / 2};
        P = polar(P, e_.Angle - 90, s_ > 0 ? -C / 2 : C / 2);
        P = polar(P, e_.Angle + 180, A / 2);
        if (r1 != 0) P = polar(P, e_.Angle + 90, s_ > 0 ? -r1 : r1);
        P_ = P;

        cuadro(P, L1, W1);
        for (int i = 1; i <= e_.StepsStair[0] - 1; ++i)
            raya(u(P, i * t), 90, W1);
        if (dos) {
            cuadro(v(P, W1), L1, eye);
            if (eye >= 2 * d) cuadro(u(v(P, W1 + d), d), L1 - 2 * d, eye - 2 * d);
            if (e_.StepsStair[1] != 0) {
                cuadro(N(L1, W1), W2, L2);
                for (int i = 1; i <= e_.StepsStair[1] - 1; ++i)
                    raya(N(L1, i * t + W1), 0, W2);
            }
        }
        if (tres) {
            const PuntoSalida Q = u(v(P, W1 + eye), t * (e_.StepsStair[0] - e_.StepsStair[2]));
            cuadro(Q, L3, W3);
            for (int i = 1; i <= e_.StepsStair[2] - 1; ++i)
                raya(u(Q, i * t), 90, W3);
        }
        const bool b1 = e_.RailingSide[0];
        const bool b2 = e_.RailingSide[1];
        const bool b3 = e_.RailingSide[2];
        const double T = L1 - L3;
        if (b1 && !b2) cuadro(P, A, -r1);
        if (b1 && b2) raya(P, 0, A - r2), raya(P, 90, -r1), raya(N(0, -r1), 0, A);
        if (b2 && !b1) raya(N(A - r2, 0), 0, r2);
        if (b2) raya(N(A - r2, 0), 90, C - r1 - r3), raya(N(A, -r1), 90, C);
        if (b2 && !b3) raya(N(A - r2, C - r1), 0, r2);
        const PuntoSalida R = N(T, C - r1 - r3);
        if (b3 && !b2) cuadro(R, A - T, r3);
        if (b3 && b2) raya(R, 0, A - r2 - T), raya(R, 90, r3), raya(N(T, C - r1), 0, A - T);
        return hoja_.trazos();
    }

  private:
    double k(double mm) const { return std::nearbyint(mm * k_); }
    PuntoSalida u(PuntoSalida p, double cuanto) const { return polar(p, e_.Angle, cuanto); }
    PuntoSalida v(PuntoSalida p, double cuanto) const { return polar(p, e_.Angle + 90, -s_ * cuanto); }
    PuntoSalida N(double a, double b) const { return v(u(P_, a), b); }
    void cuadro(PuntoSalida p, double largo, double ancho) {
        TrazarRecuadro(hoja_, e_.LineColor, p, largo, s_ * ancho, e_.Angle);
    }
    void raya(PuntoSalida p, int giro, double cuanto) {
        const PuntoSalida fin = giro == 0 ? u(p, cuanto) : v(p, cuanto);
        hoja_.Line(p.x, p.y, fin.x, fin.y, e_.LineColor);
    }

    Escalera e_;
    double k_, escala_;
    double s_ = 1;
    PuntoSalida P_;
    Grabadora hoja_;
};

}  // namespace

TEST(FiguraEscalera, TodosLosTramosBarandasManosYAngulosSonLosDeLaCuenta) {
    for (const char* mano : {"D", "R"})
        for (int tramos = 1; tramos <= 3; ++tramos)
            for (unsigned barandas = 0; barandas < 8; ++barandas)
                for (const int angulo : {0, 15, 90, 180, 217, 270, -40})
                    for (const int medio : {0, 1, 5})
                        for (const double factor : {0.5, 1.0, 1.5})
                            for (const double escala : {1.0, escalaDeSalida}) {
                                Escalera una;
                                una.Left = 2100.25F;
                                una.Top = 900.5F;
                                una.Stairs = tramos;
                                una.StairEye = medio == 5 ? 2000 : 60;
                                una.WidthStair = {900, 1000, 1100};
                                una.StepsStair = {8, medio, 6};
                                una.RailingSide = {(barandas & 1U) != 0, (barandas & 2U) != 0,
                                                   (barandas & 4U) != 0};
                                una.Angle = static_cast<std::int16_t>(angulo);
                                una.Orientacion = mano;
                                ASSERT_EQ(trazosDe(conEscalera(una, factor), Clase::Escalera, escala),
                                          Cuenta(una, factor, escala).trazos())
                                    << mano << tramos << " " << barandas << " " << angulo << " " << medio;
                            }
}

TEST(FiguraEscalera, UnSoloTramoEsUnRectanguloConPeldanosDigaLoQueDigaLoDemas) {
    Escalera una;
    una.StairEye = 900;
    EXPECT_EQ(trazosDe(conEscalera(una), Clase::Escalera).size(), 4U + 7U);
    una.StepsStair[0] = 1;
    EXPECT_EQ(trazosDe(conEscalera(una), Clase::Escalera).size(), 4U);
}

TEST(FiguraEscalera, UnOjoEstrechoNoTieneRecuadroInterior) {
    Escalera una;
    una.Stairs = 2;
    una.StepsStair = {1, 0, 0};
    una.StairEye = 99;
    EXPECT_EQ(trazosDe(conEscalera(una), Clase::Escalera).size(), 8U);
    una.StairEye = 100;
    EXPECT_EQ(trazosDe(conEscalera(una), Clase::Escalera).size(), 12U);
}

TEST(FiguraEscalera, GirarlaNoMueveSuCuadro) {
    Escalera una;
    una.Stairs = 3;
    una.Left = 500;
    una.Top = 700;
    const auto recta = recuadroDe(conEscalera(una), Clase::Escalera, 1);
    ASSERT_TRUE(recta);
    EXPECT_EQ(recta->Width, recta->Height);
    for (int angulo = 0; angulo < 360; angulo += 15) {
        una.Angle = static_cast<std::int16_t>(angulo);
        EXPECT_EQ(recuadroDe(conEscalera(una), Clase::Escalera, 1), recta);
        const auto extension = extensionDe(conEscalera(una), Clase::Escalera, 1);
        ASSERT_TRUE(extension);
        EXPECT_EQ(unir(*extension, *recta), *recta) << angulo;
    }
}

TEST(FiguraEscalera, OtraManoNoDibujaNada) {
    for (const char* mano : {"", "d", "r", "L", "DD"}) {
        Escalera una;
        una.Orientacion = mano;
        EXPECT_TRUE(trazosDe(conEscalera(una), Clase::Escalera).empty()) << mano;
    }
}

TEST(FiguraEscalera, UnNumeroDePeldanosSinSentidoTermina) {
    Escalera una;
    una.StepsStair = {2147483647, -3, 0};
    una.WidthSteps = 1;
    EXPECT_EQ(trazosDe(conEscalera(una), Clase::Escalera).size(), 4U + maximoEnFila);
}
