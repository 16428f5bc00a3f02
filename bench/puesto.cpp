#include "puesto.h"

#include "dibujos.h"
#include "ui/unidades.h"

#include <QApplication>
#include <QWindow>

namespace bosquel::bench {

namespace {

// What lies around the viewport in the main window, in pixels, is less than this.
constexpr QSize tamanoVentana{1280 + 160, 800 + 120};

}  // namespace

Puesto::Puesto(int elementos) : bosquel_(plataforma_, carpeta_.path().toStdString()), ventana_(bosquel_) {
    plataforma_.ponerVentana(&ventana_);
    plataforma_.archivo = archivo();
    bosquel_.cargar();
    ventana_.resize(tamanoVentana);
    ponerElementos(dibujo(), elementos);
    ventana_.show();
    mostrarTodo();
}

std::filesystem::path Puesto::archivo() const {
    return std::filesystem::path(carpeta_.path().toStdString()) / "medida.bqr";
}

void Puesto::mostrarTodo() {
    anunciarTodo(dibujo());
    dibujo().sucia.anadirTodo();
    sesion().vistaSucia = true;
    publicar(sesion());
    pintar(ventana_);
}

void pintar(QWidget& ventana) {
    if (!ventana.windowHandle()->isExposed()) QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
    QEvent peticion(QEvent::UpdateRequest);
    QApplication::sendEvent(&ventana, &peticion);
}

QPoint Puesto::lugar(float x, float y) {
    const QPoint enHoja = QPointF(x / unidadesPorPixel, y / unidadesPorPixel).toPoint();
    return hoja().mapTo(&ventana_, enHoja);
}

}  // namespace bosquel::bench
