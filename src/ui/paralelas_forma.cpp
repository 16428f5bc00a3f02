#include "ui/paralelas_forma.h"

#include "model/standard.h"
#include "ui/campo_numero.h"
#include "ui/dial.h"
#include "ui/rotulos.h"
#include "ui/textos.h"
#include "ui/unidades.h"
#include "walls/paralelas.h"

#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

namespace bosquel {

namespace {

constexpr double anchoBoceto = 2200, altoBoceto = 2000;  // sheet units: the sketch is centred on (1100, 1000)
constexpr double ladoPunto = 400;
constexpr int anchoCampo = 84;  // px

}  // namespace

ParalelasForma::ParalelasForma(Paralelas& logica, QWidget* padre)
    : Dialogo("Paralelas", "Situar Paralela", {"Command1", "Command2"}, padre), logica_(logica) {
    auto* titulo = new QLabel("Posición de la pared");
    titulo->setObjectName("Label1");
    cuerpo()->addWidget(titulo, 0, Qt::AlignHCenter);
    cuerpo()->addWidget(boceto(), 0, Qt::AlignHCenter);
    cuerpo()->addWidget(distancia());
    ordenar({"TxtDistancia", "Punto1", "Punto2", "Command1", "Command2"});
    findChild<CampoNumero*>("TxtDistancia")->setFocus();
}

QRadioButton* ParalelasForma::lado(int cual, QWidget* campo) {
    const auto punto = cual == 1 ? Paralelas::Punto::Punto1 : Paralelas::Punto::Punto2;
    auto* boton = new QRadioButton(campo);
    boton->setObjectName(QString("Punto%1").arg(cual));
    boton->setAccessibleName(cual == 1 ? "Un lado de la pared" : "El otro lado de la pared");
    const QSize tamano = boton->sizeHint();
    const auto lugar = logica_.lugar(punto);
    boton->setGeometry(aPixeles(lugar.Left + ladoPunto / 2) - tamano.width() / 2,
                       aPixeles(lugar.Top + ladoPunto / 2) - tamano.height() / 2, tamano.width(),
                       tamano.height());
    boton->setChecked(logica_.elegido == punto);
    connect(boton, &QRadioButton::toggled, this, [this, punto](bool puesto) {
        if (puesto) logica_.elegido = punto;
    });
    connect(boton, &QRadioButton::clicked, this,
            [this] { findChild<CampoNumero*>("TxtDistancia")->setFocus(); });
    return boton;
}

QWidget* ParalelasForma::boceto() {
    auto* campo = new QWidget;
    campo->setFixedSize(aPixeles(anchoBoceto), aPixeles(altoBoceto));
    campo->setAutoFillBackground(true);
    // Paper, so that the sketch reads the same on every desktop.
    QPalette colores = campo->palette();
    colores.setColor(QPalette::Window, Qt::white);
    colores.setColor(QPalette::Base, Qt::white);
    colores.setColor(QPalette::WindowText, Qt::black);
    colores.setColor(QPalette::Text, Qt::black);
    campo->setPalette(colores);
    const Segmento& trazo = logica_.Line1();
    const QLineF enPixeles(QPointF(trazo.X1, trazo.Y1) / unidadesPorPixel,
                           QPointF(trazo.X2, trazo.Y2) / unidadesPorPixel);
    auto* linea = new LineaDial(enPixeles, campo);
    linea->setObjectName("Line1");
    lado(1, campo);
    lado(2, campo);
    return campo;
}

QWidget* ParalelasForma::distancia() {
    auto* marco = new QWidget;
    auto* rejilla = nuevaRejilla(marco);
    rejilla->setContentsMargins(0, 0, 0, 0);
    auto* campo = new CampoNumero(FiltraDecimal);
    nombrar(campo, "TxtDistancia")->setFixedWidth(anchoCampo);
    campo->setAlignment(Qt::AlignRight);
    campo->setText(aQString(logica_.TxtDistancia));
    connect(campo, &QLineEdit::textChanged, this,
            [this](const QString& texto) { logica_.TxtDistancia = texto.toStdString(); });
    ponerFila(rejilla, 0, rotular("&Distancia", campo, "metros"), campo, "m");
    return marco;
}

void ParalelasForma::aplicar() {
    logica_.Aplicar();
}

}  // namespace bosquel
