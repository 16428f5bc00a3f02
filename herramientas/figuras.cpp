#include "apoyo/muestrario.h"
#include "furnishing/dibujar_elemento.h"
#include "furnishing/recuadro.h"
#include "surface/escritor_svg.h"

#include <algorithm>
#include <fstream>
#include <iostream>

// Draws every kind in every layout into one SVG picture: `figuras docs/figuras/muestrario.svg`.

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

constexpr double ancho = 33000;  ///< of the picture, in sheet units
constexpr double margen = 500;   ///< around a figure
constexpr double pie = 450;      ///< for its title
constexpr float cuerpo = 10;     ///< of titles, points
constexpr double anchoLetra = 0.62 * unidadesPorPunto * cuerpo;

/// The railings of one hand show those of the other.
bool enLaHoja(const Muestra& muestra) {
    return muestra.clase != Clase::Escalera || !muestra.titulo.starts_with("R") ||
           muestra.titulo.find('b') == std::string::npos;
}

/// Small things are drawn larger.
double factorDe(Clase clase) {
    if (clase == Clase::Electrico) return 5;
    const bool grande = clase < Clase::MblInodoro || clase == Clase::Escalera;
    return grande || clase == Clase::MblBañera || clase == Clase::MblFregadero ? 1 : 2;
}

/// Puts figures in rows from left to right, one kind after the other.
class Hoja {
  public:
    explicit Hoja(SuperficieSalida& superficie) : superficie_(superficie) {}

    void titulo(std::string_view texto) {
        renglon();
        rotulo(margen, y_ + margen, texto, cuerpo * 1.6F);
        y_ += 2 * margen + pie;
    }

    void figura(const Muestra& muestra) {
        Dibujo dibujo = dibujoDe(muestra, factorDe(muestra.clase));
        const Recuadro caja = extensionDe(dibujo, muestra.clase, 1).value_or(Recuadro{});
        const double hueco =
            std::max(caja.Width, anchoLetra * static_cast<double>(muestra.titulo.size())) + margen;
        if (x_ + hueco > ancho) renglon();
        conColeccion(dibujo, muestra.clase, [&](auto& coleccion) {
            auto& elemento = *coleccion.en(1);
            if constexpr (requires { elemento.Left; }) {
                elemento.Left += static_cast<float>(x_ - caja.Left);
                elemento.Top += static_cast<float>(y_ - caja.Top);
            }
            if constexpr (requires { elemento.LineColor; }) elemento.LineColor = negro;
            if constexpr (requires { elemento.BackColor; }) elemento.BackColor = 0xE6F2FA;
        });
        DibujarElemento(salidaDe(dibujo, superficie_, 1), dibujo, muestra.clase, 1);
        rotulo(x_, y_ + caja.Height + 80, muestra.titulo, cuerpo);
        x_ += hueco;
        alto_ = std::max(alto_, caja.Height + pie + margen);
    }

    /// Ends the row; gives where the next one begins.
    double renglon() {
        y_ += alto_;
        x_ = margen;
        alto_ = 0;
        return y_;
    }

  private:
    void rotulo(double x, double y, std::string_view texto, float puntos) {
        superficie_.FontSize(puntos);
        superficie_.CurrentX(x);
        superficie_.CurrentY(y);
        superficie_.ForeColor(negro);
        superficie_.Print(texto);
    }

    SuperficieSalida& superficie_;
    double x_ = margen, y_ = 0, alto_ = 0;
};

double dibujarHoja(SuperficieSalida& superficie) {
    Hoja hoja(superficie);
    std::optional<Clase> anterior;
    for (const Muestra& muestra : muestrario()) {
        if (!enLaHoja(muestra)) continue;
        if (muestra.clase != anterior) hoja.titulo(datos(muestra.clase).nombre);
        anterior = muestra.clase;
        hoja.figura(muestra);
    }
    return hoja.renglon();
}

}  // namespace

int main(int cuantos, char** argumentos) {
    if (cuantos != 2) {
        std::cerr << "figuras PICTURE.svg\n";
        return 2;
    }
    EscritorSvg ensayo({0, 0, ancho, 1}, 1, 1);
    const double alto = dibujarHoja(ensayo);
    EscritorSvg escritor({0, 0, ancho, alto}, 14, 2000);
    dibujarHoja(escritor);
    std::ofstream archivo(argumentos[1], std::ios::binary);
    archivo << escritor.documento();
    return archivo.good() ? 0 : 1;
}
