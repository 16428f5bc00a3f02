#include "ui/dialogo.h"

#include "ui/radios.h"
#include "ui/rotulos.h"
#include "ui/unidades.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QShowEvent>
#include <QVBoxLayout>

namespace bosquel {

namespace {

constexpr int margen = 14, separacion = 12;  // px
constexpr double bajoElBorde = 350;          // sheet units below the owner's top

}  // namespace

Dialogo::Dialogo(const char* nombre, const QString& titulo, const Botones& botones, QWidget* padre)
    : QDialog(padre), cuerpo_(new QVBoxLayout), pie_(new QHBoxLayout) {
    setObjectName(nombre);
    setWindowTitle(titulo);
    setAccessibleName(titulo);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    // Of its owner alone: the help can be read while a dialog is open.
    setWindowModality(Qt::WindowModal);

    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(margen, margen, margen, margen);
    todo->setSpacing(separacion);
    todo->setSizeConstraint(QLayout::SetFixedSize);
    todo->addLayout(cuerpo_);
    todo->addLayout(pie_);
    cuerpo_->setSpacing(separacion);

    auto* bttAplicar = nombrar(new QPushButton("&Aplicar", this), botones.aplicar);
    auto* bttCancelar = nombrar(new QPushButton("&Cancelar", this), botones.cancelar);
    bttAplicar->setDefault(true);
    connect(bttAplicar, &QPushButton::clicked, this, &Dialogo::accept);
    connect(bttCancelar, &QPushButton::clicked, this, &Dialogo::reject);
    pie_->addSpacing(2 * separacion);
    pie_->addStretch();
    pie_->addWidget(bttAplicar);
    pie_->addWidget(bttCancelar);
}

QPushButton* Dialogo::anadirBoton(const char* nombre, const QString& rotulo) {
    auto* boton = nombrar(new QPushButton(rotulo, this), nombre);
    boton->setMinimumWidth(boton->sizeHint().width() + separacion);
    pie_->insertWidget(sueltos_++, boton);
    return boton;
}

void Dialogo::ordenar(const QStringList& nombres) {
    QWidget* anterior = nullptr;
    for (const QString& nombre : nombres) {
        auto* siguiente = findChild<QWidget*>(nombre);
        if (anterior) setTabOrder(anterior, siguiente);
        anterior = siguiente;
    }
}

void Dialogo::accept() {
    aplicar();
    QDialog::accept();
}

void Dialogo::reject() {
    cancelar();
    QDialog::reject();
}

void Dialogo::showEvent(QShowEvent* suceso) {
    if (!suceso->spontaneous()) enfocarElegidos(*this);
    if (parentWidget() && !suceso->spontaneous()) colocar();
    QDialog::showEvent(suceso);
}

/// The frame around the dialog is not known before it shows: the owner's stands in for it.
void Dialogo::colocar() {
    const QWidget* dueno = parentWidget()->window();
    const QRect marco = dueno->frameGeometry();
    const QSize entero = size() + marco.size() - dueno->size();
    const QRect pantalla = dueno->screen()->availableGeometry();
    const QPoint ultimo = pantalla.bottomRight() - QPoint(entero.width(), entero.height()) + QPoint(1, 1);
    const int x = marco.right() + 1 - entero.width();
    const int y = marco.top() + aPixeles(bajoElBorde);
    move(std::max(pantalla.left(), std::min(x, ultimo.x())),
         std::max(pantalla.top(), std::min(y, ultimo.y())));
}

}  // namespace bosquel
