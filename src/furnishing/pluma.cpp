#include "furnishing/pluma.h"

#include "model/polar.h"

namespace bosquel {

void Pluma::caja(double x, double y, double ancho, double alto) const {
    const double izquierda = X_ + x;
    const double arriba = Y_ + y;
    salida_.superficie.Caja(izquierda, arriba, izquierda + ancho, arriba + alto, color_);
}

void Pluma::linea(PuntoMm desde, PuntoMm hasta) const {
    salida_.superficie.Line(x(desde.x), y(desde.y), x(hasta.x), y(hasta.y), color_);
}

void Pluma::cuadro(PuntoMm esquina, PuntoMm opuesta) const {
    salida_.superficie.Caja(x(esquina.x), y(esquina.y), x(opuesta.x), y(opuesta.y), color_);
}

void Pluma::circulo(PuntoMm centro, double radio) const {
    salida_.superficie.Circle({x(centro.x), y(centro.y), salida_.k(radio)}, color_);
}

double Pluma::medida(const Cota& cota, Redondeo redondeo, double propia) const {
    double total = 0;
    if (redondeo == Redondeo::entero) {
        for (const std::int16_t termino : cota.mm)
            if (termino != 0) total += salida_.kEntero(termino);
    } else {
        double milimetros = cota.parte == 0 ? 0 : cota.parte * propia;
        for (const std::int16_t termino : cota.mm)
            milimetros += termino;
        total = salida_.k(milimetros);
    }
    return total + cota.unidades * salida_.unidad;
}

void Pluma::dibujar(const Trazo& trazo, Redondeo redondeo, double propia) const {
    const auto k = [&](const Cota& cota) { return medida(cota, redondeo, propia); };
    const double x1 = X_ + k(trazo.x);
    const double y1 = Y_ + k(trazo.y);
    const double x2 = (trazo.pasos ? x1 : X_) + k(trazo.x2);
    const double y2 = (trazo.pasos ? y1 : Y_) + k(trazo.y2);
    switch (trazo.forma) {
        case Trazo::Forma::linea: salida_.superficie.Line(x1, y1, x2, y2, color_); break;
        case Trazo::Forma::cuadro: salida_.superficie.Caja(x1, y1, x2, y2, color_); break;
        case Trazo::Forma::curva: {
            Curva curva{x1, y1, k(trazo.radio), {}, trazo.aspecto};
            if (trazo.grados) curva.arco = Arco{radianes(trazo.grados->inicio), radianes(trazo.grados->fin)};
            salida_.superficie.Circle(curva, color_);
        }
    }
}

}  // namespace bosquel
