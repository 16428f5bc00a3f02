#include "ui/pintura_hoja.h"

#include "furnishing/dibujar_elemento.h"
#include "openings/abertura.h"
#include "openings/trazar_abertura.h"
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

/// The part of the sheet that these pixels show, and one pixel around it: what lies there may be rounded into
/// them.
Recuadro conVecinos(const QRect& zona, double escala) {
    const QRect mayor = zona.adjusted(-1, -1, 1, 1);
    return {mayor.x() / escala, mayor.y() / escala, mayor.width() / escala, mayor.height() / escala};
}

/// A picture to paint on, whose pixels are counted from its own corner: a sheet may be too large for them.
SuperficieImagen superficieDe(QImage& imagen, const LugarHoja& lugar, const QRect& zona) {
    return {imagen, lugar.escala, SuperficieImagen::Letras::suaves, -QPointF(lugar.esquina),
            zona.translated(-lugar.esquina)};
}

/// Calls `linea` with the places of the lines of one direction that fall into [desde, hasta].
template <class Linea>
void porLineas(double desde, double hasta, std::int32_t paso, Linea linea) {
    for (double n = std::max(0.0, std::ceil(desde / paso)); n * paso <= hasta; ++n)
        linea(n * paso);
}

/// The grid runs from the sheet's corner to where the sheet ended when it was drawn.
void pintarCuadricula(SuperficieImagen& superficie, const CuadriculaDibujada& cuadricula,
                      const Recuadro& visible) {
    if (cuadricula.paso <= 0) return;
    const double derecha = std::min(cuadricula.ancho, visible.Left + visible.Width);
    const double abajo = std::min(cuadricula.alto, visible.Top + visible.Height);
    const auto rellenar = [&](double x1, double y1, double x2, double y2) {
        const LugarPixeles desde = superficie.enPixeles(x1, y1);
        const LugarPixeles hasta = superficie.enPixeles(x2, y2);
        superficie.trama().rellenar(
            {pixelEntero(desde.x), pixelEntero(desde.y), pixelEntero(hasta.x), pixelEntero(hasta.y)},
            Trama::pixel(colorCuadricula));
    };
    if (cuadricula.paso * superficie.escala() < 1) return rellenar(0, 0, derecha, abajo);
    porLineas(visible.Top, abajo, cuadricula.paso, [&](double y) { rellenar(0, y, derecha, y); });
    porLineas(visible.Left, derecha, cuadricula.paso, [&](double x) { rellenar(x, 0, x, abajo); });
}

void pintarPinza(SuperficieImagen& superficie, const Pinza& pinza) {
    const LugarPixeles esquina = superficie.enPixeles(pinza.Left, pinza.Top);
    const int x = pixelEntero(esquina.x);
    const int y = pixelEntero(esquina.y);
    const int lado = std::max(3, pixelEntero(pinza.Lado * superficie.escala()));
    const ZonaPixeles entera{x, y, x + lado - 1, y + lado - 1};
    superficie.trama().rellenar(entera, Trama::pixel(bordePinza));
    superficie.trama().rellenar({entera.x1 + 1, entera.y1 + 1, entera.x2 - 1, entera.y2 - 1},
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
                pintarPinza(superficie_, *pieza.pinza);
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

void pintarMarco(SuperficieImagen& superficie, const MarcoDeSeleccion& marco) {
    if (!marco.Visible) return;
    const Recuadro& zona = marco.recuadro;
    const LugarPixeles una = superficie.enPixeles(zona.Left, zona.Top);
    const LugarPixeles otra = superficie.enPixeles(zona.Left + zona.Width, zona.Top + zona.Height);
    const int x1 = pixelEntero(una.x);
    const int y1 = pixelEntero(una.y);
    const int x2 = pixelEntero(otra.x);
    const int y2 = pixelEntero(otra.y);
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
    const Recuadro visible = conVecinos(zona, lugar.escala);
    SuperficieImagen superficie = superficieDe(imagen, lugar, zona);
    superficie.trama().rellenar(superficie.trama().zona(), Trama::pixel(blanco));
    pintarCuadricula(superficie, sesion.cuadricula, visible);
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
    for (const Referencia cual : sesion.mapa.enZona(visible))
        if (!aparte(sesion, cual)) capas.anadir(cual);
    capas.pintar();
}

bool hayEncima(const Sesion& sesion) {
    return !sesion.paredesEnMovimiento.empty() || sesion.dibujo.ObjetoEnMovimiento ||
           sesion.RectSel.Visible || sesion.Vector.Visible;
}

void pintarEncima(QImage& imagen, const LugarHoja& lugar, const Sesion& sesion) {
    const Dibujo& dibujo = sesion.dibujo;
    SuperficieImagen superficie = superficieDe(imagen, lugar, imagen.rect().translated(lugar.esquina));
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
