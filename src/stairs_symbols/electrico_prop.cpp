#include "stairs_symbols/electrico_prop.h"

#include "model/numeros.h"
#include "model/textos_numero.h"
#include "stairs_symbols/catalogo.h"

#include <algorithm>
#include <array>

namespace bosquel {

namespace {

using Nombres = std::span<const std::string_view>;

/// The symbols of one button of the palette, which their dialog turns into one another.
struct Familia {
    std::string_view Caption;
    Nombres simbolos;

    /// A symbol without sisters is nothing to choose.
    Nombres opciones() const { return simbolos.size() > 1 ? simbolos : Nombres(); }
};

constexpr std::array<std::string_view, 1> luz{"Punto de Luz"};
constexpr std::array<std::string_view, 1> pulsador{"Pulsador"};
constexpr std::array<std::string_view, 1> cuadro{"Cuadro Eléctrico"};
constexpr std::array<std::string_view, 2> llaves{"Interruptor", "Conmutador"};
constexpr std::array<std::string_view, 3> enchufes{"Enchufe", "Enchufe de Fuerza", "Enchufe Trifásico"};
constexpr std::array<std::string_view, 2> senales{"Señal TV", "Señal Teléfono"};

constexpr std::array<Familia, 6> familias{{{"Propiedades Punto de Luz", luz},
                                           {"Propiedades Pulsador", pulsador},
                                           {"Propiedades Cuadro Eléctrico", cuadro},
                                           {"Propiedades Llave Interruptor", llaves},
                                           {"Propiedades Toma de Corriente", enchufes},
                                           {"Propiedades Toma de Señal", senales}}};

/// A file may name a symbol that nobody knows.
constexpr Familia desconocida{"Propiedades", {}};

int lugar(Nombres nombres, std::string_view nombre) {
    const auto hallado = std::find(nombres.begin(), nombres.end(), nombre);
    return hallado == nombres.end() ? -1 : static_cast<int>(hallado - nombres.begin());
}

const Familia& familiaDe(const Electrico& electrico) {
    const auto hallada = std::find_if(familias.begin(), familias.end(), [&](const Familia& familia) {
        return lugar(familia.simbolos, electrico.ObjectType) >= 0;
    });
    return hallada == familias.end() ? desconocida : *hallada;
}

void copiar(const Electrico& de, Electrico& a) {
    a.ObjectType = de.ObjectType;
    a.RectX = de.RectX;
    a.RectY = de.RectY;
    a.Guion = de.Guion;
    a.Angle = de.Angle;
    a.LineColor = de.LineColor;
}

}  // namespace

ElectricoProp::ElectricoProp(Dibujo& dibujo, int indice) : dibujo_(dibujo), indice_(indice) {
    const Electrico* electrico = this->electrico();
    if (!electrico) return;
    copiar(*electrico, preview_);
    preview_.Visible = true;
    txtLineColor = preview_.LineColor;
    Angulo.escribir(textoReal(preview_.Angle));
    refrescar();
}

Electrico* ElectricoProp::electrico() const {
    return indice_ > 0 ? dibujo_.Electrico.en(indice_) : nullptr;
}

std::string_view ElectricoProp::Caption() const {
    return familiaDe(preview_).Caption;
}

std::span<const std::string_view> ElectricoProp::opt() const {
    return familiaDe(preview_).opciones();
}

int ElectricoProp::opcion() const {
    return lugar(opt(), preview_.ObjectType);
}

void ElectricoProp::elegir(int opcion) {
    const Nombres opciones = opt();
    if (opcion >= 0 && static_cast<std::size_t>(opcion) < opciones.size())
        ponerSimbolo(preview_, opciones[static_cast<std::size_t>(opcion)]);
}

void ElectricoProp::refrescar() {
    preview_.LineColor = txtLineColor;
    if (const auto grados = Angulo.grados()) preview_.Angle = *grados;
    centrar();
}

void ElectricoProp::centrar() {
    asignar(preview_.Left, -preview_.RectX * dibujo_.FactorZoomActual / 2);
    asignar(preview_.Top, -preview_.RectY * dibujo_.FactorZoomActual / 2);
}

void ElectricoProp::Aplicar() {
    Electrico* electrico = this->electrico();
    if (!electrico) return;
    copiar(preview_, *electrico);
    anunciar(dibujo_, Clase::Electrico, indice_);
}

}  // namespace bosquel
