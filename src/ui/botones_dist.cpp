#include "ui/botones_dist.h"

#include "ui/boton.h"
#include "ui/imagen_elemento.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <algorithm>

namespace bosquel {

namespace {

constexpr QSize tamanoBoton{60, 60}, tamanoImagen{48, 48};  // px
constexpr int altoRotulo = 16, separacion = 6;              // px
constexpr int porFila = 4;

}  // namespace

BotonesDist::BotonesDist(const QString& nombre, const std::vector<Rotulo>& rotulos, QWidget* padre)
    : QWidget(padre), grupo_(new QButtonGroup(this)) {
    auto* rejilla = new QGridLayout(this);
    rejilla->setContentsMargins(0, 0, 0, 0);
    rejilla->setSpacing(separacion);
    for (const auto& [visible, leido] : rotulos) {
        const int indice = static_cast<int>(botones_.size());
        auto* boton = new Boton(QString("%1_%2").arg(nombre).arg(indice), visible, {}, this);
        boton->setAccessibleName(leido);
        boton->setToolTip(leido);
        boton->setCheckable(true);
        boton->ponerBordeElevado(true);
        boton->setIconSize(tamanoImagen);
        boton->setFixedSize(tamanoBoton + QSize(0, visible.isEmpty() ? 0 : altoRotulo));
        rejilla->addWidget(boton, indice / porFila, indice % porFila);
        grupo_->addButton(boton, indice);
        botones_.push_back(boton);
    }
    rejilla->setColumnStretch(porFila, 1);
    marcar(-1);
    connect(grupo_, &QButtonGroup::idClicked, this, &BotonesDist::pulsado);
}

void BotonesDist::marcar(int cual) {
    // An exclusive group does not let go of its last button.
    grupo_->setExclusive(false);
    // The Tab key visits the pressed one alone, the arrow keys the others.
    for (int i = 0; Boton * boton : botones_) {
        boton->setChecked(i == cual);
        boton->setFocusPolicy(i == std::max(cual, 0) ? Qt::StrongFocus : Qt::ClickFocus);
        ++i;
    }
    grupo_->setExclusive(true);
}

void BotonesDist::mostrar(const std::vector<Calco>& calcos, const QSizeF& marco) {
    for (std::size_t i = 0; Boton * boton : botones_)
        boton->ponerImagen([calco = calcos.at(i++), marco](const QPalette& paleta) {
            return imagenElemento(calco, paleta, marco);
        });
}

}  // namespace bosquel
