#include "ui/radios.h"

#include "ui/rotulos.h"

#include <QButtonGroup>
#include <QRadioButton>

namespace bosquel {

namespace {

bool seExcluyen(const QRadioButton& uno, const QRadioButton& otro) {
    return uno.group() == otro.group() &&
           (uno.group() != nullptr || uno.parentWidget() == otro.parentWidget());
}

}  // namespace

std::vector<QRadioButton*> nuevosRadios(const QString& nombre, int primero, const QStringList& rotulos,
                                        int elegido, const std::function<void(int)>& alElegir) {
    std::vector<QRadioButton*> radios;
    for (int indice = primero; const QString& rotulo : rotulos) {
        auto* radio =
            nombrar(new QRadioButton(rotulo), qUtf8Printable(QString("%1_%2").arg(nombre).arg(indice)));
        radio->setChecked(indice == elegido);
        QObject::connect(radio, &QRadioButton::toggled, radio, [indice, alElegir](bool puesto) {
            if (puesto) alElegir(indice);
        });
        radios.push_back(radio);
        ++indice;
    }
    return radios;
}

void enfocarElegidos(QWidget& ventana) {
    const auto radios = ventana.findChildren<QRadioButton*>();
    for (const QRadioButton* elegido : radios)
        for (QRadioButton* radio : radios)
            if (elegido->isChecked() && seExcluyen(*elegido, *radio))
                radio->setFocusPolicy(radio == elegido ? Qt::StrongFocus : Qt::ClickFocus);
}

}  // namespace bosquel
