#include "ui/entrada_forma.h"

#include "drawing/entrada.h"
#include "ui/plano_entrada.h"
#include "ui/textos.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

namespace bosquel {

namespace {

constexpr QSize medida(460, 300);  // px
constexpr int margen = 28;         // px
constexpr int puntosNombre = 24, puntosVersion = 10;
const QColor tinta(0x33, 0x37, 0x3D), tintaSuave(0x6A, 0x70, 0x78), papel(0xFD, 0xFC, 0xF9),
    filo(0xC4, 0xC4, 0xC0);

QLabel* escrito(const char* nombre, const QString& texto, int puntos, const QColor& color, QWidget* padre) {
    auto* etiqueta = new QLabel(texto, padre);
    etiqueta->setObjectName(nombre);
    etiqueta->setAccessibleName(texto);
    QFont letra = etiqueta->font();
    letra.setPointSize(puntos);
    etiqueta->setFont(letra);
    QPalette colores;
    colores.setColor(QPalette::WindowText, color);
    etiqueta->setPalette(colores);
    return etiqueta;
}

}  // namespace

EntradaForma::EntradaForma(Entrada& logica)
    : QDialog(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint),
      logica_(logica),
      lblVersion_(escrito("lblVersion", {}, puntosVersion, tintaSuave, this)),
      reloj_(new QTimer(this)) {
    setObjectName("Entrada");
    setWindowTitle("Bosquel Rapiz");
    setAccessibleName(windowTitle());
    setModal(true);
    setFixedSize(medida);
    lblVersion_->setAccessibleName("Versión");

    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(margen, margen, margen, margen - 6);
    columna->addStretch();
    columna->addWidget(escrito("lblNombre", windowTitle(), puntosNombre, tinta, this));
    columna->addWidget(lblVersion_);

    reloj_->setObjectName("Timer1");
    reloj_->setInterval(logica_.intervalo());
    connect(reloj_, &QTimer::timeout, this, &EntradaForma::tic);
}

void EntradaForma::tic() {
    logica_.tic();
    lblVersion_->setText(aQString(logica_.lblVersion()));
    if (reloj_->interval() != logica_.intervalo()) reloj_->setInterval(logica_.intervalo());
    if (logica_.cerrada()) close();
}

void EntradaForma::mousePressEvent(QMouseEvent*) {
    close();
}

void EntradaForma::showEvent(QShowEvent* suceso) {
    const QRect pantalla = screen()->availableGeometry();
    move(pantalla.center() - rect().center());
    QDialog::showEvent(suceso);
    reloj_->start();
}

void EntradaForma::hideEvent(QHideEvent* suceso) {
    reloj_->stop();
    QDialog::hideEvent(suceso);
}

void EntradaForma::paintEvent(QPaintEvent*) {
    QPainter pintor(this);
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setPen(filo);
    pintor.setBrush(papel);
    pintor.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    dibujarPlano(pintor, QRectF(rect()).adjusted(margen, margen, -margen, -112), tinta, tintaSuave);
}

}  // namespace bosquel
