#include "furnishing/dialogo_mueble.h"

namespace bosquel {

namespace {

template <class T>
constexpr bool tieneFondo = std::derived_from<T, ElementoConFondo>;

}  // namespace

DialogoMueble::DialogoMueble(Dibujo& dibujo, Clase clase, int indice)
    : dibujo_(dibujo), clase_(clase), indice_(indice) {
    conElemento([this]<class T>(const T& elemento, const T&) {
        txtLineColor = elemento.LineColor;
        if constexpr (tieneFondo<T>) txtBackColor = elemento.BackColor;
    });
}

bool DialogoMueble::conFondo() const {
    return conColeccion(dibujo_, clase_, []<class T>(const Coleccion<T>&) { return tieneFondo<T>; });
}

bool DialogoMueble::existe() const {
    bool hay = false;
    conElemento([&](const auto&, const auto&) { hay = true; });
    return hay;
}

void DialogoMueble::escribirColores() const {
    conElemento([this]<class T>(T& elemento, const T&) {
        elemento.LineColor = txtLineColor;
        if constexpr (tieneFondo<T>) elemento.BackColor = txtBackColor;
    });
}

void DialogoMueble::guardarComoModelo() const {
    conElemento([]<class T>(const T& elemento, T& modelo) {
        // The place stays the model's own.
        T nuevo = elemento;
        Elemento& comun = nuevo;
        const Elemento& suyo = modelo;
        comun = suyo;
        nuevo.LineColor = elemento.LineColor;
        modelo = nuevo;
    });
}

void DialogoMueble::escrito() const {
    if (!existe()) return;
    anunciar(dibujo_, clase_, indice_);
    if (alEscribir) alEscribir();
}

}  // namespace bosquel
