#include "apoyo/muestrario.h"
#include "surface/grabadora.h"

#include <cmath>
#include <gtest/gtest.h>
#include <map>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

constexpr Color linea = 0x332211;
constexpr Color fondo = 0xCCBBAA;

/// What the element should draw, worked out step by step.
class Esperado {
  public:
    Esperado(double factor, double escala)
        : X(std::nearbyint(static_cast<double>(1234.56F) * escala)),
          Y(std::nearbyint(789.5 * escala)),
          e(factor * escala) {
        hoja_.FillStyle(Relleno::solido);
        hoja_.FillColor(fondo);
    }

    double k(double mm) const { return std::nearbyint(mm * e); }
    void caja(double x, double y, double ancho, double alto) {
        hoja_.Caja(X + x, Y + y, X + x + ancho, Y + y + alto, linea);
    }
    void cuadro(double x1, double y1, double x2, double y2) {
        hoja_.Caja(X + x1 * e, Y + y1 * e, X + x2 * e, Y + y2 * e, linea);
    }
    void recta(double x1, double y1, double x2, double y2) {
        hoja_.Line(X + x1 * e, Y + y1 * e, X + x2 * e, Y + y2 * e, linea);
    }
    void circulo(double x, double y, double radio) { hoja_.Circle({X + x * e, Y + y * e, radio * e}, linea); }

    std::vector<std::string> trazos() {
        hoja_.FillStyle(Relleno::transparente);
        hoja_.FillColor(0);
        return hoja_.trazos();
    }

    double X, Y, e;

  private:
    Grabadora hoja_;
};

/// Compares every sample of a kind, at every scale, with what `paso` draws for it.
template <class T, class Paso>
void comparar(Clase clase, Coleccion<T> Dibujo::*coleccion, Paso paso) {
    for (const Muestra& muestra : muestrario()) {
        if (muestra.clase != clase) continue;
        for (const double factor : {0.5, 1.0, 1.5})
            for (const double escala : {1.0, escalaDeSalida}) {
                const Dibujo dibujo = dibujoDe(muestra, factor);
                Esperado esperado(factor, escala);
                paso(esperado, *(dibujo.*coleccion).en(1));
                EXPECT_EQ(trazosDe(dibujo, clase, escala), esperado.trazos())
                    << datos(clase).nombre << " " << muestra.titulo << " " << factor << " " << escala;
            }
    }
}

/// The chairs of each code in their order; 1 and 2 are those of a pair.
const std::map<std::string, std::vector<std::string>> sillas{
    {"0", {}},
    {"1L", {"L"}},
    {"1R", {"R"}},
    {"1U", {"U"}},
    {"1D", {"D"}},
    {"2UD", {"U", "D"}},
    {"2RL", {"L", "R"}},
    {"2UU", {"U1", "U2"}},
    {"2DD", {"D1", "D2"}},
    {"2LL", {"L1", "L2"}},
    {"2RR", {"R1", "R2"}},
    {"3RUL", {"L", "R", "U"}},
    {"3ULD", {"L", "U", "D"}},
    {"3LDR", {"L", "D", "R"}},
    {"3DRU", {"U", "D", "R"}},
    {"4RLUD", {"L", "R", "U", "D"}},
    {"4RRLL", {"L1", "L2", "R1", "R2"}},
    {"4UUDD", {"U1", "U2", "D1", "D2"}},
    {"5URRLL", {"L1", "L2", "R1", "R2", "U"}},
    {"5DRRLL", {"L1", "L2", "R1", "R2", "D"}},
    {"5LUUDD", {"U1", "U2", "D1", "D2", "L"}},
    {"5RUUDD", {"U1", "U2", "D1", "D2", "R"}},
    {"6URRLLD", {"L1", "L2", "R1", "R2", "U", "D"}},
    {"6LUUDDR", {"U1", "U2", "D1", "D2", "L", "R"}},
};

void mesa(Esperado& h, const MblMesa& m) {
    const double MX = h.k(m.MesaDimX - 20);
    const double MY = h.k(m.MesaDimY - 20);
    const double AS = h.k(m.AnchoSilla);
    const double HS = h.k(m.AltoSilla);
    const double gx = std::nearbyint((MX - 2 * AS) / 4);
    const double gy = std::nearbyint((MY - 2 * AS) / 4);
    const double tx = m.ColocacionSillas.find('L') == std::string::npos ? 0 : HS;
    const double ty = m.ColocacionSillas.find('U') == std::string::npos ? 0 : HS;
    h.caja(tx, ty, MX, MY);
    for (const std::string& silla : sillas.at(m.ColocacionSillas)) {
        if (silla == "U") h.caja(tx + (MX - AS) / 2, 0, AS, HS);
        if (silla == "D") h.caja(tx + (MX - AS) / 2, ty + MY, AS, HS);
        if (silla == "L") h.caja(0, ty + (MY - AS) / 2, HS, AS);
        if (silla == "R") h.caja(tx + MX, ty + (MY - AS) / 2, HS, AS);
        if (silla == "U1") h.caja(tx + gx, 0, AS, HS);
        if (silla == "U2") h.caja(tx + 3 * gx + AS, 0, AS, HS);
        if (silla == "D1") h.caja(tx + gx, ty + MY, AS, HS);
        if (silla == "D2") h.caja(tx + 3 * gx + AS, ty + MY, AS, HS);
        if (silla == "L1") h.caja(0, ty + gy, HS, AS);
        if (silla == "L2") h.caja(0, ty + 3 * gy + AS, HS, AS);
        if (silla == "R1") h.caja(tx + MX, ty + gy, HS, AS);
        if (silla == "R2") h.caja(tx + MX, ty + 3 * gy + AS, HS, AS);
    }
}

void silla(Esperado& h, const MblSilla& s) {
    const double A = h.k(s.AnchoSilla);
    const double d = h.k(50);
    const double w = A - 2 * d;
    if (s.Orientacion == "Norte") h.caja(0, 0, A, w), h.caja(0, w + d, A, d);
    if (s.Orientacion == "Sur") h.caja(0, 2 * d, A, w), h.caja(0, 0, A, d);
    if (s.Orientacion == "Este") h.caja(2 * d, 0, w, A), h.caja(0, 0, d, A);
    if (s.Orientacion == "Oeste") h.caja(0, 0, w, A), h.caja(w + d, 0, d, A);
}

void asiento(Esperado& h, const MblAsiento& s) {
    const double W = h.k(s.AnchoAsiento);
    const double F = h.k(s.FondoAsiento);
    const double B = h.k(190);
    const double n = s.NumeroAsientos;
    const char hacia = s.Orientacion.front();
    if (hacia == 'W') {
        h.caja(F, B / 2, B, n * W + B);
        h.caja(B / 2, 0, F - B / 2, B);
        h.caja(B / 2, B + n * W, F - B / 2, B);
    } else if (hacia == 'E') {
        h.caja(0, B / 2, B, n * W + B);
        h.caja(B, 0, F - B / 2, B);
        h.caja(B, B + n * W, F - B / 2, B);
    } else if (hacia == 'S') {
        h.caja(B / 2, 0, n * W + B, B);
        h.caja(0, B, B, F - B / 2);
        h.caja(B + n * W, B, B, F - B / 2);
    } else {
        h.caja(B / 2, F, n * W + B, B);
        h.caja(0, B / 2, B, F - B / 2);
        h.caja(B + n * W, B / 2, B, F - B / 2);
    }
    for (int i = 0; i < n; ++i) {
        if (hacia == 'W') h.caja(0, B + i * W, F, W);
        if (hacia == 'E') h.caja(B, B + i * W, F, W);
        if (hacia == 'S') h.caja(B + i * W, B, W, F);
        if (hacia == 'N') h.caja(B + i * W, 0, W, F);
    }
}

/// One that lies along x; the others are the same with x and y exchanged.
struct Eje {
    Esperado& h;
    bool enY;
    void cuadro(double x1, double y1, double x2, double y2) {
        enY ? h.cuadro(y1, x1, y2, x2) : h.cuadro(x1, y1, x2, y2);
    }
    void recta(double x1, double y1, double x2, double y2) {
        enY ? h.recta(y1, x1, y2, x2) : h.recta(x1, y1, x2, y2);
    }
    void circulo(double x, double y, double radio) { enY ? h.circulo(y, x, radio) : h.circulo(x, y, radio); }
};

void fregadero(Esperado& h, const MblFregadero& f) {
    const std::string& codigo = f.Orientacion;
    const double n = f.NumeroSenos;
    const double e = f.Escurridor;
    Eje eje{h, codigo[0] == 'N' || codigo[0] == 'S'};
    const bool delante = codigo[0] == 'W' || codigo[0] == 'N';
    const double desague = codigo[1] == 'D' || codigo[1] == 'R' ? 350 : 150;
    eje.cuadro(0, 0, 425 * n + 300 * e + 180, 490);
    const auto escurridor = [&](double x) {
        if (e == 0) return;
        eje.cuadro(x, 100, x + 300, 400);
        for (int g = 160; g <= 340; g += 60)
            eje.recta(x, g, x + 300, g);
    };
    if (delante) escurridor(100);
    for (int i = 0; i < n; ++i) {
        const double x = (delante ? 350 * e + 300 : 275) + i * 425;
        eje.circulo(x, 250, 175);
        eje.circulo(x, desague, 15);
        eje.circulo(x, desague, 30);
    }
    if (!delante) escurridor(425 * n + 100);
}

}  // namespace

TEST(FigurasCalculadas, MesaConTodasSusColocaciones) {
    comparar(Clase::MblMesa, &Dibujo::MblMesa, mesa);
}

TEST(FigurasCalculadas, SillaHaciaLosCuatroLados) {
    comparar(Clase::MblSilla, &Dibujo::MblSilla, silla);
}

TEST(FigurasCalculadas, AsientoDeUnoACuatro) {
    comparar(Clase::MblAsiento, &Dibujo::MblAsiento, asiento);
}

TEST(FigurasCalculadas, FregaderoConTodosSusSenos) {
    comparar(Clase::MblFregadero, &Dibujo::MblFregadero, fregadero);
}

TEST(FigurasCalculadas, ArmarioVeinteMilimetrosMenor) {
    comparar(Clase::MblArmario, &Dibujo::MblArmario, [](Esperado& h, const MblArmario& armario) {
        h.caja(0, 0, h.k(armario.DimX - 20), h.k(armario.DimY - 20));
    });
}
