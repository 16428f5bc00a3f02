#include "ui/pintura_hoja.h"

#include "furnishing/dibujar_elemento.h"
#include "furnishing/recuadro.h"
#include "openings/abertura.h"
#include "openings/trazar_abertura.h"
#include "ui/superficie_qt.h"
#include "walls/pared.h"
#include "walls/trazar_pared.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace bosquel {

namespace {

const QColor bordePinza(64, 64, 64);
const QColor colorVector(64, 64, 64);

Recuadro aUnidadesDeHoja(const QRect& zona, double escala) {
    return {zona.x() / escala, zona.y() / escala, zona.width() / escala, zona.height() / escala};
}

/// The lines of one direction that fall into [desde, hasta], as device pixels.
template <class Linea>
void porLineas(double desde, double hasta, double fin, std::int32_t paso, double escala, Linea linea) {
    const double ultima = std::min(hasta, fin);
    for (double n = std::max(0.0, std::ceil(desde / paso)); n * paso <= ultima; ++n)
        linea(static_cast<int>(std::lround(n * paso * escala)));
}

/// The grid runs from the sheet's corner to where the sheet ended when it was drawn.
void pintarCuadricula(QPainter& pintor, const CuadriculaDibujada& cuadricula, const QRect& zona,
                      double escala) {
    if (cuadricula.paso <= 0) return;
    const Recuadro visible = aUnidadesDeHoja(zona, escala);
    const QRect alcance = zona & QRect(0, 0, zona.right() + 1, zona.bottom() + 1);
    const double derecha = std::min(cuadricula.ancho, visible.Left + visible.Width);
    const double abajo = std::min(cuadricula.alto, visible.Top + visible.Height);
    const int x2 = static_cast<int>(std::lround(derecha * escala));
    const int y2 = static_cast<int>(std::lround(abajo * escala));
    const QColor color = colorQt(colorCuadricula);
    if (cuadricula.paso * escala < 1) {
        pintor.fillRect(QRect(alcance.topLeft(), QPoint(x2, y2)), color);
        return;
    }
    pintor.setPen(color);
    porLineas(visible.Top, visible.Top + visible.Height, cuadricula.alto, cuadricula.paso, escala,
              [&](int y) { pintor.drawLine(alcance.left(), y, x2, y); });
    porLineas(visible.Left, visible.Left + visible.Width, cuadricula.ancho, cuadricula.paso, escala,
              [&](int x) { pintor.drawLine(x, alcance.top(), x, y2); });
}

void pintarPinza(QPainter& pintor, const Pinza& pinza, double escala) {
    const QPoint esquina(static_cast<int>(std::lround(pinza.Left * escala)),
                         static_cast<int>(std::lround(pinza.Top * escala)));
    const int lado = std::max(3, static_cast<int>(std::lround(pinza.Lado * escala)));
    pintor.fillRect(QRect(esquina, QSize(lado, lado)), colorQt(pinza.BackColor));
    pintor.setPen(bordePinza);
    pintor.drawRect(QRect(esquina, QSize(lado - 1, lado - 1)));
}

/// Walls, openings and their grips in the z-order: grips sent to the back lie under all strokes, those
/// brought to the front over them; openings lie over walls.
class Capas {
  public:
    Capas(QPainter& pintor, const Dibujo& dibujo, double escala)
        : pintor_(pintor), dibujo_(dibujo), escala_(escala) {}

    void anadir(const Pared& pared) { anadir(paredes_, pared); }
    void anadir(const Ventana& ventana) { anadir(ventanas_, ventana); }
    void anadir(const Puerta& puerta) { anadir(puertas_, puerta); }

    void pintar() {
        std::stable_sort(pinzas_.begin(), pinzas_.end(),
                         [](const Pinza* a, const Pinza* b) { return a->orden < b->orden; });
        const auto delante = std::find_if(pinzas_.begin(), pinzas_.end(),
                                          [](const Pinza* pinza) { return pinza->orden >= 0; });
        for (auto pinza = pinzas_.begin(); pinza != delante; ++pinza)
            pintarPinza(pintor_, **pinza, escala_);
        pintarTrazos();
        for (auto pinza = delante; pinza != pinzas_.end(); ++pinza)
            pintarPinza(pintor_, **pinza, escala_);
    }

  private:
    template <class T>
    void anadir(std::vector<const T*>& capa, const T& elemento) {
        capa.push_back(&elemento);
        for (const Pinza* pinza : elemento.pinzas())
            if (pinza->Visible) pinzas_.push_back(pinza);
    }

    void pintarTrazos() {
        SuperficieQt superficie(pintor_, escala_, {});
        for (const Pared* pared : paredes_)
            TrazarPared(superficie, *pared, dibujo_.Pared.modelo().LineColor, 1);
        for (const Ventana* ventana : ventanas_)
            TrazarVentana(superficie, *ventana, dibujo_.Ventana.modelo().LineColor, 1);
        for (const Puerta* puerta : puertas_)
            TrazarPuerta(superficie, *puerta, dibujo_.Puerta.modelo().LineColor, 1);
    }

    QPainter& pintor_;
    const Dibujo& dibujo_;
    double escala_;
    std::vector<const Pared*> paredes_;
    std::vector<const Ventana*> ventanas_;
    std::vector<const Puerta*> puertas_;
    std::vector<const Pinza*> pinzas_;
};

/// The elements with a place of their own, from one kind to another in the order of the output. What lies a
/// pixel outside of the part wanted may be rounded into it.
void pintarElementos(QPainter& pintor, const Dibujo& dibujo, const Recuadro& visible, double escala,
                     Clase primera, Clase ultima) {
    SuperficieQt superficie(pintor, escala, {});
    const Salida salida = salidaDe(dibujo, superficie, 1);
    const Recuadro cerca{visible.Left - 1 / escala, visible.Top - 1 / escala, visible.Width + 2 / escala,
                         visible.Height + 2 / escala};
    for (const DatosClase& fila : todasLasClases()) {
        if (fila.clase < primera || fila.clase > ultima) continue;
        conColeccion(dibujo, fila.clase, [&](const auto& coleccion) {
            coleccion.recorrer([&](int indice, const auto&) {
                const auto extension = extensionDe(dibujo, fila.clase, indice);
                if (extension && extension->toca(cerca)) DibujarElemento(salida, dibujo, fila.clase, indice);
            });
        });
    }
}

bool enMovimiento(const Dibujo&, const Pared& pared) {
    return pared.EnMovimiento;
}

}  // namespace

void pintarQuieto(QPainter& pintor, const Sesion& sesion, const QRect& zona, double escala) {
    pintor.fillRect(zona, colorQt(blanco));
    pintarCuadricula(pintor, sesion.cuadricula, zona, escala);
    const Recuadro visible = aUnidadesDeHoja(zona, escala);
    const Dibujo& dibujo = sesion.dibujo;
    Capas capas(pintor, dibujo, escala);
    const auto anadir = [&](int, const auto& elemento) {
        const auto extension = enMovimiento(dibujo, elemento) ? std::nullopt : contorno(elemento);
        if (extension && extension->toca(visible)) capas.anadir(elemento);
    };
    dibujo.Pared.recorrer(anadir);
    dibujo.Ventana.recorrer(anadir);
    dibujo.Puerta.recorrer(anadir);
    pintarElementos(pintor, dibujo, visible, escala, Clase::MblMesa, Clase::MblVertedero);
    capas.pintar();
    pintarElementos(pintor, dibujo, visible, escala, Clase::TextoLibre, Clase::Electrico);
}

void pintarEnMovimiento(QPainter& pintor, const Sesion& sesion, double escala) {
    const Dibujo& dibujo = sesion.dibujo;
    Capas capas(pintor, dibujo, escala);
    for (const int indice : sesion.paredesEnMovimiento)
        if (const Pared* pared = dibujo.Pared.en(indice)) capas.anadir(*pared);
    const auto anadir = [&](int, const auto& abertura) {
        if (enMovimiento(dibujo, abertura)) capas.anadir(abertura);
    };
    if (!sesion.paredesEnMovimiento.empty()) {
        dibujo.Ventana.recorrer(anadir);
        dibujo.Puerta.recorrer(anadir);
    }
    capas.pintar();
    if (!sesion.Vector.Visible) return;
    const Segmento& vector = sesion.Vector;
    const auto linea =
        recortar(QPointF(vector.X1, vector.Y1) * escala, QPointF(vector.X2, vector.Y2) * escala);
    pintor.setPen(QPen(colorVector, 1, Qt::DotLine));
    if (linea) pintor.drawLine(*linea);
}

}  // namespace bosquel
