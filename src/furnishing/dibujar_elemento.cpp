#include "furnishing/dibujar_elemento.h"

#include "furnishing/figuras.h"
#include "stairs_symbols/escalera.h"
#include "stairs_symbols/simbolo.h"
#include "surface/primitivas.h"

#include <array>
#include <cmath>
#include <concepts>

namespace bosquel {

namespace {

template <class T>
concept ConLineas = requires(const T& elemento) {
    elemento.lineas;
};

template <class T>
bool seVe(const T& elemento) {
    if constexpr (ConLineas<T>)
        return elemento.lineas[0].Visible;
    else
        return elemento.Visible;
}

/// The element routines, by the kind.
class Dibujante {
  public:
    Dibujante(const Salida& salida, const Dibujo& dibujo) : salida_(salida), dibujo_(dibujo) {}

    template <std::derived_from<Elemento> T>
    void dibujar(const T& mueble) const {
        const Pluma pluma(salida_, mueble.Left, mueble.Top, mueble.LineColor);
        if constexpr (std::derived_from<T, ElementoConFondo>) {
            const Fondo fondo(salida_.superficie, mueble.BackColor);
            figura(pluma, mueble);
        } else {
            figura(pluma, mueble);
        }
    }

    void dibujar(const Pared& pared) const {
        const std::array<bool, 4> seVen{true, pared.Visible1, true, pared.Visible2};
        for (std::size_t i = 0; i < seVen.size(); ++i)
            if (seVen[i]) segmento(pared.lineas[i], dibujo_.Pared.modelo().LineColor);
    }

    void dibujar(const Ventana& ventana) const {
        for (const Segmento& linea : ventana.lineas)
            segmento(linea, dibujo_.Ventana.modelo().LineColor);
    }

    /// The swing of each leaf is dashed.
    void dibujar(const Puerta& puerta) const {
        const std::size_t cuantas = puerta.OrientacionLateral == "Doble" ? 12 : 8;
        for (std::size_t i = 0; i < cuantas; ++i)
            segmento(puerta.lineas[i], dibujo_.Puerta.modelo().LineColor, i == 7 || i == 11);
    }

    void dibujar(const TextoLibre& texto) const {
        SuperficieSalida& superficie = salida_.superficie;
        const float puntos = simple(redondear(texto.FontSize * salida_.EscalaSalida * 100) / 100);
        if (std::isnan(puntos)) return;  // larger than any type
        superficie.FontSize(puntos);
        superficie.CurrentX(salida_.lugar(texto.Left));
        superficie.CurrentY(salida_.lugar(texto.Top));
        superficie.ForeColor(texto.ForeColor);
        superficie.Print(texto.Text);
    }

    void dibujar(const Escalera& escalera) const { DibujarEscalera(salida_, escalera); }

    void dibujar(const Electrico& electrico) const {
        DibujarListas(salida_, electrico, listasDe(electrico, dibujo_.FactorZoomActual));
    }

  private:
    void segmento(const Segmento& linea, Color color, bool discontinuo = false) const {
        TrazarSegmento(salida_.superficie, linea, color, salida_.EscalaSalida,
                       discontinuo ? TipoDeTrazo::rayas : TipoDeTrazo::continuo);
    }

    const Salida& salida_;
    const Dibujo& dibujo_;
};

}  // namespace

Salida salidaDe(const Dibujo& dibujo, SuperficieSalida& superficie, double EscalaSalida) {
    return {superficie, EscalaSalida, EscalaSalida * dibujo.FactorZoomActual};
}

void DibujarElemento(const Salida& salida, const Dibujo& dibujo, Clase clase, int indice) {
    if (indice == 0) return;
    conColeccion(dibujo, clase, [&](const auto& coleccion) {
        const auto* elemento = coleccion.en(indice);
        if (elemento && seVe(*elemento)) Dibujante(salida, dibujo).dibujar(*elemento);
    });
}

void DibujarTodo(const Salida& salida, const Dibujo& dibujo) {
    for (const DatosClase& fila : todasLasClases()) {
        const int contador = conColeccion(dibujo, fila.clase, [](const auto& una) { return una.contador; });
        const int hasta = contador - (fila.dibujarConContador ? 0 : 1);
        for (int indice = 1; indice <= hasta; ++indice)
            DibujarElemento(salida, dibujo, fila.clase, indice);
    }
}

}  // namespace bosquel
