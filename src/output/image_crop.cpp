#include "output/image_crop.h"

#include "furnishing/dibujar_elemento.h"
#include "model/numeros.h"
#include "output/escala.h"
#include "platform/plataforma.h"

#include <algorithm>

namespace bosquel {

namespace {

double medidaSalida(float hoja) {
    return std::clamp(hoja * EscalaSalida, 0.0, ladoMaximo * twipsPorPixel);
}

int pixeles(double twips) {
    return static_cast<int>(redondear(twips / twipsPorPixel));
}

/// A bar is there for a sheet that reaches past the viewport; any other stands at 0.
void ajustar(ImageCrop::Barra& barra, double hoja, double visor) {
    barra.Visible = hoja > visor;
    if (!barra.Visible) barra.valor = 0;
}

double lugar(const ImageCrop::Barra& barra, double hoja, double visor) {
    return barra.Visible ? -(hoja - visor) * barra.valor / ImageCrop::Barra::maximo : 0;
}

}  // namespace

ImageCrop::ImageCrop(Plataforma& plataforma, const Dibujo& dibujo, std::filesystem::path carpeta)
    : plataforma_(plataforma), dibujo_(dibujo), carpeta_(std::move(carpeta)) {
    HojaSalida_.Width = medidaSalida(dibujo.Hoja.Width);
    HojaSalida_.Height = medidaSalida(dibujo.Hoja.Height);
}

void ImageCrop::cargar(LienzoSalida& lienzo) {
    lienzo_ = &lienzo;
    const TamanoSalida pedido{pixeles(HojaSalida_.Width), pixeles(HojaSalida_.Height)};
    const TamanoSalida pintado = lienzo.pintarHoja(pedido, [this](SuperficieSalida& superficie) {
        DibujarTodo(salidaDe(dibujo_, superficie, EscalaSalida), dibujo_);
    });
    if (pintado.ancho < pedido.ancho) HojaSalida_.Width = pintado.ancho * twipsPorPixel;
    if (pintado.alto < pedido.alto) HojaSalida_.Height = pintado.alto * twipsPorPixel;
}

void ImageCrop::redimensionar(double ancho, double alto) {
    visorAncho_ = ancho - margenAncho;
    visorAlto_ = std::max(alto, altoMinimo) - margenAlto;
    ajustar(HScroll1_, HojaSalida_.Width, visorAncho_);
    ajustar(VScroll1_, HojaSalida_.Height, visorAlto_);
    colocar();
}

void ImageCrop::cambiarHScroll1(int valor) {
    HScroll1_.valor = valor;
    colocar();
}

void ImageCrop::cambiarVScroll1(int valor) {
    VScroll1_.valor = valor;
    colocar();
}

void ImageCrop::colocar() {
    HojaSalida_.Left = lugar(HScroll1_, HojaSalida_.Width, visorAncho_);
    HojaSalida_.Top = lugar(VScroll1_, HojaSalida_.Height, visorAlto_);
    cambiar();
}

void ImageCrop::cambiar() const {
    if (alCambiar) alCambiar();
}

void ImageCrop::pulsar(double X, double Y) {
    recuadro_.pulsar(X, Y);
    cambiar();
}

void ImageCrop::mover(unsigned botones, double X, double Y) {
    if (botones != soloIzquierdo) return;
    if (recuadro_.estado() == EstadoRecuadro::Nuevo) {
        recuadro_.empezar();
        Esperando_ = false;
    }
    if (recuadro_.estado() == EstadoRecuadro::Seguir)
        seguir(X, Y);
    else if (recuadro_.estado() == EstadoRecuadro::Mover)
        recuadro_.llevar(X, Y);
    cambiar();
}

void ImageCrop::seguir(double X, double Y) {
    if (!recuadro_.seguir(X, Y)) return;
    const bool aLaDerecha = X + HojaSalida_.Left > visorAncho_;
    const bool abajo = Y + HojaSalida_.Top > visorAlto_;
    if (Esperando_) {
        if (aLaDerecha) asignar(UltimoX_, X);
        if (abajo) asignar(UltimoY_, Y);
        return;
    }
    if (aLaDerecha) avanzar(HScroll1_);
    if (abajo) avanzar(VScroll1_);
    esperar();
}

/// One step of the auto-scroll. What was told of the pointer while the last one was waited for counts now.
void ImageCrop::avanzar(Barra& barra) {
    if (barra.Visible) barra.valor = std::min(barra.valor + 1, Barra::maximo);
    RetardoMovimiento();
    colocar();
    mover(soloIzquierdo, UltimoX_, UltimoY_);
}

void ImageCrop::RetardoMovimiento() {
    Timer1_ = true;
    Esperando_ = true;
}

/// A step taken by an event that came in the midst of this is waited for here too, so that however long the
/// pointer stays past the edge, one event waits and the others end.
void ImageCrop::esperar() {
    if (enEspera_) return;
    enEspera_ = true;
    while (Esperando_)
        plataforma_.cederEventos(Espera::completa);
    enEspera_ = false;
    Timer1_ = false;
}

void ImageCrop::pasarTimer1() {
    Esperando_ = false;
}

void ImageCrop::soltar() {
    recuadro_.terminar();
    copiar();
}

void ImageCrop::copiar() {
    lienzo_->recortar(recuadro_.area(HojaSalida_));
    cambiar();
}

}  // namespace bosquel
