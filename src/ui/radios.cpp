#include "ui/radios.h"

#include "ui/rotulos.h"

#include <QRadioButton>

namespace bosquel {

std::vector<QRadioButton*> nuevosRadios(const QString& nombre, int primero, const QStringList& rotulos,
                                        int elegido, const std::function<void(int)>& alElegir) {
    const int ultimo = primero + static_cast<int>(rotulos.size()) - 1;
    const bool hayElegido = elegido >= primero && elegido <= ultimo;
    std::vector<QRadioButton*> radios;
    for (int indice = primero; const QString& rotulo : rotulos) {
        auto* radio =
            nombrar(new QRadioButton(rotulo), qUtf8Printable(QString("%1_%2").arg(nombre).arg(indice)));
        radio->setChecked(indice == elegido);
        // Once one of them has had the focus, the toolkit itself sees to it.
        if (hayElegido && indice != elegido) radio->setFocusPolicy(Qt::ClickFocus);
        QObject::connect(radio, &QRadioButton::toggled, radio, [indice, alElegir](bool puesto) {
            if (puesto) alElegir(indice);
        });
        radios.push_back(radio);
        ++indice;
    }
    return radios;
}

}  // namespace bosquel
