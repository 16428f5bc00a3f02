#include "surface/calco.h"

#include "surface/medidora.h"

namespace bosquel {

namespace {

/// Draws shapes in the colour of their stroke.
struct Repetidor {
    SuperficieSalida& superficie;
    Color color;

    void operator()(const Calco::Recta& recta) const {
        superficie.Line(recta.x1, recta.y1, recta.x2, recta.y2, color);
    }
    void operator()(const Calco::Caja& caja) const {
        superficie.Caja(caja.x1, caja.y1, caja.x2, caja.y2, color);
    }
    void operator()(const Curva& curva) const { superficie.Circle(curva, color); }
};

}  // namespace

void Calco::dibujar(SuperficieSalida& superficie, const Tinta& tinta) const {
    for (const auto& [forma, color, fondo] : trazos) {
        superficie.FillStyle(fondo ? Relleno::solido : Relleno::transparente);
        if (fondo) superficie.FillColor(tinta(*fondo));
        std::visit(Repetidor{superficie, tinta(color)}, forma);
    }
    superficie.FillStyle(Relleno::transparente);
    superficie.FillColor(negro);
}

std::optional<Recuadro> Calco::extension() const {
    Medidora medidora;
    dibujar(medidora, [](Color color) { return color; });
    return medidora.extension();
}

template <class Forma>
void Calcadora::anotar(const Forma& forma, Color color) {
    const bool solido = relleno_ == Relleno::solido;
    calco_.trazos.push_back({forma, color, solido ? std::optional(colorRelleno_) : std::nullopt});
}

void Calcadora::trazarLinea(double x1, double y1, double x2, double y2, Color color) {
    anotar(Calco::Recta{x1, y1, x2, y2}, color);
}

void Calcadora::trazarCaja(double x1, double y1, double x2, double y2, Color color) {
    anotar(Calco::Caja{{x1, y1, x2, y2}}, color);
}

void Calcadora::trazarCurva(const Curva& curva, Color color) {
    anotar(curva, color);
}

}  // namespace bosquel
