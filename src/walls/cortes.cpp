#include "walls/cortes.h"

#include "model/numeros.h"
#include "walls/esquina.h"
#include "walls/pared.h"

#include <array>
#include <utility>

namespace bosquel {

namespace {

/// The crossings of the long sides: the line of W1 and the line of W2.
enum Cruce : std::uint8_t { c11, c13, c31, c33 };

/// Where lines 1 and 3 of a wall are cut, or where those of a new piece start.
struct Sitio {
    Cruce uno, tres;
};

/// Whether W1 is `ParedUno`, by the angles of the two: the wall with the smaller angle, with the larger, or
/// the one below level.
using Orden = bool (*)(int uno, int dos);
constexpr Orden elMenor = [](int uno, int dos) { return uno < dos; };
constexpr Orden elMayor = [](int uno, int dos) { return uno > dos; };
constexpr Orden elNegativo = [](int uno, int) { return uno < 0; };

// clang-format off

/// W1 is always cut back to c11 and c31, and its new piece starts at c13 and c33.
constexpr Sitio principioX{c13, c33}, finX{c11, c31};

struct FilaX {
    Corte corte;
    Sitio principio;  ///< of the new piece of W2
    Sitio fin;        ///< of W2
    Orden unoEsW1 = elMenor;
};
constexpr std::array<FilaX, 2> tablaX{{
    {Corte::XPP, {c11, c13}, {c31, c33}},
    {Corte::XPN, {c31, c33}, {c11, c13}},
}};

enum class Cual : std::uint8_t { W1, W2 };

struct FilaT {
    Corte corte;
    Orden unoEsW1;
    Cual tallo;
    Extremo extremo;  ///< of the stem, with its cap
    Sitio tope;       ///< of the stem
    Sitio principio;  ///< of the bar's new piece
    Sitio fin;        ///< of the bar
};
constexpr std::array<FilaT, 8> tablaT = [] {
    using enum Corte;
    using enum Cual;
    using enum Extremo;
    return std::array<FilaT, 8>{{
        // procedure order       stem  its end  cut at      new piece   first piece
        {Up,         elMayor,    W1,   inicial, {c11, c31}, {c31, c33}, {c11, c33}},
        {Right,      elMayor,    W2,   final,   {c11, c13}, {c11, c31}, {c13, c31}},
        {Down,       elMayor,    W1,   final,   {c13, c33}, {c31, c33}, {c31, c13}},
        {Left,       elMayor,    W2,   inicial, {c31, c33}, {c11, c31}, {c11, c33}},
        {T270Up,     elNegativo, W1,   final,   {c11, c31}, {c31, c33}, {c11, c33}},
        {T270Down,   elNegativo, W1,   inicial, {c13, c33}, {c31, c33}, {c31, c13}},
        {T270Left,   elNegativo, W2,   inicial, {c31, c33}, {c13, c33}, {c13, c31}},
        {T270Right,  elNegativo, W2,   final,   {c11, c13}, {c13, c33}, {c11, c33}},
    }};
}();
// clang-format on

/// The walls of a cut by index, and their crossings. These are all found before the first line moves.
class Cortador {
  public:
    Cortador(Dibujo& dibujo, int w1, int w2) : dibujo_(dibujo), w1_(w1), w2_(w2) {
        const auto& uno = dibujo.Pared.en(w1)->lineas;
        const auto& dos = dibujo.Pared.en(w2)->lineas;
        cruzar(c11, uno[0], dos[0]);
        cruzar(c13, uno[0], dos[2]);
        cruzar(c31, uno[2], dos[0]);
        cruzar(c33, uno[2], dos[2]);
    }

    void abrir(const FilaX& fila) const {
        dividir(w1_, principioX, finX);
        dividir(w2_, fila.principio, fila.fin);
    }
    void abrir(const FilaT& fila) const {
        const bool talloEsW1 = fila.tallo == Cual::W1;
        cortar(talloEsW1 ? w1_ : w2_, fila.extremo, fila.tope);
        dividir(talloEsW1 ? w2_ : w1_, fila.principio, fila.fin);
    }

  private:
    struct Punto {
        double x, y;
    };

    void cruzar(Cruce cual, const Segmento& de1, const Segmento& de2) {
        PuntoUnion(dibujo_, de1, de2);
        puntos_[cual] = {dibujo_.PuntoUnionX, dibujo_.PuntoUnionY};
    }

    void poner(Pared& pared, Extremo extremo, Sitio sitio) const {
        ponerExtremo(pared.lineas[0], extremo, puntos_[sitio.uno].x, puntos_[sitio.uno].y);
        ponerExtremo(pared.lineas[2], extremo, puntos_[sitio.tres].x, puntos_[sitio.tres].y);
    }

    /// Everything that follows from long sides that have been moved by hand.
    void cerrar(int indice, Pared& pared) const {
        GuardaLineasPared(dibujo_, indice);
        LongitudPared(dibujo_, pared);
        ReconstruyePared(dibujo_, indice);
        DeseleccionaPared(dibujo_, indice);
    }

    void cortar(int indice, Extremo extremo, Sitio sitio) const {
        Pared& pared = *dibujo_.Pared.en(indice);
        ensuciar(dibujo_, pared);
        poner(pared, extremo, sitio);
        (extremo == Extremo::inicial ? pared.Visible1 : pared.Visible2) = false;
        cerrar(indice, pared);
    }

    void anadirPieza(const Pared& pared, Sitio principio) const {
        const int indice = CreaParedComo(dibujo_, pared);
        if (indice == 0) return;
        Pared& pieza = *dibujo_.Pared.en(indice);
        pieza.NumeroGrupo = pared.NumeroGrupo;
        asignar(pieza.InicialX, puntos_[principio.uno].x);
        asignar(pieza.InicialY, puntos_[principio.uno].y);
        DibujaPared(dibujo_, indice, true);
        for (const std::size_t larga : {0U, 2U})
            ponerExtremo(pieza.lineas[larga], Extremo::final, pared.lineas[larga].X2, pared.lineas[larga].Y2);
        poner(pieza, Extremo::inicial, principio);
        pieza.Visible1 = false;
        pieza.Visible2 = pared.Visible2;
        cerrar(indice, pieza);
    }

    void dividir(int indice, Sitio principio, Sitio fin) const {
        anadirPieza(*dibujo_.Pared.en(indice), principio);
        cortar(indice, Extremo::final, fin);
    }

    Dibujo& dibujo_;
    int w1_, w2_;
    std::array<Punto, 4> puntos_{};
};

template <class Tabla>
void cortarSegun(const Tabla& tabla, Dibujo& dibujo, Corte corte) {
    for (const auto& fila : tabla) {
        if (fila.corte != corte) continue;
        int w1 = dibujo.ParedUno;
        int w2 = dibujo.ParedDos;
        if (!fila.unoEsW1(dibujo.Pared.en(w1)->Angulo, dibujo.Pared.en(w2)->Angulo)) std::swap(w1, w2);
        Cortador(dibujo, w1, w2).abrir(fila);
    }
}

}  // namespace

void CortarParedes(Dibujo& dibujo, Corte corte) {
    if (!dibujo.Pared.existe(dibujo.ParedUno) || !dibujo.Pared.existe(dibujo.ParedDos)) return;
    cortarSegun(tablaX, dibujo, corte);
    cortarSegun(tablaT, dibujo, corte);
}

}  // namespace bosquel
