#pragma once

#include "apoyo/carpeta_temporal.h"
#include "drawing/archivo.h"
#include "drawing/bosquel.h"
#include "ui/plataforma_qt.h"
#include "ui/ventana_bosquel.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QMouseEvent>
#include <QTest>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

namespace bosquel::apoyo {

/// The real main window in a folder of its own, past its splash, with an empty drawing.
class VentanaDePrueba : public testing::Test {
  protected:
    VentanaDePrueba() {
        plataforma.ponerVentana(&ventana);
        ventana.resize(1000, 700);
        ResetearDibujo(bosquel.sesion());
        ventana.show();
        QApplication::processEvents();
    }

    template <class Control = QWidget>
    Control& control(const QString& nombre) {
        auto* hallado = ventana.findChild<Control*>(nombre);
        if (!hallado) qFatal("no control %s", qUtf8Printable(nombre));
        return *hallado;
    }

    void pulsar(const QString& boton) { QTest::mouseClick(&control(boton), Qt::LeftButton); }
    void clicEnHoja(QPoint punto) { QTest::mouseClick(&control("Hoja"), Qt::LeftButton, {}, punto); }

    /// The pointer passes over a control without a button.
    void cruzar(const QString& nombre) {
        QWidget& cruzado = control(nombre);
        const QPointF punto(cruzado.rect().center());
        QMouseEvent paso(QEvent::MouseMove, punto, cruzado.mapToGlobal(punto), Qt::NoButton, Qt::NoButton,
                         {});
        QApplication::sendEvent(&cruzado, &paso);
    }

    /// When the next window opens in front of the main one, does this with it.
    template <class Forma>
    void cuandoSeAbra(std::function<void(Forma&)> mano) {
        QTimer::singleShot(0, &ventana, [this, mano] {
            if (auto* forma = qobject_cast<Forma*>(QApplication::activeModalWidget()))
                mano(*forma);
            else
                cuandoSeAbra<Forma>(mano);
        });
    }

    /// Lays a wall at a point of the sheet, in pixels, with the values that its dialog offers.
    void ponMuro(QPoint punto) {
        pulsar("BttUsuario_0");
        cuandoSeAbra<QDialog>([](QDialog& dialogo) {
            QTest::mouseClick(dialogo.findChild<QWidget*>("Botones_1"), Qt::LeftButton);
        });
        clicEnHoja(punto);
    }

    Dibujo& dibujo() { return bosquel.sesion().dibujo; }
    /// The middle of a grip, in pixels of the sheet.
    static QPoint centro(const Pinza& pinza) {
        return (QPointF(pinza.Left + pinza.Lado / 2, pinza.Top + pinza.Lado / 2) / 15).toPoint();
    }

    CarpetaTemporal carpeta;
    PlataformaQt plataforma;
    Bosquel bosquel{plataforma, carpeta.ruta()};
    VentanaBosquel ventana{bosquel};
};

}  // namespace bosquel::apoyo
