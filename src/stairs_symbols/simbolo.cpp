#include "stairs_symbols/simbolo.h"

#include "surface/primitivas.h"

namespace bosquel {

namespace {

class Trazado {
  public:
    Trazado(const Salida& salida, const Electrico& electrico)
        : salida_(salida),
          electrico_(electrico),
          X_(salida.lugar(electrico.Left)),
          Y_(salida.lugar(electrico.Top)) {}

    void dibujar(const LineaGuion& linea) const {
        TrazarRecta(salida_.superficie, electrico_.LineColor, extremo(linea.A), extremo(linea.B),
                    linea.Length == 0 ? sinAngulo : redondear(linea.RelativeAngle + electrico_.Angle),
                    salida_.kEntero(linea.Length));
    }

    void dibujar(const RectGuion& rect) const {
        TrazarRecuadro(salida_.superficie, electrico_.LineColor, lugar(rect.P1), salida_.kEntero(rect.Length),
                       salida_.kEntero(rect.Wide), redondear(rect.RelativeAngle + electrico_.Angle));
    }

    void dibujar(const ArcoGuion& arco) const {
        const auto [x, y] = lugar(arco.C);
        const double inicio = AnguloRadianes(electrico_.Angle + arco.Start);
        // A whole turn ends where it starts; the reduction of its end could lose a fraction of a degree.
        const bool entero = arco.TheEnd - arco.Start == 360;
        const double fin = entero ? inicio : AnguloRadianes(electrico_.Angle + arco.TheEnd);
        salida_.superficie.Circle({x, y, salida_.k(arco.Radius), Arco{inicio, fin}}, electrico_.LineColor);
    }

    void dibujar(const ElipseGuion& elipse) const {
        TrazarElipse(
            salida_.superficie, electrico_.LineColor,
            {lugar(elipse.C), salida_.kEntero(elipse.Length), salida_.kEntero(elipse.Wide),
             elipse.LongCircleAngle, elipse.ShortCircleAngle, elipse.RelativeAngle, electrico_.Angle});
    }

  private:
    /// The ends of lines are added up before they are scaled, all other points after it.
    PuntoSalida extremo(PuntoGuion punto) const {
        return {simple((punto.X + electrico_.Left) * salida_.EscalaSalida),
                simple((punto.Y + electrico_.Top) * salida_.EscalaSalida)};
    }
    PuntoSalida lugar(PuntoGuion punto) const {
        return {X_ + punto.X * salida_.EscalaSalida, Y_ + punto.Y * salida_.EscalaSalida};
    }

    const Salida& salida_;
    const Electrico& electrico_;
    double X_, Y_;
};

}  // namespace

ListasGuion listasDe(const Electrico& electrico, double FactorZoomActual) {
    return leerGuion(electrico.Guion, {electrico.RectX, electrico.RectY, FactorZoomActual, electrico.Angle});
}

void DibujarListas(const Salida& salida, const Electrico& electrico, const ListasGuion& listas) {
    const Trazado trazado(salida, electrico);
    const auto todos = [&](const auto& lista) {
        for (const auto& pieza : lista)
            trazado.dibujar(pieza);
    };
    todos(listas.Lines);
    todos(listas.Rects);
    todos(listas.Circles);
    todos(listas.Arcs);
    todos(listas.Ellipses);
}

}  // namespace bosquel
