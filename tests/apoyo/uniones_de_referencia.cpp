#include "apoyo/uniones_de_referencia.h"

#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>

namespace bosquel::apoyo {

namespace {

float f(double valor) {
    return static_cast<float>(valor);
}

bool es90(int angulo) {
    return angulo == 90 || angulo == -90;
}

}  // namespace

PlanoDeReferencia::PlanoDeReferencia(const Dibujo& dibujo)
    : numPared(dibujo.Pared.contador),
      totalGrupos(dibujo.TotalGrupos),
      factor(dibujo.FactorZoomActual),
      px(dibujo.PuntoUnionX),
      py(dibujo.PuntoUnionY) {
    dibujo.Pared.recorrer([&](int i, const Pared& pared) {
        const Segmento& uno = pared.lineas[0];
        const Segmento& tres = pared.lineas[2];
        muros[i] = {.l1 = {uno.X1, uno.Y1, uno.X2, uno.Y2},
                    .l3 = {tres.X1, tres.Y1, tres.X2, tres.Y2},
                    .angulo = pared.Angulo,
                    .longitud = pared.Longitud,
                    .grupo = pared.NumeroGrupo,
                    .tapa1 = pared.Visible1,
                    .tapa2 = pared.Visible2,
                    .vista1 = pared.lineas[1].Visible,
                    .vista2 = pared.lineas[3].Visible};
    });
}

void PlanoDeReferencia::puntoUnion(const Linea& a, const Linea& b) {
    const double x1 = a.x1, y1 = a.y1, x2 = a.x2, y2 = a.y2;
    const double x3 = b.x1, y3 = b.y1, x4 = b.x2, y4 = b.y2;
    const double dx1 = x2 - x1, dy1 = y2 - y1, dx2 = x4 - x3, dy2 = y4 - y3;
    double b1 = 0, b2 = 0;
    if (dx1 != 0) b1 = y1 - (dy1 / dx1) * x1;
    if (dx2 != 0) b2 = y3 - (dy2 / dx2) * x3;
    if (dx1 == 0) {
        px = x1;
        if (dx2 != 0) py = b2 + dy2 * px / dx2;
        return;
    }
    if (dx2 == 0) {
        px = x3;
    } else {
        const double divisor = (dx1 * y4 - dx1 * y3) - (dx2 * y2 - dx2 * y1);
        if (divisor != 0) px = ((b1 - b2) * dx2 * dx1) / divisor;
    }
    py = b1 + dy1 * px / dx1;
}

void PlanoDeReferencia::alargar(Linea& l) const {
    bool inicio = false;
    if (l.x1 == l.x2) {
        const bool masCercaDelInicio = std::abs(l.y2 - py) > std::abs(l.y1 - py);
        if (l.y1 < l.y2) {
            if (f(py) < l.y1)
                inicio = true;
            else if (f(py) > l.y2)
                inicio = false;
            else
                inicio = masCercaDelInicio;
        } else {
            if (f(py) > l.y1)
                inicio = true;
            else if (f(py) < l.y2)
                inicio = false;
            else
                inicio = masCercaDelInicio;
        }
    } else {
        if (f(px) < l.x1)
            inicio = true;
        else if (f(px) > l.x2)
            inicio = false;
        else
            inicio = std::abs(l.x2 - px) > std::abs(l.x1 - px);
    }
    if (inicio) {
        l.x1 = f(px);
        l.y1 = f(py);
    } else {
        l.x2 = f(px);
        l.y2 = f(py);
    }
}

void PlanoDeReferencia::une1331() {
    pares.emplace_back("1331");
    puntoUnion(paredUno_->l1, paredDos_->l3);
    alargar(paredUno_->l1);
    alargar(paredDos_->l3);
    puntoUnion(paredUno_->l3, paredDos_->l1);
    alargar(paredUno_->l3);
    alargar(paredDos_->l1);
}

void PlanoDeReferencia::une1133() {
    pares.emplace_back("1133");
    puntoUnion(paredUno_->l1, paredDos_->l1);
    alargar(paredUno_->l1);
    alargar(paredDos_->l1);
    puntoUnion(paredUno_->l3, paredDos_->l3);
    alargar(paredUno_->l3);
    alargar(paredDos_->l3);
}

void PlanoDeReferencia::medirLongitud(Muro& m) const {
    const double coseno = std::cos((m.angulo * 3.14159265358979) / 180.0);
    const double corrida1 = std::abs(static_cast<double>(m.l1.x2) - m.l1.x1);
    const double corrida3 = std::abs(static_cast<double>(m.l3.x2) - m.l3.x1);
    if (m.angulo == 0)
        m.longitud = corrida1 / factor;
    else if (es90(m.angulo))
        m.longitud = std::abs(static_cast<double>(m.l1.y2) - m.l1.y1) / factor;
    else
        m.longitud = (corrida1 / coseno / factor + corrida3 / coseno / factor) / 2;
}

void PlanoDeReferencia::verTapas(Muro& m) {
    m.vista1 = m.tapa1;
    m.vista2 = m.tapa2;
}

void PlanoDeReferencia::agrupar(int uno, int dos) {
    const int g1 = muros[uno].grupo, g2 = muros[dos].grupo;
    if (g1 == 0 && g2 == 0) {
        ++totalGrupos;
        muros[uno].grupo = totalGrupos;
        muros[dos].grupo = totalGrupos;
    } else if (g1 == 0) {
        muros[uno].grupo = g2;
    } else if (g2 == 0) {
        muros[dos].grupo = g1;
    } else {
        const int viejo = g1 <= g2 ? g2 : g1;
        const int nuevo = g1 <= g2 ? g1 : g2;
        for (auto& [indice, muro] : muros)
            if (muro.grupo == viejo) muro.grupo = nuevo;
    }
}

std::string PlanoDeReferencia::esquina(int uno, int dos) {
    paredUno_ = &muros.at(uno);
    paredDos_ = &muros.at(dos);
    const int a = paredUno_->angulo, b = paredDos_->angulo;
    if (a == b || std::abs(a) + std::abs(b) == 180) return "paralelas";
    pares.clear();
    cuartos.clear();
    const Linea& a1 = paredUno_->l1;
    const Linea& b1 = paredDos_->l1;
    const double mA = (static_cast<double>(a1.x2) - a1.x1) / 2 + a1.x1;
    const double mB = (static_cast<double>(b1.x2) - b1.x1) / 2 + b1.x1;
    const double nA = (static_cast<double>(a1.y2) - a1.y1) / 2 + a1.y1;
    const double nB = (static_cast<double>(b1.y2) - b1.y1) / 2 + b1.y1;
    if (es90(a) || es90(b)) {
        esquina90();
    } else {
        puntoUnion(a1, b1);
        const bool mismoLado = (px >= mA && px >= mB) || (px < mA && px < mB);
        const long producto = static_cast<long>(a) * b;
        if (producto > 0 && mismoLado)
            une1331();
        else if (producto > 0)
            une1133();
        else if (producto < 0 && mismoLado)
            une1133();
        else if (producto < 0)
            une1331();
        else if ((a > 0 || b > 0) && mismoLado)
            une1331();
        else if (a > 0 || b > 0)
            une1133();
        else if (mismoLado)
            une1133();
        else
            une1331();
    }
    const auto tapa = [&](Muro& m, double mx, double my) {
        bool inicio = false;
        if (m.angulo == 90)
            inicio = py > my;
        else if (m.angulo == -90)
            inicio = py < my;
        else
            inicio = px < mx;
        if (inicio)
            m.tapa1 = false;
        else
            m.tapa2 = false;
    };
    tapa(*paredUno_, mA, nA);
    tapa(*paredDos_, mB, nB);
    agrupar(uno, dos);
    medirLongitud(*paredUno_);
    medirLongitud(*paredDos_);
    verTapas(*paredUno_);
    verTapas(*paredDos_);
    return "esquina";
}

void PlanoDeReferencia::esquina90() {
    const int a = paredUno_->angulo, b = paredDos_->angulo;
    const Linea a1 = paredUno_->l1, b1 = paredDos_->l1;
    const double mA = (static_cast<double>(a1.x2) - a1.x1) / 2 + a1.x1;
    const double mB = (static_cast<double>(b1.x2) - b1.x1) / 2 + b1.x1;
    const double nA = (static_cast<double>(a1.y2) - a1.y1) / 2 + a1.y1;
    const double nB = (static_cast<double>(b1.y2) - b1.y1) / 2 + b1.y1;
    puntoUnion(a1, b1);
    if (es90(a) && b >= 0) {
        enCuarto(1, py > nA && px < mB, true);
        enCuarto(2, py < nA && px > mB, true);
        enCuarto(3, py > nA && px > mB, false);
        enCuarto(4, py < nA && px < mB, false);
    } else if (es90(a)) {
        enCuarto(1, py > nA && px < mB, false);
        enCuarto(2, py < nA && px > mB, false);
        enCuarto(3, py > nA && px > mB, true);
        enCuarto(4, py < nA && px < mB, true);
    } else if (a >= 0) {
        enCuarto(1, py < nB && px > mA, true);
        enCuarto(2, py > nB && px < mA, true);
        enCuarto(3, py > nB && px > mA, false);
        enCuarto(4, py < nB && px < mA, false);
    } else {
        enCuarto(1, py < nB && px > mA, false);
        enCuarto(2, py > nB && px < mA, false);
        enCuarto(3, py > nB && px > mA, true);
        enCuarto(4, py < nB && px < mA, true);
    }
}

void PlanoDeReferencia::enCuarto(int cual, bool cumple, bool cruzada) {
    if (!cumple) return;
    cuartos.push_back(cual);
    if (cruzada)
        une1331();
    else
        une1133();
}

std::string PlanoDeReferencia::unir(int uno, int dos) {
    paredUno_ = &muros.at(uno);
    paredDos_ = &muros.at(dos);
    const int a = paredUno_->angulo, b = paredDos_->angulo;
    if (a == b || std::abs(a) + std::abs(b) == 180) return "paralelas";
    const Linea& a1 = paredUno_->l1;
    const Linea& b1 = paredDos_->l1;
    puntoUnion(a1, b1);
    if ((px < a1.x1 || px > a1.x2) && (px < b1.x1 || px > b1.x2)) return "fuera";
    if (a1.y1 < a1.y2 && (py <= a1.y1 || py >= a1.y2)) {
        if (b1.y1 < b1.y2) {
            if (py < b1.y1 || py > b1.y2) return "fuera";
        } else {
            if (py < b1.y2 || py > b1.y1) return "fuera";
        }
    }
    if (a1.y1 > a1.y2 && (py <= a1.y2 || py >= a1.y1)) {
        if (b1.y1 < b1.y2) {
            if (py < b1.y1 || py > b1.y2) return "fuera";
        } else {
            if (py < b1.y2 || py > b1.y1) return "fuera";
        }
    }
    agrupar(uno, dos);
    std::string procedimiento = elegir(a1, b1);
    ejecutar(procedimiento);
    return procedimiento;
}

std::string PlanoDeReferencia::elegir(const Linea& a1, const Linea& b1) {
    const int a = paredUno_->angulo, b = paredDos_->angulo;
    const bool posA = a > 0 && a < 90, negA = a < 0 && a > -90;
    const bool posB = b > 0 && b < 90, negB = b < 0 && b > -90;
    const bool yMasA = py > a1.y1 && py > a1.y2, yMenosA = py < a1.y1 && py < a1.y2;
    const bool yMasB = py > b1.y1 && py > b1.y2, yMenosB = py < b1.y1 && py < b1.y2;
    const bool xMasA = px > a1.x1 && px > a1.x2, xMenosA = px < a1.x1 && px < a1.x2;
    const bool xMasB = px > b1.x1 && px > b1.x2, xMenosB = px < b1.x1 && px < b1.x2;
    const bool yDesdeA = py >= a1.y1 && py >= a1.y2, yDesdeB = py >= b1.y1 && py >= b1.y2;
    const bool xDesdeA = px >= a1.x1 && px >= a1.x2, xDesdeB = px >= b1.x1 && px >= b1.x2;
    columna = 0;
    const auto primera = [this](bool t1, const char* p1, bool t2, const char* p2, bool t3, const char* p3,
                                bool t4, const char* p4, const char* siNo) {
        columna = t1 ? 1 : t2 ? 2 : t3 ? 3 : t4 ? 4 : 5;
        return std::string(t1 ? p1 : t2 ? p2 : t3 ? p3 : t4 ? p4 : siNo);
    };
    if (posA && b == 90) return primera(yMasB, "Up", yMenosB, "Down", xMasA, "Right", xMenosA, "Left", "XPP");
    if (posA && b == -90)
        return primera(yMasB, "270Up", yMenosB, "270Down", xMasA, "270Right", xMenosA, "270Left", "XPN");
    if (posA && b == 0) return primera(yMasA, "Up", yMenosA, "Down", xMenosB, "Left", xMasB, "Right", "XPP");
    if (posA && posB) return primera(xMasA, "Right", xMenosA, "Left", xMasB, "Right", xMenosB, "Left", "XPP");
    if (posA && negB)
        return primera(xMasA, "270Right", xMenosA, "270Left", xMasB, "270Up", xMenosB, "270Down", "XPN");
    if (a == 90 && b == 0)
        return primera(yDesdeA, "Up", yMenosA, "Down", xDesdeB, "Right", xMenosB, "Left", "XPP");
    if (a == 90 && posB)
        return primera(yDesdeA, "Up", yMenosA, "Down", xDesdeB, "Right", xMenosB, "Left", "XPP");
    if (a == 90 && negB)
        return primera(yMasA, "270Left", yMenosA, "270Right", xMasB, "270Up", xMenosB, "270Down", "XPN");
    if (a == 0 && b == 90)
        return primera(yDesdeB, "Up", yMenosB, "Down", xDesdeA, "Right", xMenosA, "Left", "XPP");
    if (a == 0 && b == -90)
        return primera(yMasB, "270Up", yMenosB, "270Down", xMasA, "270Right", xMenosA, "270Left", "XPN");
    if (a == 0 && posB) return primera(xMasA, "Right", xMenosA, "Left", xMasB, "Down", xMenosB, "Up", "XPP");
    if (a == 0 && negB)
        return primera(xMasA, "270Right", xMenosA, "270Left", xMasB, "270Up", xMenosB, "270Down", "XPN");
    if (negA && b == 90)
        return primera(yMasB, "270Left", yMenosB, "270Right", xMasA, "270Up", xMenosA, "270Down", "XPN");
    if (negA && b == -90)
        return primera(yMasB, "Left", yMenosB, "Right", xMasA, "Down", xMenosA, "Up", "XPN");
    if (negA && b == 0) return primera(yMasB, "Left", yMenosB, "Right", xMasA, "Down", xMenosA, "Up", "XPN");
    if (negA && posB)
        return primera(xMasA, "270Up", xMenosA, "270Down", xMasB, "270Right", xMenosB, "270Left", "XPN");
    return "";
}

void comparar(const Dibujo& dibujo, const PlanoDeReferencia& plano) {
    using Linea = PlanoDeReferencia::Linea;
    EXPECT_EQ(dibujo.Pared.contador, plano.numPared);
    EXPECT_EQ(dibujo.TotalGrupos, plano.totalGrupos);
    int cuantos = 0;
    dibujo.Pared.recorrer([&](int, const Pared&) { ++cuantos; });
    EXPECT_EQ(cuantos, static_cast<int>(plano.muros.size()));
    for (const auto& [indice, muro] : plano.muros) {
        SCOPED_TRACE("wall " + std::to_string(indice));
        const Pared* p = dibujo.Pared.en(indice);
        ASSERT_NE(p, nullptr);
        const Segmento& uno = p->lineas[0];
        const Segmento& tres = p->lineas[2];
        EXPECT_EQ((Linea{uno.X1, uno.Y1, uno.X2, uno.Y2}), muro.l1);
        EXPECT_EQ((Linea{tres.X1, tres.Y1, tres.X2, tres.Y2}), muro.l3);
        EXPECT_EQ((Linea{p->InicialX, p->InicialY, p->Linea1X2, p->Linea1Y2}), muro.l1);
        EXPECT_EQ((Linea{p->Linea3X1, p->Linea3Y1, p->Linea3X2, p->Linea3Y2}), muro.l3);
        EXPECT_EQ(p->lineas[1], (Segmento{muro.l1.x1, muro.l1.y1, muro.l3.x1, muro.l3.y1, muro.vista1}));
        EXPECT_EQ(p->lineas[3], (Segmento{muro.l1.x2, muro.l1.y2, muro.l3.x2, muro.l3.y2, muro.vista2}));
        EXPECT_EQ(p->Visible1, muro.tapa1);
        EXPECT_EQ(p->Visible2, muro.tapa2);
        EXPECT_EQ(p->Longitud, muro.longitud);
        EXPECT_EQ(p->Angulo, muro.angulo);
        EXPECT_EQ(p->NumeroGrupo, muro.grupo);
    }
}

}  // namespace bosquel::apoyo
