#include "walls/esquina.h"

#include "model/numeros.h"
#include "walls/grupos.h"
#include "walls/pared.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <optional>

namespace bosquel {

namespace {

using Union = void (*)(Dibujo&);

/// An infinite line in 64 bits. An upright one has no finite `b` and no finite y.
struct Recta {
    explicit Recta(const Segmento& linea) : x1(linea.X1), y1(linea.Y1), x2(linea.X2), y2(linea.Y2) {}
    double y(double x) const { return b + dy * x / dx; }

    double x1, y1, x2, y2;
    double dx = x2 - x1, dy = y2 - y1;
    double b = y1 - (dy / dx) * x1;
};

/// The middle of a wall's line 1. It is taken before anything moves.
struct Medio {
    explicit Medio(const Pared& pared)
        : x(entre(pared.lineas[0].X1, pared.lineas[0].X2)),
          y(entre(pared.lineas[0].Y1, pared.lineas[0].Y2)) {}
    static double entre(double desde, double hasta) { return (hasta - desde) / 2 + desde; }

    double x, y;
};

struct Pareja {
    Pared& uno;
    Pared& dos;
    Medio mA{uno}, mB{dos};
};

/// Lines are numbered 1 to 4 as everywhere in the talk of walls.
void unirLineas(Dibujo& dibujo, std::size_t deUno, std::size_t deDos) {
    Pared* uno = dibujo.Pared.en(dibujo.ParedUno);
    Pared* dos = dibujo.Pared.en(dibujo.ParedDos);
    if (!uno || !dos) return;
    PuntoUnion(dibujo, uno->lineas[deUno - 1], dos->lineas[deDos - 1]);
    AlargarLinea(dibujo, uno->lineas[deUno - 1]);
    AlargarLinea(dibujo, dos->lineas[deDos - 1]);
}

/// Which end of an interval that rises from `desde` to `hasta`: the one that P has passed, or the nearer one.
/// P has passed an end only if it still has once it is rounded as the ends are.
Extremo extremoQueMueve(float desde, float hasta, double punto) {
    const float p = simple(punto);
    if (p < desde) return Extremo::inicial;
    if (p > hasta) return Extremo::final;
    return std::abs(hasta - punto) > std::abs(desde - punto) ? Extremo::inicial : Extremo::final;
}

Extremo extremoQueMueve(const Segmento& linea, double x, double y) {
    if (linea.X1 != linea.X2) return extremoQueMueve(linea.X1, linea.X2, x);
    if (linea.Y1 < linea.Y2) return extremoQueMueve(linea.Y1, linea.Y2, y);
    return extremoQueMueve(-linea.Y1, -linea.Y2, -y);  // upwards: the same, seen from the other side
}

int signo(double valor) {
    return valor > 0 ? 1 : valor < 0 ? -1 : 0;
}

// The pairing of two walls of which none is upright, by the sign of the product of their angles.

struct Eleccion {
    int signo = 0;
    std::optional<bool> algunoPositivo;  ///< nothing: it does not matter
    Union mismoLado = nullptr;
    Union deOtroModo = nullptr;
};

// clang-format off
constexpr std::array<Eleccion, 4> elecciones{{
    { 1, {},    Une1331, Une1133},
    {-1, {},    Une1133, Une1331},
    { 0, true,  Une1331, Une1133},
    { 0, false, Une1133, Une1331},
}};
// clang-format on

void emparejar(Dibujo& dibujo, int a, int b, bool mismoLado) {
    const bool positivo = a > 0 || b > 0;
    for (const Eleccion& fila : elecciones)
        if (fila.signo == signo(a * b) && fila.algunoPositivo.value_or(positivo) == positivo)
            return (mismoLado ? fila.mismoLado : fila.deOtroModo)(dibujo);
}

void unirInclinadas(Dibujo& dibujo, const Pareja& p) {
    const double x = dibujo.PuntoUnionX;
    const bool mismoLado = (x >= p.mA.x && x >= p.mB.x) || (x < p.mA.x && x < p.mB.x);
    emparejar(dibujo, p.uno.Angulo, p.dos.Angulo, mismoLado);
}

// The pairing of an upright wall V with another one O, by the quarter in which P lies.

constexpr int arriba = -1, abajo = 1, izquierda = -1, derecha = 1;

struct Cuarto {
    int y;  ///< of P from the middle of V
    int x;  ///< of P from the middle of O
    Union unir;
};

struct Eleccion90 {
    bool verticalEsUno;
    bool otroNegativo;
    std::array<Cuarto, 4> cuartos;
};

// clang-format off
constexpr std::array<Eleccion90, 4> elecciones90{{
    {true,  false, {{{abajo,  izquierda, Une1331}, {arriba, derecha,   Une1331}, {abajo, derecha, Une1133}, {arriba, izquierda, Une1133}}}},
    {true,  true,  {{{abajo,  izquierda, Une1133}, {arriba, derecha,   Une1133}, {abajo, derecha, Une1331}, {arriba, izquierda, Une1331}}}},
    {false, false, {{{arriba, derecha,   Une1331}, {abajo,  izquierda, Une1331}, {abajo, derecha, Une1133}, {arriba, izquierda, Une1133}}}},
    {false, true,  {{{arriba, derecha,   Une1133}, {abajo,  izquierda, Une1133}, {abajo, derecha, Une1331}, {arriba, izquierda, Une1331}}}},
}};
// clang-format on

bool esVertical(const Pared& pared) {
    return std::abs(pared.Angulo) == 90;
}

/// The four tests run one after the other: a pairing moves P, and a later test may find it in its quarter and
/// pair the lines again.
void Esquina90(Dibujo& dibujo, const Pareja& p) {
    const bool verticalEsUno = esVertical(p.uno);
    const bool otroNegativo = (verticalEsUno ? p.dos : p.uno).Angulo < 0;
    const double medioV = verticalEsUno ? p.mA.y : p.mB.y;
    const double medioO = verticalEsUno ? p.mB.x : p.mA.x;
    for (const Eleccion90& fila : elecciones90) {
        if (fila.verticalEsUno != verticalEsUno || fila.otroNegativo != otroNegativo) continue;
        for (const Cuarto& cuarto : fila.cuartos)
            if (signo(dibujo.PuntoUnionY - medioV) == cuarto.y &&
                signo(dibujo.PuntoUnionX - medioO) == cuarto.x)
                cuarto.unir(dibujo);
    }
}

/// The cap of the half in which the joint lies goes. Upright walls are halved in y, in their own direction.
void abrirTapa(const Dibujo& dibujo, Pared& pared, const Medio& medio) {
    bool enElInicio = dibujo.PuntoUnionX < medio.x;
    if (pared.Angulo == 90) enElInicio = dibujo.PuntoUnionY > medio.y;
    if (pared.Angulo == -90) enElInicio = dibujo.PuntoUnionY < medio.y;
    (enElInicio ? pared.Visible1 : pared.Visible2) = false;
}

void terminarEsquina(Dibujo& dibujo, Pareja& p) {
    for (const int indice : {dibujo.ParedUno, dibujo.ParedDos}) {
        ReconstruyePared(dibujo, indice);
        GuardaLineasPared(dibujo, indice);
        DeseleccionaPared(dibujo, indice);
    }
    AgruparParedes(dibujo);
    LongitudPared(dibujo, p.uno);
    LongitudPared(dibujo, p.dos);
}

}  // namespace

bool sonParalelas(const Pared& una, const Pared& otra) {
    return una.Angulo == otra.Angulo || std::abs(una.Angulo) + std::abs(otra.Angulo) == 180;
}

void PuntoUnion(Dibujo& dibujo, const Segmento& Linea1, const Segmento& Linea2) {
    const Recta r(Linea1);
    const Recta s(Linea2);
    if (r.dx == 0)
        dibujo.PuntoUnionX = r.x1;
    else if (s.dx == 0)
        dibujo.PuntoUnionX = s.x1;
    else
        asignar(dibujo.PuntoUnionX,
                ((r.b - s.b) * s.dx * r.dx) / ((r.dx * s.y2 - r.dx * s.y1) - (s.dx * r.y2 - s.dx * r.y1)));
    asignar(dibujo.PuntoUnionY, (r.dx == 0 ? s : r).y(dibujo.PuntoUnionX));
}

void ponerExtremo(Segmento& linea, Extremo extremo, double x, double y) {
    asignar(extremo == Extremo::inicial ? linea.X1 : linea.X2, x);
    asignar(extremo == Extremo::inicial ? linea.Y1 : linea.Y2, y);
}

void AlargarLinea(const Dibujo& dibujo, Segmento& QueLinea) {
    const Extremo extremo = extremoQueMueve(QueLinea, dibujo.PuntoUnionX, dibujo.PuntoUnionY);
    ponerExtremo(QueLinea, extremo, dibujo.PuntoUnionX, dibujo.PuntoUnionY);
}

void Une1331(Dibujo& dibujo) {
    unirLineas(dibujo, 1, 3);
    unirLineas(dibujo, 3, 1);
}

void Une1133(Dibujo& dibujo) {
    unirLineas(dibujo, 1, 1);
    unirLineas(dibujo, 3, 3);
}

bool EsquinaParedes(Dibujo& dibujo) {
    Pared* uno = dibujo.Pared.en(dibujo.ParedUno);
    Pared* dos = dibujo.Pared.en(dibujo.ParedDos);
    if (!uno || !dos) return true;
    if (sonParalelas(*uno, *dos)) return false;
    ensuciar(dibujo, *uno);
    ensuciar(dibujo, *dos);
    Pareja pareja{*uno, *dos};
    PuntoUnion(dibujo, uno->lineas[0], dos->lineas[0]);
    (esVertical(*uno) || esVertical(*dos) ? Esquina90 : unirInclinadas)(dibujo, pareja);
    abrirTapa(dibujo, *uno, pareja.mA);
    abrirTapa(dibujo, *dos, pareja.mB);
    terminarEsquina(dibujo, pareja);
    return true;
}

}  // namespace bosquel
