#include "dibujos.h"

#include "model/numeros.h"
#include "openings/puerta.h"
#include "openings/ventana.h"
#include "stairs_symbols/catalogo.h"
#include "walls/pared.h"

#include <array>
#include <concepts>
#include <random>

namespace bosquel::bench {

namespace {

constexpr std::array<std::int16_t, 6> angulos{0, 90, 0, 90, 30, -45};

/// The next element of a kind, whether its counter is the next index or the last one.
template <class T>
T& siguiente(Dibujo& dibujo, Coleccion<T>& coleccion) {
    if constexpr (std::same_as<T, Escalera>)
        return *dibujo.Escalera.crearTrasContador();
    else
        return *coleccion.crearSiguiente();
}

int ponerPared(Dibujo& dibujo, float x, float y, std::int16_t angulo, double longitud,
               std::int16_t grupo = 0) {
    const int indice = dibujo.Pared.contador;
    Pared& pared = *dibujo.Pared.crearSiguiente();
    pared.InicialX = x;
    pared.InicialY = y;
    pared.Angulo = angulo;
    pared.Longitud = longitud;
    pared.Tipo = indice % 2 == 0 ? "Muro" : "Tabique";
    pared.Estado = estadoEdicion;
    pared.NumeroGrupo = grupo;
    DibujaPared(dibujo, indice, false);
    GuardaLineasPared(dibujo, indice);
    return indice;
}

template <class T>
T& ponerAbertura(Dibujo& dibujo, Coleccion<T>& coleccion, int indicePared, double distancia) {
    const Pared& pared = *dibujo.Pared.en(indicePared);
    T& abertura = *coleccion.crearSiguiente();
    abertura.NumeroPared = static_cast<std::int16_t>(indicePared);
    abertura.Alineacion = "Izquierda";
    abertura.Distancia = distancia;
    abertura.Longitud = 720;
    abertura.Angulo = pared.Angulo;
    abertura.Estado = estadoEdicion;
    return abertura;
}

class Repartidor {
  public:
    explicit Repartidor(Dibujo& dibujo) : dibujo_(dibujo) {}

    void poner(Clase clase) {
        switch (clase) {
            case Clase::Pared:
                ponerPared(dibujo_, lugar(), lugar(), angulos[azar_() % angulos.size()],
                           std::uniform_int_distribution(2000, 4000)(azar_));
                return;
            case Clase::Ventana: {
                const int indice = dibujo_.Ventana.contador;
                ponerAbertura(dibujo_, dibujo_.Ventana, ultimaPared(), 1000);
                return ColocaVentana(dibujo_, indice, false);
            }
            case Clase::Puerta: {
                const int indice = dibujo_.Puerta.contador;
                ponerAbertura(dibujo_, dibujo_.Puerta, ultimaPared(), 100);
                return ColocaPuerta(dibujo_, indice, false);
            }
            default: return conColeccion(dibujo_, clase, [this](auto& coleccion) { situar(coleccion); });
        }
    }

  private:
    template <class T>
    void situar(Coleccion<T>& coleccion) {
        if constexpr (std::derived_from<T, Situado>) {
            T& elemento = siguiente(dibujo_, coleccion);
            elemento.Left = lugar();
            elemento.Top = lugar();
            elemento.Visible = true;
            alFrente(dibujo_, elemento);
            if constexpr (requires { elemento.Text; }) {
                elemento.Text = "Dormitorio";
                elemento.Width = 900;
                elemento.Height = 180;
            }
            if constexpr (requires { elemento.Guion; }) ponerSimbolo(elemento, elemento.ObjectType);
        }
    }

    int ultimaPared() const { return dibujo_.Pared.contador - 1; }
    float lugar() { return std::uniform_real_distribution<float>(0, 0.95F * ladoHoja)(azar_); }

    Dibujo& dibujo_;
    std::mt19937 azar_{2020};
};

}  // namespace

void ponerElementos(Dibujo& dibujo, int cuantos) {
    dibujo.AreaWidth = dibujo.AreaHight = ladoHojaMm;
    dibujo.Hoja = {0, 0, ladoHoja, ladoHoja};
    Repartidor repartidor(dibujo);
    const auto& clases = todasLasClases();
    for (std::size_t i = 0; i < static_cast<std::size_t>(cuantos); ++i)
        repartidor.poner(clases[i % clases.size()].clase);
    anunciarTodo(dibujo);
}

int ponerMuroConVentanas(Dibujo& dibujo, float x, float y, int ventanas) {
    const int pared = ponerPared(dibujo, x, y, 0, 1000.0 * ventanas + 200);
    for (int i = 0; i < ventanas; ++i) {
        const int indice = dibujo.Ventana.contador;
        ponerAbertura(dibujo, dibujo.Ventana, pared, 100 + 1000.0 * i);
        ColocaVentana(dibujo, indice, false);
    }
    return pared;
}

int ponerGrupo(Dibujo& dibujo, float x, float y, int paredes) {
    const std::int16_t grupo = ++dibujo.TotalGrupos;
    const int primera = dibujo.Pared.contador;
    for (int i = 0; i < paredes; ++i)
        ponerPared(dibujo, x, y + 150 * static_cast<float>(i), 0, 2000, grupo);
    return primera;
}

}  // namespace bosquel::bench
