#include "drawing/texto_libre.h"

#include "drawing/foco.h"
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

void escribirTexto(Sesion& sesion, const std::string& escrito) {
    if (!sesion.foco || sesion.foco->clase != Clase::TextoLibre) return;
    const Referencia cual = *sesion.foco;
    TextoLibre* texto = sesion.dibujo.TextoLibre.en(cual.indice);
    if (!texto || texto->Text == escrito) return;
    texto->Text = escrito;
    ajustarATexto(sesion, *texto);
    if (sesion.RectSel.Visible) {
        enmarcar(sesion, cual);
        alFrente(sesion.dibujo, *texto);
    }
    anunciar(sesion.dibujo, cual.clase, cual.indice);
}

void terminarTexto(Sesion& sesion, int indice) {
    TextoLibre* texto = sesion.dibujo.TextoLibre.en(indice);
    if (!texto) return;
    if (texto->Text.empty()) texto->Text = "Texto Libre(" + std::to_string(indice) + ")";
    ajustarATexto(sesion, *texto);
    anunciar(sesion.dibujo, Clase::TextoLibre, indice);
}

}  // namespace bosquel
