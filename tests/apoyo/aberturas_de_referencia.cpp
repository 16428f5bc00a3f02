#include "apoyo/aberturas_de_referencia.h"

#include <cmath>

namespace bosquel::apoyo {

namespace {

struct P {
    float x = 0, y = 0;
};

P paso(P p, int grados, double largo) {
    if (grados == 0) return {static_cast<float>(p.x + largo), p.y};
    const double coseno = std::cos(grados * 3.14159265358979 / 180.0);
    const double seno = std::sin(-grados * 3.14159265358979 / 180.0);
    return {static_cast<float>(p.x + largo * coseno), static_cast<float>(p.y + largo * seno)};
}

Segmento linea(P a, P b, bool visible = true) {
    return {a.x, a.y, b.x, b.y, visible};
}

P desde(const Segmento& s) {
    return {s.X1, s.Y1};
}
P hasta(const Segmento& s) {
    return {s.X2, s.Y2};
}

bool abajo(const Abertura& abertura) {
    return (abertura.Orientacion == "Abajo") != (abertura.Angulo < 0);
}

double distancia(const Abertura& abertura, const Pared& pared, double largo) {
    if (abertura.Alineacion == "Centro") return (pared.Longitud - largo) / 2;
    if (abertura.Alineacion == "Derecha") return pared.Longitud - largo - abertura.Distancia;
    return abertura.Distancia;
}

}  // namespace

VentanaDeReferencia referencia(const Ventana& v, const Pared& pared, double F) {
    const P cero = desde(pared.lineas[0]);
    const int a = v.Angulo;
    const int c = pared.Angulo < 0 ? a + 90 : a - 90;
    const double L = v.Longitud, T = v.AnchoTabique, M = v.AnchoMuro;
    const double W = pared.Tipo == "Muro" ? M : T;
    const double tW = pared.AnchoTabique, mW = pared.AnchoMuro;
    const double d = distancia(v, pared, L);
    const bool retirada = abajo(v) && v.Tipo == "Muro";
    const auto B = [&](double mm) { return paso(cero, a, mm * F); };
    const auto O = [&](P p) { return retirada ? paso(p, c, (mW - tW) * F) : p; };

    VentanaDeReferencia r;
    const auto jamba = [&](P p) { return linea(p, paso(p, c, W * F)); };
    const auto montante = [&](P p) { return linea(p, paso(p, c, T * F)); };
    r.lineas[0] = jamba(B(d));
    r.lineas[1] = jamba(B(d + L));
    r.lineas[2] = montante(O(B(d + tW)));
    r.lineas[3] = montante(O(B(d + L / 2 - tW)));
    r.lineas[4] = montante(O(B(d + L / 2)));
    r.lineas[5] = montante(O(B(d + L / 2 + tW)));
    r.lineas[6] = montante(O(B(d + L - tW)));
    const P fondo = paso(desde(r.lineas[0]), c, (retirada ? mW - tW : tW) * F);
    r.lineas[7] = linea(fondo, paso(fondo, a, L * F), v.Tipo == "Muro");

    r.Lado = static_cast<float>(200.0 * F);
    const P medio = O(B(d + L / 2));
    P esquina{static_cast<float>(medio.x - 100.0 * F), static_cast<float>(medio.y - 100.0 * F)};
    const double dx = static_cast<double>(r.lineas[0].X2) - r.lineas[0].X1;
    const double dy = static_cast<double>(r.lineas[0].Y2) - r.lineas[0].Y1;
    const int sentido = abajo(v) ? 1 : -1;
    esquina.x = static_cast<float>(esquina.x + 2 * sentido * dx);
    esquina.y = static_cast<float>(esquina.y + 2 * sentido * dy);
    if (abajo(v)) esquina = paso(esquina, c, (M - T) * F);
    r.Left = esquina.x;
    r.Top = esquina.y;
    return r;
}

PuertaDeReferencia referencia(const Puerta& q, const Pared& pared, double F) {
    const P cero = desde(pared.lineas[0]);
    const int a = q.Angulo;
    const int c = pared.Angulo < 0 ? a + 90 : a - 90;
    const int c2 = pared.Angulo < 0 ? a - 90 : a + 90;
    const bool doble = q.OrientacionLateral == "Doble", izquierda = q.OrientacionLateral == "Izquierda";
    const double H = q.Longitud;
    double tW = std::nearbyint(pared.AnchoTabique);
    if (tW > 32767 || tW < -32768) tW = 0;
    const double W = pared.Tipo == "Muro" ? q.AnchoMuro : q.AnchoTabique;
    const double G = H * (doble ? 2 : 1) + 2 * tW;
    const double d = distancia(q, pared, G);
    const auto B = [&](double mm) { return paso(cero, a, mm * F); };
    const auto cerco = [&](P p) { return linea(p, paso(p, c, W * F)); };
    const auto hoja = [&](P p) { return linea(p, paso(p, abajo(q) ? c : c2, H * F)); };

    PuertaDeReferencia r;
    auto& l = r.lineas;
    l[0] = cerco(B(d));
    l[1] = cerco(B(d + G));
    l[2] = cerco(B(d + tW));
    l[3] = cerco(paso(desde(l[1]), a, -tW * F));
    const Segmento& bisagra = izquierda ? l[2] : l[3];
    const Segmento& cierre = izquierda ? l[3] : l[2];
    l[4] = hoja(abajo(q) ? hasta(bisagra) : desde(bisagra));
    const double canto = (izquierda ? 60.0 : -60.0) * F;
    l[5] = linea(paso(desde(l[4]), a, canto), paso(hasta(l[4]), a, canto));
    l[6] = linea(hasta(l[4]), hasta(l[5]));
    const P encuentro = paso(abajo(q) ? hasta(l[0]) : desde(l[0]), a, G / 2 * F);
    l[7] = linea(hasta(l[5]), doble ? encuentro : abajo(q) ? hasta(cierre) : desde(cierre));
    if (doble) {
        l[8] = hoja(abajo(q) ? hasta(l[2]) : desde(l[2]));
        l[9] = linea(paso(desde(l[8]), a, 60), paso(hasta(l[8]), a, 60));
        l[10] = linea(hasta(l[8]), hasta(l[9]));
        l[11] = linea(hasta(l[9]), encuentro);
    }

    r.Lado = static_cast<float>(200.0 * F);
    if (doble) {
        const P centro = paso(hasta(l[7]), abajo(q) ? c : c2, H / 2);
        r.Left = static_cast<float>(centro.x - 100.0 * F);
        r.Top = static_cast<float>(centro.y - 100.0 * F);
    } else {
        const double x = (static_cast<double>(l[7].X2) - l[7].X1) / 2 + l[7].X1;
        const double y = (static_cast<double>(l[7].Y2) - l[7].Y1) / 2 + l[7].Y1;
        r.Left = static_cast<float>(x - 100.0 * F);
        r.Top = static_cast<float>(y - 100.0 * F);
    }
    return r;
}

}  // namespace bosquel::apoyo
