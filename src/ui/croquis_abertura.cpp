#include "ui/croquis_abertura.h"

#include "openings/abertura_prop.h"
#include "ui/rotulos.h"
#include "ui/superficie_imagen.h"

#include <QButtonGroup>
#include <QPainter>
#include <cmath>

namespace bosquel {

namespace {

constexpr double unidadesDelCroquis = 7.5;  // units of the sketch to a logical pixel
constexpr int lado = static_cast<int>(2 * AberturaProp::alcance / unidadesDelCroquis);
constexpr double radio = 8, radioElegido = 4;  // px

// White on every desktop, as the sheet is: so are the inks.
const QColor tinta(64, 64, 64);
const QColor tintaPalida(196, 196, 196);

constexpr std::array nombres{"Punto1", "Punto2", "Lado1", "Lado2"};

/// From units of the sketch to pixels of the widget.
QPointF enPixeles(double x, double y) {
    return QPointF(x - AberturaProp::centroX, y - AberturaProp::centroY) / unidadesDelCroquis +
           QPointF(lado, lado) / 2.0;
}

}  // namespace

bool BotonCroquis::hitButton(const QPoint& punto) const {
    return rect().contains(punto);
}

void BotonCroquis::paintEvent(QPaintEvent*) {
    QPainter pintor(this);
    pintor.setRenderHint(QPainter::Antialiasing);
    const QPointF centro = QRectF(rect()).center();
    const QColor acento = palette().color(QPalette::Active, QPalette::Highlight);
    const QColor borde = !isEnabled() ? tintaPalida : isChecked() || underMouse() ? acento : tinta;
    pintor.setPen(QPen(borde, 1.5));
    pintor.setBrush(Qt::white);
    pintor.drawEllipse(centro, radio, radio);
    if (hasFocus()) {
        pintor.setBrush(Qt::NoBrush);
        pintor.setPen(QPen(acento, 1, Qt::DotLine));
        pintor.drawEllipse(centro, radio + 3, radio + 3);
    }
    if (!isChecked()) return;
    pintor.setPen(Qt::NoPen);
    pintor.setBrush(borde);
    pintor.drawEllipse(centro, radioElegido, radioElegido);
}

CroquisAbertura::CroquisAbertura(AberturaProp& logica, const std::array<const char*, 4>& rotulos,
                                 QWidget* padre)
    : QWidget(padre), logica_(logica) {
    setObjectName("Croquis");
    setFixedSize(lado, lado);
    auto* puntos = new QButtonGroup(this);
    auto* extremos = new QButtonGroup(this);
    for (std::size_t i = 0; i < botones_.size(); ++i)
        botones_[i] = ponerBoton(i, rotulos[i], i < 2 ? puntos : extremos);
    logica_.alDibujar = [this] { mostrar(); };
    mostrar();
}

QRadioButton* CroquisAbertura::ponerBoton(std::size_t indice, const char* rotulo, QButtonGroup* grupo) {
    const AberturaProp::Boton boton = AberturaProp::botones[indice];
    auto* redondo = new BotonCroquis(this);
    nombrar(redondo, nombres[indice]);
    redondo->setAccessibleName(QString::fromUtf8(rotulo));
    redondo->setToolTip(QString::fromUtf8(rotulo));
    const Recuadro sitio = logica_.sitio(boton);
    const QPointF esquina = enPixeles(sitio.Left, sitio.Top);
    const int tamano = static_cast<int>(std::lround(sitio.Width / unidadesDelCroquis));
    redondo->setGeometry(QRect(esquina.toPoint(), QSize(tamano, tamano)));
    grupo->addButton(redondo);
    connect(redondo, &QRadioButton::toggled, this, [this, boton](bool puesto) {
        if (puesto) logica_.elegir(boton);
    });
    return redondo;
}

void CroquisAbertura::mostrar() {
    for (std::size_t i = 0; i < botones_.size(); ++i) {
        botones_[i]->setEnabled(logica_.habilitado(AberturaProp::botones[i]));
        if (logica_.elegido(AberturaProp::botones[i])) botones_[i]->setChecked(true);
    }
    update();
}

QImage CroquisAbertura::imagen() const {
    const double densidad = devicePixelRatioF();
    QImage imagen = papelDe(*this);
    SuperficieImagen superficie(imagen, densidad / unidadesDelCroquis, SuperficieImagen::Letras::sinSuavizar,
                                enPixeles(0, 0) * densidad);
    logica_.trazarCroquis(superficie);
    return imagen;
}

void CroquisAbertura::paintEvent(QPaintEvent*) {
    QPainter pintor(this);
    ponerPapel(pintor, imagen());
    pintor.setPen(palette().color(QPalette::Mid));
    pintor.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

}  // namespace bosquel
