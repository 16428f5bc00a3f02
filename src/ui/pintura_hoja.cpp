#include "ui/pintura_hoja.h"

#include "furnishing/dibujar_elemento.h"
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
    const QRect entera(esquina, QSize(lado, lado));
    pintor.fillRect(entera, bordePinza);
    pintor.fillRect(entera.adjusted(1, 1, -1, -1), colorQt(pinza.BackColor));
}

bool enMovimiento(const Dibujo&, const Pared& pared) {
    return pared.EnMovimiento;
}

/// What is painted one over the other, from the back to the front.
class Capas {
  public:
    Capas(QPainter& pintor, const Dibujo& dibujo, double escala)
        : pintor_(pintor),
          dibujo_(dibujo),
          escala_(escala),
          superficie_(pintor, escala, {}),
          salida_(salidaDe(dibujo, superficie_, 1)) {}

    template <class T>
    void anadir(Clase clase, int indice, const T& conPinzas) {
        piezas_.push_back({{0, false, clase, indice}, nullptr});
        for (const Pinza* pinza : conPinzas.pinzas())
            if (pinza->Visible) piezas_.push_back({{pinza->orden, true, clase, indice}, pinza});
    }
    void anadir(Referencia cual) {
        if (const Situado* elemento = situado(dibujo_, cual))
            piezas_.push_back({{elemento->orden, false, cual.clase, cual.indice}, nullptr});
    }

    void anadirAbertura(Referencia cual) {
        conAbertura(dibujo_, cual, [&](const auto& abertura) { anadir(cual.clase, cual.indice, abertura); });
    }

    void pintar() {
        std::stable_sort(piezas_.begin(), piezas_.end(),
                         [](const Pieza& a, const Pieza& b) { return a.altura < b.altura; });
        for (const Pieza& pieza : piezas_)
            if (pieza.pinza)
                pintarPinza(pintor_, *pieza.pinza, escala_);
            else
                pintarElemento(pieza.altura.clase, pieza.altura.indice);
    }

  private:
    struct Pieza {
        Altura altura;
        const Pinza* pinza;  ///< none for the element itself
    };

    void pintarElemento(Clase clase, int indice) {
        switch (clase) {
            case Clase::Pared:
                return TrazarPared(superficie_, *dibujo_.Pared.en(indice), dibujo_.Pared.modelo().LineColor,
                                   1);
            case Clase::Ventana:
                return TrazarVentana(superficie_, *dibujo_.Ventana.en(indice),
                                     dibujo_.Ventana.modelo().LineColor, 1);
            case Clase::Puerta:
                return TrazarPuerta(superficie_, *dibujo_.Puerta.en(indice),
                                    dibujo_.Puerta.modelo().LineColor, 1);
            case Clase::Escalera:
                superficie_.ponerTinta(tinta(dibujo_.Escalera.en(indice)->Resaltado));
                break;
            case Clase::Electrico:
                superficie_.ponerTinta(tinta(dibujo_.Electrico.en(indice)->Resaltado));
                break;
            default: break;
        }
        DibujarElemento(salida_, dibujo_, clase, indice);
        superficie_.ponerTinta(std::nullopt);
    }

    /// What is selected shows in red, whatever its own colour.
    static std::optional<Color> tinta(bool resaltado) {
        return resaltado ? std::optional(rojo) : std::nullopt;
    }

    QPainter& pintor_;
    const Dibujo& dibujo_;
    double escala_;
    SuperficieQt superficie_;
    Salida salida_;
    std::vector<Pieza> piezas_;
};

/// What is shown by other means than the picture of what stands still: what is being dragged, and the text
/// that is being written.
bool seEscribe(const Sesion& sesion, Referencia cual) {
    return cual.clase == Clase::TextoLibre && cual == sesion.foco;
}
bool aparte(const Sesion& sesion, Referencia cual) {
    return cual == sesion.dibujo.ObjetoEnMovimiento || seEscribe(sesion, cual);
}

/// What lies a pixel outside of the part wanted may be rounded into it.
Recuadro conVecinos(const Recuadro& zona, double escala) {
    return {zona.Left - 1 / escala, zona.Top - 1 / escala, zona.Width + 2 / escala, zona.Height + 2 / escala};
}

void pintarMarco(QPainter& pintor, const MarcoDeSeleccion& marco, double escala) {
    if (!marco.Visible) return;
    const Recuadro& zona = marco.recuadro;
    const auto esquina = recortar(QPointF(zona.Left, zona.Top) * escala,
                                  QPointF(zona.Left + zona.Width, zona.Top + zona.Height) * escala);
    if (!esquina) return;
    pintor.setPen(QPen(colorQt(rojo), 1, Qt::DotLine));
    pintor.setBrush(Qt::NoBrush);
    pintor.drawRect(QRect(esquina->p1(), QSize(esquina->dx(), esquina->dy())));
}

void pintarVector(QPainter& pintor, const Segmento& vector, double escala) {
    if (!vector.Visible) return;
    const auto linea =
        recortar(QPointF(vector.X1, vector.Y1) * escala, QPointF(vector.X2, vector.Y2) * escala);
    pintor.setPen(QPen(colorVector, 1, Qt::DotLine));
    if (linea) pintor.drawLine(*linea);
}

}  // namespace

void pintarQuieto(QPainter& pintor, const Sesion& sesion, const QRect& zona, double escala) {
    pintor.fillRect(zona, colorQt(blanco));
    pintarCuadricula(pintor, sesion.cuadricula, zona, escala);
    const Recuadro visible = aUnidadesDeHoja(zona, escala);
    const Dibujo& dibujo = sesion.dibujo;
    Capas capas(pintor, dibujo, escala);
    const auto anadir = [&](Clase clase, const auto& coleccion) {
        coleccion.recorrer([&](int indice, const auto& elemento) {
            const auto extension = enMovimiento(dibujo, elemento) ? std::nullopt : contorno(elemento);
            if (extension && extension->toca(visible)) capas.anadir(clase, indice, elemento);
        });
    };
    anadir(Clase::Pared, dibujo.Pared);
    anadir(Clase::Ventana, dibujo.Ventana);
    anadir(Clase::Puerta, dibujo.Puerta);
    for (const Referencia cual : sesion.mapa.enZona(conVecinos(visible, escala)))
        if (!aparte(sesion, cual)) capas.anadir(cual);
    capas.pintar();
}

void pintarEnMovimiento(QPainter& pintor, const Sesion& sesion, double escala) {
    const Dibujo& dibujo = sesion.dibujo;
    Capas capas(pintor, dibujo, escala);
    for (const auto& [indice, aberturas] : sesion.paredesEnMovimiento) {
        if (const Pared* pared = dibujo.Pared.en(indice)) capas.anadir(Clase::Pared, indice, *pared);
        for (const Referencia abertura : aberturas)
            capas.anadirAbertura(abertura);
    }
    if (dibujo.ObjetoEnMovimiento && !seEscribe(sesion, *dibujo.ObjetoEnMovimiento))
        capas.anadir(*dibujo.ObjetoEnMovimiento);
    capas.pintar();
    pintarMarco(pintor, sesion.RectSel, escala);
    pintarVector(pintor, sesion.Vector, escala);
}

}  // namespace bosquel
