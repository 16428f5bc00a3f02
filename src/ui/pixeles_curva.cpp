#include "ui/pixeles_curva.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace bosquel {

namespace {

constexpr double vuelta = 2 * std::numbers::pi;

int entero(double pixeles) {
    return static_cast<int>(std::lround(pixeles));
}

/// The other side of a right triangle of hypotenuse 1.
double cateto(double lado) {
    return std::sqrt(std::max(0.0, 1 - lado * lado));
}

/// Collects pixels of a curve by its angles, leaving out those that its arc does not reach.
class Recorrido {
  public:
    explicit Recorrido(const Curva& curva)
        : curva_(curva), ejeX_(std::max(curva.ejeX(), punto)), ejeY_(std::max(curva.ejeY(), punto)) {}

    std::vector<QPoint> pixeles() {
        porColumnas();
        porFilas();
        hitos();
        return std::move(pixeles_);
    }

  private:
    static constexpr double punto = 1e-9;  ///< a half-axis of this length is one, too

    /// Where the curve runs rather across than down, it has one pixel in each column.
    void porColumnas() {
        for (int x = entero(std::ceil(curva_.x - ejeX_)); x <= curva_.x + ejeX_; ++x) {
            const double coseno = (x - curva_.x) / ejeX_;
            const double seno = cateto(coseno);
            if (ejeX_ * seno < ejeY_ * std::abs(coseno)) continue;
            for (const double lado : {seno, -seno})
                if (alcanza(std::atan2(lado, coseno))) pixeles_.emplace_back(x, fila(lado));
        }
    }

    /// And in each row elsewhere.
    void porFilas() {
        for (int y = entero(std::ceil(curva_.y - ejeY_)); y <= curva_.y + ejeY_; ++y) {
            const double seno = (curva_.y - y) / ejeY_;
            const double coseno = cateto(seno);
            if (ejeY_ * coseno < ejeX_ * std::abs(seno)) continue;
            for (const double lado : {coseno, -coseno})
                if (alcanza(std::atan2(seno, lado))) pixeles_.emplace_back(columna(lado), y);
        }
    }

    /// The joints of columns and rows, the tips, and the ends: what lies there may be between two of them.
    void hitos() {
        const double diagonal = std::atan2(ejeY_, ejeX_);
        const double recto = vuelta / 4;
        for (const double angulo :
             {diagonal, 2 * recto - diagonal, 2 * recto + diagonal, -diagonal, 0.0, recto, 2 * recto, -recto})
            if (alcanza(angulo)) poner(angulo);
        if (!curva_.arco) return;
        poner(curva_.arco->inicio);
        poner(curva_.arco->fin);
    }

    bool alcanza(double angulo) const {
        if (!curva_.arco || curva_.arco->inicio == curva_.arco->fin) return true;
        const auto enVuelta = [](double giro) { return giro - vuelta * std::floor(giro / vuelta); };
        const double abertura = enVuelta(curva_.arco->fin - curva_.arco->inicio);
        return abertura == 0 || enVuelta(angulo - curva_.arco->inicio) <= abertura;
    }

    void poner(double angulo) { pixeles_.emplace_back(columna(std::cos(angulo)), fila(std::sin(angulo))); }
    int columna(double coseno) const { return entero(curva_.x + ejeX_ * coseno); }
    int fila(double seno) const { return entero(curva_.y - ejeY_ * seno); }

    const Curva& curva_;
    double ejeX_, ejeY_;
    std::vector<QPoint> pixeles_;
};

}  // namespace

std::vector<QPoint> pixelesDe(const Curva& curva) {
    return Recorrido(curva).pixeles();
}

std::vector<QLine> filasDe(const Curva& curva) {
    std::vector<QLine> filas;
    const double ejeY = curva.ejeY();
    for (int y = entero(std::ceil(curva.y - ejeY)); y < curva.y + ejeY; ++y) {
        const double media = curva.ejeX() * cateto((y - curva.y) / ejeY);
        const QLine fila(entero(std::ceil(curva.x - media)), y, entero(std::floor(curva.x + media)), y);
        if (fila.x1() <= fila.x2()) filas.push_back(fila);
    }
    return filas;
}

}  // namespace bosquel
