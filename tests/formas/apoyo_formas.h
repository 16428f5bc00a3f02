#pragma once

#include "apoyo/plataforma_muda.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QSet>
#include <QTest>
#include <gtest/gtest.h>

namespace bosquel::apoyo {

/// The control of this object name; a test that asks for one that is not there fails.
template <class Control = QWidget>
Control& control(QWidget& forma, const QString& nombre) {
    auto* hallado = forma.findChild<Control*>(nombre);
    if (!hallado) qFatal("no control %s", qUtf8Printable(nombre));
    return *hallado;
}

inline QString texto(QWidget& forma, const QString& campo) {
    return control<QLineEdit>(forma, campo).text();
}

/// A caption without its mnemonic.
template <class Control>
QString rotulo(QWidget& forma, const QString& nombre) {
    return control<Control>(forma, nombre).text().remove('&');
}

inline void mostrarActiva(QWidget& forma) {
    forma.show();
    forma.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&forma));
}

inline void pulsar(QWidget& forma, const QString& nombre) {
    QTest::mouseClick(&control(forma, nombre), Qt::LeftButton);
}

/// Empties the field and types.
inline void teclear(QWidget& forma, const QString& campo, const QString& tecleado) {
    auto& destino = control<QLineEdit>(forma, campo);
    destino.clear();
    QTest::keyClicks(&destino, tecleado);
}

inline QColor color(const QWidget& control, QPalette::ColorRole papel) {
    return control.palette().color(papel);
}

inline bool gris(const QWidget& campo) {
    return !campo.isEnabled() && color(campo, QPalette::Base) == color(*campo.window(), QPalette::Button);
}

inline bool blanca(const QWidget& campo) {
    return campo.isEnabled() && color(campo, QPalette::Base) == color(*campo.window(), QPalette::Base);
}

/// The controls that the Tab key visits from the focus on, until it is back.
inline QStringList recorridoTab(QWidget& forma) {
    QStringList nombres;
    while (!nombres.contains(forma.focusWidget()->objectName())) {
        nombres += forma.focusWidget()->objectName();
        QTest::keyClick(forma.focusWidget(), Qt::Key_Tab);
    }
    return nombres;
}

/// No two captions in sight share a letter, and every control says what it is.
inline void esperarAccesible(QWidget& forma) {
    QSet<QString> letras;
    const auto apuntar = [&](const QString& rotulado) {
        const QString letra = QKeySequence::mnemonic(rotulado).toString();
        if (letra.isEmpty()) return;
        EXPECT_FALSE(letras.contains(letra)) << rotulado.toStdString();
        letras.insert(letra);
    };
    for (const QWidget* hijo : forma.findChildren<QWidget*>()) {
        if (!hijo->isVisibleTo(&forma)) continue;
        const auto* boton = qobject_cast<const QAbstractButton*>(hijo);
        const auto* etiqueta = qobject_cast<const QLabel*>(hijo);
        if (boton) apuntar(boton->text());
        if (etiqueta && etiqueta->buddy()) apuntar(etiqueta->text());
        EXPECT_TRUE(hijo->focusPolicy() == Qt::NoFocus || !hijo->accessibleName().isEmpty())
            << hijo->objectName().toStdString();
    }
}

}  // namespace bosquel::apoyo
