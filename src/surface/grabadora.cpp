#include "surface/grabadora.h"

#include "surface/textos_superficie.h"

namespace bosquel {

void Grabadora::anotar(std::string trazo, std::initializer_list<double> valores) {
    for (const double valor : valores)
        trazo.append(" ").append(textoCorto(valor));
    trazos_.push_back(std::move(trazo));
}

void Grabadora::anotar(std::string trazo, std::initializer_list<double> valores, Color color) {
    anotar(std::move(trazo), valores);
    trazos_.back().append(" ").append(textoColor(color));
}

void Grabadora::trazarLinea(double x1, double y1, double x2, double y2, Color color) {
    anotar("Line", {x1, y1, x2, y2}, color);
}

void Grabadora::trazarCaja(double x1, double y1, double x2, double y2, Color color) {
    anotar("Box", {x1, y1, x2, y2}, color);
}

void Grabadora::trazarCurva(const Curva& curva, Color color) {
    const auto& [x, y, radio, arco, aspecto] = curva;
    if (arco && aspecto != 1)
        anotar("EllipticArc", {x, y, radio, arco->inicio, arco->fin, aspecto}, color);
    else if (arco)
        anotar("Arc", {x, y, radio, arco->inicio, arco->fin}, color);
    else if (aspecto != 1)
        anotar("Ellipse", {x, y, radio, aspecto}, color);
    else
        anotar("Circle", {x, y, radio}, color);
}

void Grabadora::FillStyle(Relleno relleno) {
    anotar("FillStyle", {static_cast<double>(relleno)});
}
void Grabadora::FillColor(Color color) {
    anotar("FillColor", {}, color);
}
void Grabadora::CurrentX(double x) {
    anotar("CurrentX", {x});
}
void Grabadora::CurrentY(double y) {
    anotar("CurrentY", {y});
}
void Grabadora::ForeColor(Color color) {
    anotar("ForeColor", {}, color);
}
void Grabadora::FontSize(float puntos) {
    anotar("FontSize", {puntos});
}
void Grabadora::Print(std::string_view texto) {
    trazos_.push_back("Print " + std::string(texto));
}

}  // namespace bosquel
