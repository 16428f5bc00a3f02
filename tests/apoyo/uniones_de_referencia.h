#pragma once

#include "model/dibujo.h"

#include <map>
#include <string>
#include <vector>

namespace bosquel::apoyo {

/// A second calculation of corners and unions, to hold the program's against. It shares no code with it and
/// is written out at length, procedure by procedure, so that it can be read without any table.
class PlanoDeReferencia {
  public:
    struct Linea {
        float x1 = 0, y1 = 0, x2 = 0, y2 = 0;
        bool operator==(const Linea&) const = default;
    };
    struct Muro {
        Linea l1, l3;
        int angulo = 0;
        double longitud = 0;
        int grupo = 0;
        bool tapa1 = true, tapa2 = true;    ///< what the wall says of its caps
        bool vista1 = true, vista2 = true;  ///< what is seen of them: a redrawn wall shows both
    };

    /// Takes walls, groups and the last crossing from a drawing.
    explicit PlanoDeReferencia(const Dibujo& dibujo);

    std::map<int, Muro> muros;
    int numPared = 1, totalGrupos = 0;
    double factor = 0.5;
    double px = 0, py = 0;  ///< the last crossing

    /// Gives "paralelas" or "esquina".
    std::string esquina(int uno, int dos);
    /// Gives "paralelas", "fuera" or the name of the procedure that has run; "" if none has. The column of
    /// the test that chose it, 1 to 5, is left in `columna`.
    std::string unir(int uno, int dos);
    int columna = 0;
    /// How the last corner has paired lines, "1331" or "1133", and by which of the four tests with an upright
    /// wall; a corner may pair more than once.
    std::vector<std::string> pares;
    std::vector<int> cuartos;

    void agrupar(int uno, int dos);

  private:
    struct Punto {
        double x, y;
    };

    void puntoUnion(const Linea& a, const Linea& b);
    void alargar(Linea& linea) const;
    void une1331();
    void une1133();
    void esquina90();
    void enCuarto(int cual, bool cumple, bool cruzada);
    void medirLongitud(Muro& muro) const;
    static void verTapas(Muro& muro);
    std::string elegir(const Linea& a1, const Linea& b1);

    void nombrarMenor();
    void nombrarMayor();
    void nombrarNegativo();
    void cruzar();
    void ejecutar(const std::string& procedimiento);
    void unionXPosPos();
    void unionXPosNeg();
    void unionTPos90Up();
    void unionTPos90Right();
    void unionTPos90Down();
    void unionTPos90Left();
    void unionTPos270Up();
    void unionTPos270Down();
    void unionTPos270Left();
    void unionTPos270Right();
    void pieza(const Muro& de, Punto uno, Punto tres);
    void cortarInicio(Muro& muro, Punto uno, Punto tres);
    void cortarFinal(Muro& muro, Punto uno, Punto tres);

    Muro* paredUno_ = nullptr;
    Muro* paredDos_ = nullptr;
    Muro* w1_ = nullptr;
    Muro* w2_ = nullptr;
    Punto c11_{}, c13_{}, c31_{}, c33_{};
};

/// Every wall of the drawing against the reference: lines 1 and 3, stored and drawn, the caps, `Longitud`,
/// `Angulo` and groups, and the counters. Coordinates have to agree to the last bit.
void comparar(const Dibujo& dibujo, const PlanoDeReferencia& plano);

}  // namespace bosquel::apoyo
