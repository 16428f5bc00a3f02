#include "surface/trama.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace bosquel {

namespace {

constexpr double vuelta = 2 * std::numbers::pi;

double enVuelta(double giro) {
    return giro - vuelta * std::floor(giro / vuelta);
}

/// A direction on the circle that a curve is flattened from.
struct Rumbo {
    double coseno = 1, seno = 0;
};

Rumbo rumboDe(double angulo) {
    return {std::cos(angulo), std::sin(angulo)};
}

/// Not below 0 if `b` lies within the half turn that follows on `a`.
double giro(Rumbo a, Rumbo b) {
    return a.coseno * b.seno - a.seno * b.coseno;
}

/// The other side of a right triangle of hypotenuse 1.
double cateto(double lado) {
    return std::sqrt(std::max(0.0, 1 - lado * lado));
}

int techo(double coordenada) {
    return static_cast<int>(std::ceil(coordenada));
}

int suelo(double coordenada) {
    return static_cast<int>(std::floor(coordenada));
}

/// Sets the pixels of a curve by its directions, leaving out those that its arc does not reach.
class Recorrido {
  public:
    Recorrido(Trama& trama, const Curva& curva, Trama::Pixel tinta)
        : trama_(trama),
          tinta_(tinta),
          curva_(curva),
          ejeX_(std::max(curva.ejeX(), minimo)),
          ejeY_(std::max(curva.ejeY(), minimo)),
          diagonal_(std::sqrt(ejeX_ * ejeX_ + ejeY_ * ejeY_)) {
        const double abertura = curva.arco ? enVuelta(curva.arco->fin - curva.arco->inicio) : 0;
        if (abertura == 0) return;
        forma_ = abertura <= vuelta / 2 ? Forma::hastaMedia : Forma::masDeMedia;
        inicio_ = rumboDe(curva.arco->inicio);
        fin_ = rumboDe(curva.arco->fin);
    }

    void trazar() {
        porColumnas();
        porFilas();
        hitos();
    }

  private:
    /// What of its circle the arc takes.
    enum class Forma : std::uint8_t { entera, hastaMedia, masDeMedia };

    static constexpr double minimo = 1e-9;  ///< a half-axis of this length is one, too

    /// Where the curve runs rather across than down, it has one pixel in each column.
    void porColumnas() {
        const double alcance = ejeX_ * ejeX_ / diagonal_;
        const int ultima = std::min(suelo(curva_.x + alcance), trama_.zona().x2);
        for (int x = std::max(techo(curva_.x - alcance), trama_.zona().x1); x <= ultima; ++x) {
            const double coseno = (x - curva_.x) / ejeX_;
            const double seno = cateto(coseno);
            for (const Rumbo rumbo : {Rumbo{coseno, seno}, Rumbo{coseno, -seno}})
                if (alcanza(rumbo)) trama_.punto(x, fila(rumbo), tinta_);
        }
    }

    /// And in each row elsewhere.
    void porFilas() {
        const double alcance = ejeY_ * ejeY_ / diagonal_;
        const int ultima = std::min(suelo(curva_.y + alcance), trama_.zona().y2);
        for (int y = std::max(techo(curva_.y - alcance), trama_.zona().y1); y <= ultima; ++y) {
            const double seno = (curva_.y - y) / ejeY_;
            const double coseno = cateto(seno);
            for (const Rumbo rumbo : {Rumbo{coseno, seno}, Rumbo{-coseno, seno}})
                if (alcanza(rumbo)) trama_.punto(columna(rumbo), y, tinta_);
        }
    }

    /// The joints of columns and rows, the tips, and the ends: what lies there may be between two of them.
    void hitos() {
        const double c = ejeX_ / diagonal_;
        const double s = ejeY_ / diagonal_;
        for (const Rumbo rumbo : {Rumbo{c, s}, Rumbo{-c, s}, Rumbo{-c, -s}, Rumbo{c, -s}, Rumbo{1, 0},
                                  Rumbo{0, 1}, Rumbo{-1, 0}, Rumbo{0, -1}})
            if (alcanza(rumbo)) poner(rumbo);
        if (forma_ == Forma::entera) return;
        poner(inicio_);
        poner(fin_);
    }

    /// Whether the arc, which turns from `inicio_` to `fin_`, comes by.
    bool alcanza(Rumbo rumbo) const {
        if (forma_ == Forma::entera) return true;
        const bool trasInicio = giro(inicio_, rumbo) >= 0;
        const bool anteFin = giro(rumbo, fin_) >= 0;
        return forma_ == Forma::hastaMedia ? trasInicio && anteFin : trasInicio || anteFin;
    }

    void poner(Rumbo rumbo) { trama_.punto(columna(rumbo), fila(rumbo), tinta_); }
    int columna(Rumbo rumbo) const { return pixelCercano(curva_.x + ejeX_ * rumbo.coseno); }
    int fila(Rumbo rumbo) const { return pixelCercano(curva_.y - ejeY_ * rumbo.seno); }

    Trama& trama_;
    Trama::Pixel tinta_;
    const Curva& curva_;
    double ejeX_, ejeY_, diagonal_;
    Forma forma_ = Forma::entera;
    Rumbo inicio_, fin_;
};

bool alAlcance(const ZonaPixeles& zona, const Curva& curva) {
    const double x = curva.ejeX() + 1;
    const double y = curva.ejeY() + 1;
    return curva.x + x >= zona.x1 && curva.x - x <= zona.x2 && curva.y + y >= zona.y1 &&
           curva.y - y <= zona.y2;
}

}  // namespace

void Trama::curva(const Curva& curva, Pixel tinta) {
    if (alAlcance(zona_, curva)) Recorrido(*this, curva, tinta).trazar();
}

void Trama::rellenarCurva(const Curva& curva, Pixel tinta) {
    const double ejeY = curva.ejeY();
    const int fin = std::min(techo(curva.y + ejeY), zona_.y2 + 1);
    for (int y = std::max(techo(curva.y - ejeY), zona_.y1); y < fin; ++y) {
        const double media = curva.ejeX() * cateto((y - curva.y) / ejeY);
        rellenar({techo(curva.x - media), y, suelo(curva.x + media), y}, tinta);
    }
}

}  // namespace bosquel
