#include "furnishing/mueble_prop.h"

#include "furnishing/calcar.h"
#include "model/metros.h"

#include <algorithm>

namespace bosquel {

namespace {

/// The item of a list at a place that comes from outside; nullptr where there is none.
template <class T>
const T* en(std::span<const T> lista, int lugar) {
    const auto i = static_cast<std::size_t>(lugar);
    return lugar >= 0 && i < lista.size() ? &lista[i] : nullptr;
}

template <class T, class Condicion>
int lugarDe(std::span<const T> lista, Condicion condicion) {
    const auto hallado = std::find_if(lista.begin(), lista.end(), condicion);
    return hallado == lista.end() ? -1 : static_cast<int>(hallado - lista.begin());
}

}  // namespace

MuebleProp::MuebleProp(Dibujo& dibujo, Clase clase, int indice)
    : DialogoMueble(dibujo, clase, indice), ficha_(fichaDe(clase)) {
    for (const CampoMueble& campo : ficha_.campos) {
        const double* valor = sitio(campo.valor);
        medidas.push_back(valor ? enMetros(*valor) : std::string());
    }
}

int MuebleProp::opcion() const {
    const double* valor = sitio(ficha_.opciones.valor);
    if (!valor) return -1;
    return lugarDe(ficha_.opciones.opciones, [&](const OpcionMueble& una) { return una.valor == *valor; });
}

void MuebleProp::elegirOpcion(int cual) {
    double* valor = sitio(ficha_.opciones.valor);
    const OpcionMueble* opcion = en(ficha_.opciones.opciones, cual);
    if (!valor || !opcion) return;
    *valor = opcion->valor;
    escrito();
}

bool MuebleProp::escurridor() const {
    const int* valor = sitio(ficha_.ChkEscurridor);
    return valor != nullptr && *valor == 1;
}

void MuebleProp::ponerEscurridor(bool puesto) {
    int* valor = sitio(ficha_.ChkEscurridor);
    if (!valor) return;
    *valor = puesto ? 1 : 0;
    escrito();
}

int MuebleProp::pulsado() const {
    const std::string* codigo = orientacion();
    if (!codigo) return -1;
    return lugarDe(ficha_.Dist.codigos, [&](const CodigoDist& uno) { return uno.codigo == *codigo; });
}

void MuebleProp::pulsarDist(int boton) {
    std::string* orientacion = this->orientacion();
    const CodigoDist* codigo = en(ficha_.Dist.codigos, boton);
    if (!orientacion || !codigo) return;
    if (ficha_.midenAlPulsar) leerMedidas();
    *orientacion = codigo->codigo;
    escrito();
}

Calco MuebleProp::calco(int boton) const {
    const CodigoDist* codigo = en(ficha_.Dist.codigos, boton);
    return existe() && codigo ? calcar(dibujo(), clase(), indice(), codigo->codigo) : Calco{};
}

void MuebleProp::Aplicar() {
    leerMedidas();
    escribirColores();
    if (Check1) guardarComoModelo();
    escrito();
}

void MuebleProp::leerMedidas() const {
    for (std::size_t i = 0; i < medidas.size(); ++i)
        if (double* valor = sitio(ficha_.campos[i].valor)) leerMetros(*valor, medidas[i]);
}

std::string* MuebleProp::orientacion() const {
    std::string* codigo = nullptr;
    conElemento([&](auto& elemento, const auto&) {
        if constexpr (requires { elemento.Orientacion; }) codigo = &elemento.Orientacion;
    });
    return codigo;
}

}  // namespace bosquel
