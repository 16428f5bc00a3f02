#include "surface/fila.h"

#include "furnishing/dibujar_elemento.h"
#include "surface/medidora.h"

#include <array>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

using namespace bosquel;

// Rows of like parts: seats, bowls, steps.

namespace {

/// Measures, and counts the strokes that it is given for it.
class Contadora : public Medidora {
  public:
    explicit Contadora(bool bastanLosExtremos) : bastan_(bastanLosExtremos) {}

    bool bastanLosExtremos() const override { return bastan_; }
    int trazos = 0;

  protected:
    void trazarLinea(double x1, double y1, double x2, double y2, Color color) override {
        ++trazos;
        Medidora::trazarLinea(x1, y1, x2, y2, color);
    }
    void trazarCurva(const Curva& curva, Color color) override {
        ++trazos;
        Medidora::trazarCurva(curva, color);
    }

  private:
    bool bastan_;
};

std::vector<int> fila(int desde, int hasta, bool bastanLosExtremos) {
    const Contadora superficie(bastanLosExtremos);
    std::vector<int> partes;
    porFila(superficie, desde, hasta, [&](int i) { partes.push_back(i); });
    return partes;
}

/// Seats, a sink and a stair with rows of so many parts, in this direction of each.
Dibujo conFilas(double partes, std::size_t hacia) {
    static constexpr std::array<const char*, 4> asientos{"N", "S", "E", "W"},
        fregaderos{"NL", "SR", "EU", "WD"};
    Dibujo dibujo;
    MblAsiento& asiento = dibujo.MblAsiento.crear(1);
    asiento.NumeroAsientos = partes;
    asiento.AnchoAsiento = 0.75;
    asiento.Orientacion = asientos[hacia];
    MblFregadero& fregadero = dibujo.MblFregadero.crear(1);
    fregadero.NumeroSenos = partes;
    fregadero.Orientacion = fregaderos[hacia];
    Escalera& escalera = dibujo.Escalera.crear(1);
    escalera.Stairs = 3;
    escalera.StepsStair.fill(entero32(partes).value_or(std::numeric_limits<std::int32_t>::max()));
    escalera.Angle = static_cast<std::int16_t>(37 * hacia);
    for (Situado* uno : {static_cast<Situado*>(&asiento), static_cast<Situado*>(&fregadero),
                         static_cast<Situado*>(&escalera)}) {
        uno->Left = 123.25F;
        uno->Visible = true;
    }
    return dibujo;
}

void dibujar(Contadora& superficie, const Dibujo& dibujo, Clase clase) {
    DibujarElemento(salidaDe(dibujo, superficie, 1), dibujo, clase, 1);
}

constexpr std::array clasesConFila{Clase::MblAsiento, Clase::MblFregadero, Clase::Escalera};

}  // namespace

TEST(Fila, SeDaEnteraYEnSuOrden) {
    EXPECT_EQ(fila(0, 3, false), (std::vector{0, 1, 2, 3}));
    EXPECT_EQ(fila(1, 1, false), std::vector{1});
    EXPECT_TRUE(fila(1, 0, false).empty());
}

TEST(Fila, DondeSoloCuentaLaExtensionBastanLosExtremos) {
    EXPECT_EQ(fila(0, 3, true), (std::vector{0, 3}));
    EXPECT_EQ(fila(0, 1, true), (std::vector{0, 1}));
    EXPECT_EQ(fila(2, 2, true), std::vector{2});
    EXPECT_TRUE(fila(1, 0, true).empty());
}

TEST(Fila, NoTieneMasPartesQueElMaximo) {
    const std::vector<int> partes = fila(1, std::numeric_limits<int>::max(), false);
    EXPECT_EQ(partes.size(), maximoEnFila);
    EXPECT_EQ(partes.back(), maximoEnFila);
    EXPECT_EQ(fila(1, std::numeric_limits<int>::max(), true), (std::vector{1, maximoEnFila}));
}

TEST(Fila, MedidaPorSusExtremosEsLaMismaQueMedidaEntera) {
    for (const Clase clase : clasesConFila)
        for (const double partes : {1.0, 2.0, 3.0, 700.0, 5000.0})
            for (std::size_t hacia = 0; hacia < 4; ++hacia) {
                const Dibujo dibujo = conFilas(partes, hacia);
                Contadora entera(false), extremos(true);
                dibujar(entera, dibujo, clase);
                dibujar(extremos, dibujo, clase);
                ASSERT_TRUE(entera.extension());
                EXPECT_EQ(*extremos.extension(), *entera.extension()) << partes << ' ' << hacia;
                EXPECT_GT(entera.trazos, std::min<int>(static_cast<int>(partes), maximoEnFila));
            }
}

TEST(Fila, MedirlaCuestaLoMismoPidaLoQuePidaUnArchivo) {
    for (const Clase clase : clasesConFila)
        for (const double partes : {3.0, 32767.0, 1e38}) {
            Contadora superficie(true);
            dibujar(superficie, conFilas(partes, 0), clase);
            EXPECT_LT(superficie.trazos, 30) << partes;
        }
}
