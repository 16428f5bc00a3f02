#include "walls/union.h"

#include "walls/cortes.h"
#include "walls/esquina.h"
#include "walls/grupos.h"

#include <algorithm>
#include <array>
#include <optional>

namespace bosquel {

namespace {

enum class ClaseAngulo : std::uint8_t { Pos, Mas90, Cero, Menos90, Neg };
enum class Eje : std::uint8_t { x, y };
enum class Relacion : std::uint8_t { mayor, alMenos, menor };
enum class Lado : std::uint8_t { A, B };  ///< line 1 of `ParedUno`, of `ParedDos`

/// Where P lies from both ends of a first long side.
struct Prueba {
    Eje eje;
    Relacion relacion;
    Lado lado;
    Corte corte;
};

struct Caso {
    ClaseAngulo a, b;
    std::array<Prueba, 4> pruebas;  ///< the first that holds decides
    Corte siNo;
};

/// The pairs of angles in which nothing is cut stand here too: they are no oversight.
constexpr std::array<Caso, 20> casos = [] {
    using enum ClaseAngulo;
    using enum Eje;
    using enum Relacion;
    using enum Lado;
    using enum Corte;
    constexpr std::array<Prueba, 4> ninguna{};
    // clang-format off
    return std::array<Caso, 20>{{
        // a      b        test 1                       test 2                       test 3                       test 4                          else
        {Pos,     Mas90,   {{{y, mayor,   B, Up},         {y, menor,   B, Down},       {x, mayor,   A, Right},      {x, menor,   A, Left}}},      XPP},
        {Pos,     Menos90, {{{y, mayor,   B, T270Up},     {y, menor,   B, T270Down},   {x, mayor,   A, T270Right},  {x, menor,   A, T270Left}}},  XPN},
        {Pos,     Cero,    {{{y, mayor,   A, Up},         {y, menor,   A, Down},       {x, menor,   B, Left},       {x, mayor,   B, Right}}},     XPP},
        {Pos,     Pos,     {{{x, mayor,   A, Right},      {x, menor,   A, Left},       {x, mayor,   B, Right},      {x, menor,   B, Left}}},      XPP},
        {Pos,     Neg,     {{{x, mayor,   A, T270Right},  {x, menor,   A, T270Left},   {x, mayor,   B, T270Up},     {x, menor,   B, T270Down}}},  XPN},
        {Mas90,   Cero,    {{{y, alMenos, A, Up},         {y, menor,   A, Down},       {x, alMenos, B, Right},      {x, menor,   B, Left}}},      XPP},
        {Mas90,   Pos,     {{{y, alMenos, A, Up},         {y, menor,   A, Down},       {x, alMenos, B, Right},      {x, menor,   B, Left}}},      XPP},
        {Mas90,   Neg,     {{{y, mayor,   A, T270Left},   {y, menor,   A, T270Right},  {x, mayor,   B, T270Up},     {x, menor,   B, T270Down}}},  XPN},
        {Cero,    Mas90,   {{{y, alMenos, B, Up},         {y, menor,   B, Down},       {x, alMenos, A, Right},      {x, menor,   A, Left}}},      XPP},
        {Cero,    Menos90, {{{y, mayor,   B, T270Up},     {y, menor,   B, T270Down},   {x, mayor,   A, T270Right},  {x, menor,   A, T270Left}}},  XPN},
        {Cero,    Pos,     {{{x, mayor,   A, Right},      {x, menor,   A, Left},       {x, mayor,   B, Down},       {x, menor,   B, Up}}},        XPP},
        {Cero,    Neg,     {{{x, mayor,   A, T270Right},  {x, menor,   A, T270Left},   {x, mayor,   B, T270Up},     {x, menor,   B, T270Down}}},  XPN},
        {Neg,     Mas90,   {{{y, mayor,   B, T270Left},   {y, menor,   B, T270Right},  {x, mayor,   A, T270Up},     {x, menor,   A, T270Down}}},  XPN},
        {Neg,     Menos90, {{{y, mayor,   B, Left},       {y, menor,   B, Right},      {x, mayor,   A, Down},       {x, menor,   A, Up}}},        XPN},
        {Neg,     Cero,    {{{y, mayor,   B, Left},       {y, menor,   B, Right},      {x, mayor,   A, Down},       {x, menor,   A, Up}}},        XPN},
        {Neg,     Pos,     {{{x, mayor,   A, T270Up},     {x, menor,   A, T270Down},   {x, mayor,   B, T270Right},  {x, menor,   B, T270Left}}},  XPN},
        {Neg,     Neg,     ninguna,                                                                                                               nada},
        {Menos90, Cero,    ninguna,                                                                                                               nada},
        {Menos90, Pos,     ninguna,                                                                                                               nada},
        {Menos90, Neg,     ninguna,                                                                                                               nada},
    }};
    // clang-format on
}();

/// Nothing for an angle outside of -90 to 90 degrees.
std::optional<ClaseAngulo> clase(int angulo) {
    if (angulo < -90 || angulo > 90) return std::nullopt;
    if (angulo == 90) return ClaseAngulo::Mas90;
    if (angulo == -90) return ClaseAngulo::Menos90;
    if (angulo == 0) return ClaseAngulo::Cero;
    return angulo > 0 ? ClaseAngulo::Pos : ClaseAngulo::Neg;
}

bool cumple(Relacion relacion, double punto, double extremo) {
    if (relacion == Relacion::mayor) return punto > extremo;
    if (relacion == Relacion::alMenos) return punto >= extremo;
    return punto < extremo;
}

bool cumple(const Prueba& prueba, const Dibujo& dibujo, const Segmento& A, const Segmento& B) {
    const Segmento& s = prueba.lado == Lado::A ? A : B;
    if (prueba.eje == Eje::x)
        return cumple(prueba.relacion, dibujo.PuntoUnionX, s.X1) &&
               cumple(prueba.relacion, dibujo.PuntoUnionX, s.X2);
    return cumple(prueba.relacion, dibujo.PuntoUnionY, s.Y1) &&
           cumple(prueba.relacion, dibujo.PuntoUnionY, s.Y2);
}

Corte elegirCorte(const Dibujo& dibujo, const Pared& uno, const Pared& dos) {
    const auto a = clase(uno.Angulo);
    const auto b = clase(dos.Angulo);
    const auto caso = std::find_if(casos.begin(), casos.end(),
                                   [&](const Caso& fila) { return fila.a == a && fila.b == b; });
    if (caso == casos.end()) return Corte::nada;
    for (const Prueba& prueba : caso->pruebas)
        if (cumple(prueba, dibujo, uno.lineas[0], dos.lineas[0])) return prueba.corte;
    return caso->siNo;
}

bool fueraEnX(double x, const Segmento& linea) {
    return x < linea.X1 || x > linea.X2;
}

/// True only where the wall chosen first has an extent in y: a level one leaves the question to x.
bool fueraEnY(double y, const Segmento& A, const Segmento& B) {
    const auto [altoA, bajoA] = std::minmax(A.Y1, A.Y2);
    const auto [altoB, bajoB] = std::minmax(B.Y1, B.Y2);
    return altoA != bajoA && (y <= altoA || y >= bajoA) && (y < altoB || y > bajoB);
}

}  // namespace

Encuentro encuentroDeParedes(Dibujo& dibujo) {
    const Pared* uno = dibujo.Pared.en(dibujo.ParedUno);
    const Pared* dos = dibujo.Pared.en(dibujo.ParedDos);
    if (!uno || !dos) return Encuentro::ninguno;
    if (sonParalelas(*uno, *dos)) return Encuentro::paralelas;
    const Segmento& A = uno->lineas[0];
    const Segmento& B = dos->lineas[0];
    PuntoUnion(dibujo, A, B);
    const double x = dibujo.PuntoUnionX;
    const bool fuera = (fueraEnX(x, A) && fueraEnX(x, B)) || fueraEnY(dibujo.PuntoUnionY, A, B);
    return fuera ? Encuentro::fuera : Encuentro::cruce;
}

void UnionParedes(Dibujo& dibujo) {
    const Pared* uno = dibujo.Pared.en(dibujo.ParedUno);
    const Pared* dos = dibujo.Pared.en(dibujo.ParedDos);
    if (!uno || !dos) return;
    AgruparParedes(dibujo);
    CortarParedes(dibujo, elegirCorte(dibujo, *uno, *dos));
}

}  // namespace bosquel
