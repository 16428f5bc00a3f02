#include "ui/pixeles_curva.h"

#include <QtMath>
#include <algorithm>
#include <cmath>
#include <cstdint>
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

/// Collects pixels of a curve by its directions, leaving out those that its arc does not reach.
class Recorrido {
  public:
    explicit Recorrido(const Curva& curva)
        : curva_(curva),
          ejeX_(std::max(curva.ejeX(), punto)),
          ejeY_(std::max(curva.ejeY(), punto)),
          diagonal_(std::hypot(ejeX_, ejeY_)) {
        const double abertura = curva.arco ? enVuelta(curva.arco->fin - curva.arco->inicio) : 0;
        if (abertura == 0) return;
        forma_ = abertura <= vuelta / 2 ? Forma::hastaMedia : Forma::masDeMedia;
        inicio_ = rumboDe(curva.arco->inicio);
        fin_ = rumboDe(curva.arco->fin);
    }

    std::vector<QPoint> pixeles() {
        pixeles_.reserve(static_cast<std::size_t>(4 * diagonal_) + 16);
        porColumnas();
        porFilas();
        hitos();
        return std::move(pixeles_);
    }

  private:
    /// What of its circle the arc takes.
    enum class Forma : std::uint8_t { entera, hastaMedia, masDeMedia };

    static constexpr double punto = 1e-9;  ///< a half-axis of this length is one, too

    /// Where the curve runs rather across than down, it has one pixel in each column.
    void porColumnas() {
        const double alcance = ejeX_ * ejeX_ / diagonal_;
        const int ultima = qFloor(curva_.x + alcance);
        for (int x = qCeil(curva_.x - alcance); x <= ultima; ++x) {
            const double coseno = (x - curva_.x) / ejeX_;
            const double seno = cateto(coseno);
            for (const Rumbo rumbo : {Rumbo{coseno, seno}, Rumbo{coseno, -seno}})
                if (alcanza(rumbo)) pixeles_.emplace_back(x, fila(rumbo));
        }
    }

    /// And in each row elsewhere.
    void porFilas() {
        const double alcance = ejeY_ * ejeY_ / diagonal_;
        const int ultima = qFloor(curva_.y + alcance);
        for (int y = qCeil(curva_.y - alcance); y <= ultima; ++y) {
            const double seno = (curva_.y - y) / ejeY_;
            const double coseno = cateto(seno);
            for (const Rumbo rumbo : {Rumbo{coseno, seno}, Rumbo{-coseno, seno}})
                if (alcanza(rumbo)) pixeles_.emplace_back(columna(rumbo), y);
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

    void poner(Rumbo rumbo) { pixeles_.emplace_back(columna(rumbo), fila(rumbo)); }
    int columna(Rumbo rumbo) const { return qRound(curva_.x + ejeX_ * rumbo.coseno); }
    int fila(Rumbo rumbo) const { return qRound(curva_.y - ejeY_ * rumbo.seno); }

    const Curva& curva_;
    double ejeX_, ejeY_, diagonal_;
    Forma forma_ = Forma::entera;
    Rumbo inicio_, fin_;
    std::vector<QPoint> pixeles_;
};

}  // namespace

std::vector<QPoint> pixelesDe(const Curva& curva) {
    return Recorrido(curva).pixeles();
}

std::vector<QLine> filasDe(const Curva& curva) {
    std::vector<QLine> filas;
    const double ejeY = curva.ejeY();
    for (int y = qCeil(curva.y - ejeY); y < curva.y + ejeY; ++y) {
        const double media = curva.ejeX() * cateto((y - curva.y) / ejeY);
        const QLine fila(qCeil(curva.x - media), y, qFloor(curva.x + media), y);
        if (fila.x1() <= fila.x2()) filas.push_back(fila);
    }
    return filas;
}

}  // namespace bosquel
