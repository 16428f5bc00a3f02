#include "ui/rotulos.h"

#include <QGridLayout>
#include <QLabel>

namespace bosquel {

namespace {

constexpr int separacionColumnas = 8, separacionFilas = 8;  // px

}  // namespace

QString leido(const QString& rotulo) {
    QString limpio = rotulo;
    return limpio.remove('&').remove(':').simplified();
}

QLabel* rotular(const QString& rotulo, QWidget* campo, const QString& unidad) {
    auto* etiqueta = new QLabel(rotulo);
    etiqueta->setBuddy(campo);
    campo->setAccessibleName(leido(rotulo));
    campo->setAccessibleDescription(unidad);
    return etiqueta;
}

QGridLayout* nuevaRejilla(QWidget* marco) {
    auto* rejilla = new QGridLayout(marco);
    rejilla->setHorizontalSpacing(separacionColumnas);
    rejilla->setVerticalSpacing(separacionFilas);
    rejilla->setColumnStretch(0, 1);
    return rejilla;
}

QLabel* ponerFila(QGridLayout* rejilla, int fila, QWidget* rotulo, QWidget* campo, const QString& unidad) {
    rejilla->addWidget(rotulo, fila, 0);
    rejilla->addWidget(campo, fila, 1);
    auto* medida = new QLabel(unidad);
    rejilla->addWidget(medida, fila, 2);
    return medida;
}

}  // namespace bosquel
