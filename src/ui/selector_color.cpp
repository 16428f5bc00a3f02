#include "ui/selector_color.h"

#include "ui/color_qt.h"

#include <QColorDialog>
#include <QFrame>
#include <QHBoxLayout>
#include <QToolButton>

namespace bosquel {

namespace {

constexpr QSize tamanoMuestra{44, 22};
constexpr int separacion = 4;  // px

}  // namespace

SelectorColor::SelectorColor(const QString& muestra, const QString& boton, const QString& leido,
                             QWidget* padre)
    : QWidget(padre), muestra_(new QFrame) {
    muestra_->setObjectName(muestra);
    muestra_->setAccessibleName(leido);
    muestra_->setFrameStyle(QFrame::Box | QFrame::Plain);
    muestra_->setAutoFillBackground(true);
    muestra_->setFixedSize(tamanoMuestra);
    auto* abridor = new QToolButton;
    abridor->setObjectName(boton);
    abridor->setText("…");
    abridor->setAccessibleName("Elegir " + leido);
    abridor->setToolTip(abridor->accessibleName());
    abridor->setFixedHeight(tamanoMuestra.height());
    abridor->setFocusPolicy(Qt::StrongFocus);
    connect(abridor, &QToolButton::clicked, this, &SelectorColor::elegir);
    setFocusProxy(abridor);

    auto* fila = new QHBoxLayout(this);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->setSpacing(separacion);
    fila->addWidget(muestra_);
    fila->addWidget(abridor);
    ponerColor(color_);
}

void SelectorColor::ponerColor(Color color) {
    color_ = color;
    QPalette paleta = muestra_->palette();
    paleta.setColor(QPalette::Window, colorQt(color));
    muestra_->setPalette(paleta);
    muestra_->setAccessibleDescription(colorQt(color).name());
}

void SelectorColor::elegir() {
    QColorDialog dialogo(window());
    dialogo.setOption(QColorDialog::DontUseNativeDialog);
    dialogo.setCurrentColor(Qt::black);
    for (int i = 0; i < QColorDialog::customCount(); ++i)
        QColorDialog::setCustomColor(i, Qt::black);
    const bool conColor = dialogo.exec() == QDialog::Accepted;
    if (conColor) ponerColor(colorDe(dialogo.currentColor()));
    emit elegido(conColor);
}

}  // namespace bosquel
