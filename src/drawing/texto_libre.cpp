#include "drawing/texto_libre.h"

#include "model/numeros.h"

namespace bosquel {

namespace {

constexpr double aire = 60;  // sheet units

}  // namespace

void ajustarATexto(Sesion& sesion, TextoLibre& texto) {
    const Medida medida = sesion.plataforma.medirTexto(texto.Text + "X", texto.FontSize);
    asignar(texto.Width, medida.ancho + aire);
    asignar(texto.Height, medida.alto);
}

}  // namespace bosquel
