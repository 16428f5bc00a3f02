#pragma once

#include "drawing/vista.h"
#include "formas/apoyo_formas.h"
#include "formas/ventana_de_prueba.h"
#include "output/image_crop.h"
#include "ui/image_crop_forma.h"
#include "ui/unidades.h"

#include <QClipboard>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QWheelEvent>
#include <memory>

namespace bosquel::apoyo {

/// The window of the output before a drawing with one wall, 4 m from (200, 200) pixels of the main sheet on.
struct PruebaImageCrop : VentanaDePrueba {
    ImageCrop* logica = nullptr;
    std::unique_ptr<ImageCrop> propia;
    std::unique_ptr<ImageCropForma> forma;

    PruebaImageCrop() {
        ponMuro({200, 200});
        dibujo().Esquema = "Colores Personalizados";
    }

    /// `tamano` in pixels; without one the window has its own.
    ImageCropForma& abrir(QSize tamano = {}) {
        propia = std::make_unique<ImageCrop>(plataforma, dibujo(), carpeta / "Bosquel");
        logica = propia.get();
        forma = std::make_unique<ImageCropForma>(*logica, &ventana);
        if (tamano.isValid()) forma->resize(tamano);
        mostrarActiva(*forma);
        return *forma;
    }

    template <class Control = QWidget>
    Control& de(const QString& nombre) {
        return apoyo::control<Control>(*forma, nombre);
    }
    QWidget& hoja() { return de("Picture1"); }
    QRect marco() { return de("Shape1").geometry(); }

    void raton(QEvent::Type tipo, QPoint punto, Qt::MouseButton boton, Qt::MouseButtons botones) {
        QMouseEvent suceso(tipo, punto, hoja().mapToGlobal(QPointF(punto)), boton, botones, {});
        QApplication::sendEvent(&hoja(), &suceso);
    }
    void pulsarEn(QPoint punto) { raton(QEvent::MouseButtonPress, punto, Qt::LeftButton, Qt::LeftButton); }
    void llevarA(QPoint punto, Qt::MouseButtons botones = Qt::LeftButton) {
        raton(QEvent::MouseMove, punto, Qt::NoButton, botones);
    }
    void soltarEn(QPoint punto) { raton(QEvent::MouseButtonRelease, punto, Qt::LeftButton, {}); }
    /// Holds the pointer still past the edge of the viewport, where a drag has brought it, and lets it go
    /// when it is time. The event of the drag may last until then, or the sheet go on after it.
    void esperarFuera(QPoint fuera, const std::function<bool()>& esHora) {
        const QPoint enPantalla = de("ContImagen").mapToGlobal(fuera);
        bool suelto = false;
        QTimer mano;
        QObject::connect(&mano, &QTimer::timeout, [&] {
            if (suelto || !esHora()) return;
            suelto = true;
            soltarEn(hoja().mapFromGlobal(enPantalla));
        });
        mano.start(1);
        llevarA(fuera);
        EXPECT_TRUE(QTest::qWaitFor([&] { return suelto && !reloj().isActive(); }));
    }
    /// Over the viewport; eighths of a degree, away from the hand.
    void girarRueda(int giro, Qt::KeyboardModifiers teclas = {}) {
        QWidget& visor = de("ContImagen");
        const QPointF punto = visor.rect().center();
        QWheelEvent suceso(punto, visor.mapToGlobal(punto), {}, {0, giro}, Qt::NoButton, teclas,
                           Qt::NoScrollPhase, false);
        QApplication::sendEvent(&visor, &suceso);
    }
    QTimer& reloj() { return *forma->findChild<QTimer*>("Timer1"); }

    void arrastrar(QPoint desde, QPoint hasta) {
        pulsarEn(desde);
        llevarA(desde + QPoint(1, 1));
        llevarA(hasta);
        soltarEn(hasta);
    }

    void editar(int boton) { de<QPushButton>(QString("BotonEdicion_%1").arg(boton)).click(); }

    /// Answers the question, and expects its words.
    void contestar(const QString& texto, QMessageBox::StandardButton respuesta) {
        cuandoSeAbra<QMessageBox>([texto, respuesta](QMessageBox& caja) {
            EXPECT_EQ(caja.windowTitle(), "Selección de área");
            EXPECT_EQ(caja.text(), texto);
            EXPECT_EQ(caja.icon(), QMessageBox::Question);
            caja.button(respuesta)->click();
        });
    }

    /// "Bitmap", to a file of this name; gives the path.
    QString guardar(const QString& nombre) {
        const QString ruta = QString::fromStdString((carpeta / nombre.toStdString()).string());
        cuandoSeAbra<QFileDialog>([this, ruta](QFileDialog& dialogo) {
            cuandoSeAbra<QMessageBox>([this](QMessageBox& caja) {
                EXPECT_EQ(caja.windowTitle(), "Aviso");
                EXPECT_EQ(caja.text(), "Fichero de mapa de bits generado con éxito");
                EXPECT_EQ(caja.icon(), QMessageBox::Information);
                avisado = true;
                caja.accept();
            });
            dialogo.findChild<QLineEdit*>("fileNameEdit")->setText(ruta);
            QTest::keyClick(dialogo.findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
        });
        avisado = false;
        editar(2);
        EXPECT_TRUE(avisado);
        return ruta;
    }

    static QImage leer(const QString& ruta) { return QImage(ruta).convertToFormat(QImage::Format_RGB32); }

    bool avisado = false;
};

inline constexpr QSize pequena(500, 400);

inline bool hayColor(const QImage& imagen, const QColor& color) {
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x)
            if (imagen.pixelColor(x, y) == color) return true;
    return false;
}

inline bool hayNegro(const QImage& imagen) {
    return hayColor(imagen, Qt::black);
}

}  // namespace bosquel::apoyo
