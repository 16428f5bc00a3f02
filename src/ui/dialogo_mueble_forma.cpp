#include "ui/dialogo_mueble_forma.h"

#include "furnishing/dialogo_mueble.h"
#include "model/standard.h"
#include "ui/campo_numero.h"
#include "ui/radios.h"
#include "ui/rotulos.h"
#include "ui/selector_color.h"
#include "ui/textos.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

namespace bosquel {

namespace {

constexpr int anchoCampo = 84, separacionColores = 18;  // px

/// A caption, its swatch, and what the swatch has chosen.
void ponerColor(QHBoxLayout* fila, const QString& rotulo, SelectorColor* selector, Color& color) {
    selector->ponerColor(color);
    QObject::connect(selector, &SelectorColor::elegido, selector,
                     [selector, &color] { color = selector->color(); });
    fila->addWidget(rotular(rotulo, selector));
    fila->addWidget(selector);
    fila->addSpacing(separacionColores);
}

}  // namespace

DialogoMuebleForma::DialogoMuebleForma(const QString& nombre, const QString& titulo, DialogoMueble& logica,
                                       QWidget* padre)
    : Dialogo(nombre.toUtf8().constData(), titulo, {"Command1", "Command2"}, padre),
      logica_(logica),
      letras_("acg") {}

QString DialogoMuebleForma::conLetra(const QString& rotulo) {
    for (const bool inicial : {true, false})
        for (qsizetype i = 0; i < rotulo.size(); ++i) {
            const QChar letra = rotulo[i].toLower();
            const bool esInicial = i == 0 || rotulo[i - 1].isSpace();
            if (!letra.isLetter() || esInicial != inicial || letras_.contains(letra)) continue;
            letras_ += letra;
            return rotulo.left(i) + '&' + rotulo.mid(i);
        }
    return rotulo;
}

CampoNumero* DialogoMuebleForma::campo(const QString& nombre, std::string& texto) {
    auto* campo = nombrar(new CampoNumero(FiltraDecimal), nombre.toUtf8().constData());
    campo->setText(aQString(texto));
    campo->setAlignment(Qt::AlignRight);
    campo->setFixedWidth(anchoCampo);
    connect(campo, &QLineEdit::textChanged, this,
            [&texto](const QString& nuevo) { texto = nuevo.toStdString(); });
    return campo;
}

QRadioButton* DialogoMuebleForma::radio(const QString& nombre, const QString& rotulo, bool elegido,
                                        const std::function<void()>& alElegir) {
    auto* boton = nombrar(new QRadioButton(rotulo), nombre.toUtf8().constData());
    boton->setChecked(elegido);
    connect(boton, &QRadioButton::toggled, this, [alElegir](bool puesto) {
        if (puesto) alElegir();
    });
    return boton;
}

QGroupBox* DialogoMuebleForma::colores() {
    auto* marco = new QGroupBox("Colores");
    auto* fila = new QHBoxLayout(marco);
    ponerColor(fila, conLetra("Línea"), new SelectorColor("txtLineColor", "cmdLineColor", "color de línea"),
               logica_.txtLineColor);
    if (logica_.conFondo())
        ponerColor(fila, conLetra("Relleno"),
                   new SelectorColor("txtBackColor", "cmdBackColor", "color de relleno"),
                   logica_.txtBackColor);
    fila->addStretch();
    return marco;
}

QCheckBox* DialogoMuebleForma::casilla() {
    auto* casilla = nombrar(new QCheckBox("&Guardar como modelo"), "Check1");
    casilla->setChecked(logica_.Check1);
    connect(casilla, &QCheckBox::toggled, this, [this](bool puesta) { logica_.Check1 = puesta; });
    return casilla;
}

void DialogoMuebleForma::ponerFinal() {
    cuerpo()->addWidget(colores());
    cuerpo()->addWidget(casilla());
    ordenar({"Check1", "Command1", "Command2"});
    enfocarElegidos(*this);
    auto* primero = findChild<QWidget*>("Command2")->nextInFocusChain();
    while ((primero->focusPolicy() & Qt::TabFocus) == 0)
        primero = primero->nextInFocusChain();
    primero->setFocus();
}

void DialogoMuebleForma::aplicar() {
    logica_.Aplicar();
}

}  // namespace bosquel
