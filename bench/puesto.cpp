#include "puesto.h"

#include "dibujos.h"
#include "ui/unidades.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWindow>

namespace bosquel::bench {

namespace {

// What lies around the viewport in the main window, in pixels, is less than this.
constexpr QSize ventana{1280 + 160, 800 + 120};

}  // namespace

Puesto::Puesto(int elementos) : bosquel_(plataforma_, carpeta_.path().toStdString()), ventana_(bosquel_) {
    plataforma_.ponerVentana(&ventana_);
    plataforma_.archivo = archivo();
    bosquel_.cargar();
    ventana_.resize(ventana);
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
    pintar();
}

void pintar(QWidget& ventana) {
    if (!ventana.windowHandle()->isExposed()) QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
    QEvent peticion(QEvent::UpdateRequest);
    QApplication::sendEvent(&ventana, &peticion);
}

void Puesto::puntero(QEvent::Type tipo, float x, float y) {
    const QPointF lugar(x / unidadesPorPixel, y / unidadesPorPixel);
    const bool suelto = tipo == QEvent::MouseButtonRelease;
    QMouseEvent evento(tipo, lugar, hoja().mapToGlobal(lugar),
                       tipo == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                       suelto ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&hoja(), &evento);
}

}  // namespace bosquel::bench
