#include "ui/pintura_hoja.h"

#include "furnishing/dibujar_elemento.h"
#include "openings/abertura.h"
#include "openings/trazar_abertura.h"
#include "ui/color_qt.h"
#include "ui/superficie_imagen.h"
#include "walls/pared.h"
#include "walls/trazar_pared.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace bosquel {

namespace {

constexpr Color bordePinza = 0x404040;
constexpr Color colorVector = 0x404040;

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
void pintarCuadricula(Trama& trama, const CuadriculaDibujada& cuadricula, const Recuadro& visible,
                      double escala) {
    if (cuadricula.paso <= 0) return;
    const double derecha = std::min(cuadricula.ancho, visible.Left + visible.Width);
    const double abajo = std::min(cuadricula.alto, visible.Top + visible.Height);
    const int x2 = pixelEntero(derecha * escala);
    const int y2 = pixelEntero(abajo * escala);
    const Trama::Pixel tinta = Trama::pixel(colorCuadricula);
    if (cuadricula.paso * escala < 1) return trama.rellenar({0, 0, x2, y2}, tinta);
    porLineas(visible.Top, visible.Top + visible.Height, cuadricula.alto, cuadricula.paso, escala,
              [&](int y) {
                  trama.rellenar({0, y, x2, y}, tinta);
              });
    porLineas(visible.Left, visible.Left + visible.Width, cuadricula.ancho, cuadricula.paso, escala,
              [&](int x) {
                  trama.rellenar({x, 0, x, y2}, tinta);
              });
}

void pintarPinza(Trama& trama, const Pinza& pinza, double escala) {
    const int x = pixelEntero(pinza.Left * escala);
    const int y = pixelEntero(pinza.Top * escala);
    const int lado = std::max(3, pixelEntero(pinza.Lado * escala));
    const ZonaPixeles entera{x, y, x + lado - 1, y + lado - 1};
    trama.rellenar(entera, Trama::pixel(bordePinza));
    trama.rellenar({entera.x1 + 1, entera.y1 + 1, entera.x2 - 1, entera.y2 - 1},
                   Trama::pixel(pinza.BackColor));
}

bool enMovimiento(const Dibujo&, const Pared& pared) {
    return pared.EnMovimiento;
}

/// What is painted one over the other, from the back to the front.
class Capas {
  public:
    Capas(SuperficieImagen& superficie, const Dibujo& dibujo)
        : dibujo_(dibujo), superficie_(superficie), salida_(salidaDe(dibujo, superficie_, 1)) {}

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
                pintarPinza(superficie_.trama(), *pieza.pinza, superficie_.escala());
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

    const Dibujo& dibujo_;
    SuperficieImagen& superficie_;
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

void pintarMarco(SuperficieImagen& superficie, const MarcoDeSeleccion& marco) {
    if (!marco.Visible) return;
    const Recuadro& zona = marco.recuadro;
    const auto esquinas = recortar(superficie.enPixeles(zona.Left, zona.Top),
                                   superficie.enPixeles(zona.Left + zona.Width, zona.Top + zona.Height));
    if (!esquinas) return;
    const auto [x1, y1, x2, y2] = *esquinas;
    for (const auto [xa, ya, xb, yb] : {TramoPixeles{x1, y1, x2, y1}, TramoPixeles{x1, y2, x2, y2},
                                        TramoPixeles{x1, y1, x1, y2}, TramoPixeles{x2, y1, x2, y2}})
        superficie.trama().puntear(xa, ya, xb, yb, Trama::pixel(rojo));
}

void pintarVector(SuperficieImagen& superficie, const Segmento& vector) {
    if (!vector.Visible) return;
    const auto tramo =
        recortar(superficie.enPixeles(vector.X1, vector.Y1), superficie.enPixeles(vector.X2, vector.Y2));
    if (!tramo) return;
    superficie.trama().puntear(tramo->x1, tramo->y1, tramo->x2, tramo->y2, Trama::pixel(colorVector));
}

}  // namespace

void pintarQuieto(QImage& imagen, const LugarHoja& lugar, const Sesion& sesion, const QRect& zona) {
    const Recuadro visible = aUnidadesDeHoja(zona, lugar.escala);
    SuperficieImagen superficie(imagen, lugar.escala, SuperficieImagen::Letras::suaves, lugar.esquina, zona);
    superficie.trama().rellenar(superficie.trama().zona(), Trama::pixel(blanco));
    pintarCuadricula(superficie.trama(), sesion.cuadricula, visible, lugar.escala);
    const Dibujo& dibujo = sesion.dibujo;
    Capas capas(superficie, dibujo);
    const auto anadir = [&](Clase clase, const auto& coleccion) {
        coleccion.recorrer([&](int indice, const auto& elemento) {
            const auto extension = enMovimiento(dibujo, elemento) ? std::nullopt : contorno(elemento);
            if (extension && extension->toca(visible)) capas.anadir(clase, indice, elemento);
        });
    };
    anadir(Clase::Pared, dibujo.Pared);
    anadir(Clase::Ventana, dibujo.Ventana);
    anadir(Clase::Puerta, dibujo.Puerta);
    for (const Referencia cual : sesion.mapa.enZona(conVecinos(visible, lugar.escala)))
        if (!aparte(sesion, cual)) capas.anadir(cual);
    capas.pintar();
}

bool hayEncima(const Sesion& sesion) {
    return !sesion.paredesEnMovimiento.empty() || sesion.dibujo.ObjetoEnMovimiento ||
           sesion.RectSel.Visible || sesion.Vector.Visible;
}

void pintarEncima(QImage& imagen, const LugarHoja& lugar, const Sesion& sesion) {
    const Dibujo& dibujo = sesion.dibujo;
    const QRect zona = imagen.rect().translated(lugar.esquina);
    SuperficieImagen superficie(imagen, lugar.escala, SuperficieImagen::Letras::suaves, lugar.esquina, zona);
    Capas capas(superficie, dibujo);
    for (const auto& [indice, aberturas] : sesion.paredesEnMovimiento) {
        if (const Pared* pared = dibujo.Pared.en(indice)) capas.anadir(Clase::Pared, indice, *pared);
        for (const Referencia abertura : aberturas)
            capas.anadirAbertura(abertura);
    }
    if (dibujo.ObjetoEnMovimiento && !seEscribe(sesion, *dibujo.ObjetoEnMovimiento))
        capas.anadir(*dibujo.ObjetoEnMovimiento);
    capas.pintar();
    pintarMarco(superficie, sesion.RectSel);
    pintarVector(superficie, sesion.Vector);
}

}  // namespace bosquel
