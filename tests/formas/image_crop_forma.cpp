#include "ui/image_crop_forma.h"

#include "drawing/vista.h"
#include "formas/apoyo_formas.h"
#include "formas/ventana_de_prueba.h"
#include "output/image_crop.h"
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

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

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

constexpr QSize pequena(500, 400);

using ImageCropFormaAbrir = PruebaImageCrop;
using ImageCropFormaPuntero = PruebaImageCrop;
using ImageCropFormaSalida = PruebaImageCrop;

bool hayColor(const QImage& imagen, const QColor& color) {
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x)
            if (imagen.pixelColor(x, y) == color) return true;
    return false;
}

bool hayNegro(const QImage& imagen) {
    return hayColor(imagen, Qt::black);
}

}  // namespace

TEST_F(ImageCropFormaAbrir, SeLlamaComoDebeYTieneSusControles) {
    abrir();
    EXPECT_EQ(forma->objectName(), "ImageCrop");
    EXPECT_EQ(forma->windowTitle(), "Selección de Area a Exportar o Imprimir");
    EXPECT_TRUE(forma->isModal());
    const QStringList tamanos{"A4", "A3", "A2", "A1"};
    for (int i = 0; i < 4; ++i) {
        const QString nombre = QString("optTamaño_%1").arg(i);
        EXPECT_EQ(rotulo<QRadioButton>(*forma, nombre), tamanos[i]);
        EXPECT_EQ(de(nombre).isEnabled(), i < 2);
        EXPECT_EQ(de<QRadioButton>(nombre).isChecked(), i == 0);
    }
    EXPECT_EQ(rotulo<QRadioButton>(*forma, "optSentido_0"), "V ");
    EXPECT_EQ(rotulo<QRadioButton>(*forma, "optSentido_1"), "H ");
    EXPECT_TRUE(de<QRadioButton>("optSentido_0").isChecked());
    const QStringList botones{"Imprimir", "Clipboard", "Bitmap", "Reiniciar"};
    for (int i = 0; i < 4; ++i) {
        const QString nombre = QString("BotonEdicion_%1").arg(i);
        EXPECT_EQ(rotulo<QPushButton>(*forma, nombre), botones[i]);
        EXPECT_EQ(de(nombre).toolTip(), i == 0 || i == 3 ? "Elimina el rectángulo de selección" : "");
    }
    EXPECT_EQ(rotulo<QPushButton>(*forma, "BttCancelar"), "Salir");
    EXPECT_EQ(reloj().interval(), 60);
    EXPECT_FALSE(reloj().isActive());
    EXPECT_FALSE(de("Shape1").isVisible());
    esperarAccesible(*forma);
}

TEST_F(ImageCropFormaAbrir, LasBarrasVanDeCeroACienConSusSaltos) {
    abrir(pequena);
    for (const auto& [nombre, chico] : {std::pair{"HScroll1", 4}, {"VScroll1", 5}}) {
        const auto& barra = de<QScrollBar>(nombre);
        EXPECT_EQ(barra.minimum(), 0);
        EXPECT_EQ(barra.maximum(), 100);
        EXPECT_EQ(barra.pageStep(), 20);
        EXPECT_EQ(barra.singleStep(), chico);
        EXPECT_TRUE(barra.isVisible());
    }
}

TEST_F(ImageCropFormaAbrir, CadaCosaTieneSuSitioEnLaVentana) {
    abrir(pequena);
    const QRect visor = de("ContImagen").geometry();
    EXPECT_NEAR(visor.width(), 500 - 1450 / 15.0, 1);
    EXPECT_NEAR(visor.height(), 400 - 950 / 15.0, 1);
    EXPECT_EQ(de("HScroll1").geometry().topLeft(), visor.bottomLeft() + QPoint(0, 1));
    EXPECT_EQ(de("HScroll1").width(), visor.width());
    EXPECT_EQ(de("VScroll1").geometry().topLeft(), visor.topRight() + QPoint(1, 0));
    EXPECT_EQ(de("VScroll1").height(), visor.height());
    const QWidget& salir = de("BttCancelar");
    EXPECT_EQ(de("Picture3").height() - salir.geometry().bottom() - 1, aPixeles(80));
    for (const auto* control : de("Picture3").findChildren<QWidget*>()) {
        EXPECT_TRUE(de("Picture3").rect().contains(control->geometry()))
            << control->objectName().toStdString();
        EXPECT_GE(control->height(), control->minimumSizeHint().height());
    }
}

TEST_F(ImageCropFormaAbrir, NoSeHaceMasBajaDeCincoMilTwipsNiCortaSusControles) {
    abrir();
    forma->resize(100, 100);
    EXPECT_GE(forma->height() * 15, 5000);
    EXPECT_LE(forma->height() * 15, 5600);
    EXPECT_GT(de("BttCancelar").geometry().top(), de("BotonEdicion_3").geometry().bottom());
}

TEST_F(ImageCropFormaAbrir, LaHojaQueCabeNoTieneBarras) {
    abrir({900, 900});
    EXPECT_FALSE(de("HScroll1").isVisible());
    EXPECT_FALSE(de("VScroll1").isVisible());
    EXPECT_EQ(hoja().geometry(), QRect(0, 0, 756, 756));
}

TEST_F(ImageCropFormaAbrir, SeAbreConSitioParaTodaLaHojaSiLaPantallaLoTiene) {
    // On either side of the half: 453.54 pixels and 453.47.
    for (const float medida : {6000.0F, 5999.0F}) {
        dibujo().Hoja.Width = dibujo().Hoja.Height = medida;
        abrir();
        EXPECT_FALSE(de("HScroll1").isVisible()) << medida;
        EXPECT_FALSE(de("VScroll1").isVisible()) << medida;
    }
}

TEST_F(ImageCropFormaAbrir, LasBarrasMuevenLaHoja) {
    abrir(pequena);
    de<QScrollBar>("HScroll1").setValue(100);
    EXPECT_NEAR(hoja().geometry().right() + 1, de("ContImagen").width(), 1);
    de<QScrollBar>("VScroll1").setValue(50);
    EXPECT_NEAR(hoja().y(), (de("ContImagen").height() - 756) / 2, 1);
}

TEST_F(ImageCropFormaAbrir, LaRuedaMueveLaHojaYConMayusculasDeLado) {
    abrir(pequena);
    girarRueda(-120);
    const int abajo = de<QScrollBar>("VScroll1").value();
    EXPECT_GT(abajo, 0);
    EXPECT_NEAR(hoja().y(), -(756 - de("ContImagen").height()) * abajo / 100.0, 1);
    EXPECT_EQ(hoja().x(), 0);
    girarRueda(-120, Qt::ShiftModifier);
    EXPECT_GT(de<QScrollBar>("HScroll1").value(), 0);
    EXPECT_LT(hoja().x(), 0);
    EXPECT_EQ(de<QScrollBar>("VScroll1").value(), abajo);
    girarRueda(1200);
    EXPECT_EQ(hoja().y(), 0);
}

TEST_F(ImageCropFormaAbrir, LaRuedaNoMueveLaHojaQueCabe) {
    abrir({900, 900});
    girarRueda(-120);
    girarRueda(-120, Qt::ShiftModifier);
    EXPECT_EQ(hoja().pos(), QPoint(0, 0));
}

TEST_F(ImageCropFormaPuntero, LaRuedaLlevaLaHojaBajoElRecuadroQueSeTraza) {
    abrir(pequena);
    pulsarEn({100, 100});
    llevarA({200, 150});
    girarRueda(-120);
    QApplication::processEvents();
    EXPECT_LT(hoja().y(), 0);
    // The pointer has stayed where it was, over another place of the sheet.
    EXPECT_EQ(marco(), QRect(QPoint(100, 100), QPoint(200, 150 - hoja().y())));
    soltarEn({200, 150 - hoja().y()});
}

TEST_F(ImageCropFormaAbrir, ElTabuladorRecorreLasOpcionesYLosBotones) {
    abrir();
    de("optTamaño_0").setFocus();
    EXPECT_EQ(recorridoTab(*forma),
              QStringList({"optTamaño_0", "optSentido_0", "BotonEdicion_0", "BotonEdicion_1",
                           "BotonEdicion_2", "BotonEdicion_3", "BttCancelar"}));
}

TEST_F(ImageCropFormaAbrir, EscapeYSalirLaCierran) {
    abrir();
    QTest::keyClick(forma.get(), Qt::Key_Escape);
    EXPECT_FALSE(forma->isVisible());
    abrir();
    de<QPushButton>("BttCancelar").click();
    EXPECT_FALSE(forma->isVisible());
}

TEST_F(ImageCropFormaAbrir, ElBotonImprimirLaAbreModalYConElDibujo) {
    bool vista = false;
    cuandoSeAbra<QDialog>([&](QDialog& dialogo) {
        vista = dialogo.objectName() == "ImageCrop";
        EXPECT_TRUE(hayNegro(apoyo::control(dialogo, "Picture1").grab().toImage()));
        dialogo.reject();
    });
    pulsar("BttPrincipal_8");
    EXPECT_TRUE(vista);
}

TEST_F(ImageCropFormaPuntero, ArrastrarTrazaElRecuadro) {
    abrir();
    pulsarEn({100, 120});
    llevarA({110, 130});
    EXPECT_TRUE(de("Shape1").isVisible());
    llevarA({300, 260});
    EXPECT_EQ(marco(), QRect(QPoint(100, 120), QPoint(300, 260)));
    soltarEn({300, 260});
    EXPECT_EQ(logica->recuadro().estado(), EstadoRecuadro::Terminado);
}

TEST_F(ImageCropFormaPuntero, ElRecuadroSeVeYSeMueveCogidoPorDentro) {
    abrir();
    arrastrar({100, 120}, {300, 260});
    const QImage antes = hoja().grab().toImage();
    EXPECT_NE(antes.pixelColor(200, 150), QColor(Qt::white));
    EXPECT_EQ(antes.pixelColor(350, 150), QColor(Qt::white));
    arrastrar({150, 150}, {250, 170});
    EXPECT_EQ(marco(), QRect(QPoint(199, 139), QPoint(399, 279)));
}

TEST_F(ImageCropFormaPuntero, ElCursorDiceSiSeTrazaOSeMueve) {
    abrir();
    EXPECT_EQ(hoja().cursor().shape(), Qt::CrossCursor);
    arrastrar({100, 120}, {300, 260});
    llevarA({200, 200}, {});
    EXPECT_EQ(hoja().cursor().shape(), Qt::SizeAllCursor);
    llevarA({50, 50}, {});
    EXPECT_EQ(hoja().cursor().shape(), Qt::CrossCursor);
}

TEST_F(ImageCropFormaPuntero, ConOtrosBotonesNoSeTraza) {
    abrir();
    raton(QEvent::MouseButtonPress, {100, 100}, Qt::RightButton, Qt::RightButton);
    llevarA({200, 200}, Qt::RightButton);
    raton(QEvent::MouseButtonRelease, {200, 200}, Qt::RightButton, {});
    EXPECT_EQ(logica->recuadro().forma(), Recuadro());
    EXPECT_TRUE(logica->recuadro().Visible());
}

TEST_F(ImageCropFormaPuntero, ParadoPasadoElBordeLaHojaSigueHastaQueSeSuelta) {
    abrir(pequena);
    const QPoint fuera(de("ContImagen").width() + 40, 200);
    int pasos = 0;
    pulsarEn({100, 100});
    llevarA({150, 150});
    esperarFuera(fuera, [&] {
        pasos = logica->HScroll1().valor;
        return pasos >= 4;
    });
    EXPECT_EQ(logica->HScroll1().valor, pasos);
    EXPECT_EQ(de<QScrollBar>("HScroll1").value(), pasos);
    EXPECT_EQ(logica->VScroll1().valor, 0);
    EXPECT_EQ(logica->recuadro().estado(), EstadoRecuadro::Terminado);
    EXPECT_LT(hoja().x(), 0);
    // The frame reaches to the pointer, wherever the sheet has gone under it.
    EXPECT_EQ(marco(), QRect(QPoint(100, 100), fuera - hoja().pos()));
}

TEST_F(ImageCropFormaPuntero, DeVueltaEnElVisorLaHojaSePara) {
    abrir(pequena);
    const QPoint dentro(200, 150);
    pulsarEn({100, 100});
    QTimer mano;
    QObject::connect(&mano, &QTimer::timeout, [&] {
        if (logica->VScroll1().valor > 0) llevarA(dentro - hoja().pos());
    });
    mano.start(1);
    llevarA({200, de("ContImagen").height() + 30});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !reloj().isActive(); }));
    mano.stop();
    EXPECT_GT(logica->VScroll1().valor, 0);
    EXPECT_EQ(logica->recuadro().estado(), EstadoRecuadro::Seguir);
    EXPECT_EQ(marco().bottomRight(), dentro - hoja().pos());
    soltarEn(dentro - hoja().pos());
}

TEST_F(ImageCropFormaPuntero, CerrarLaVentanaConLaHojaEnMarchaNoLaDejaColgada) {
    abrir(pequena);
    pulsarEn({100, 100});
    QTimer mano;
    QObject::connect(&mano, &QTimer::timeout, [&] {
        if (logica->HScroll1().valor > 0) forma->reject();
    });
    mano.start(1);
    llevarA({de("ContImagen").width() + 40, 200});
    // The button is still down: nobody tells a window that is gone when it goes up.
    EXPECT_TRUE(QTest::qWaitFor([&] { return !forma->isVisible() && !reloj().isActive(); }));
}

TEST_F(ImageCropFormaSalida, ElMapaDeBitsEsElAreaElegida) {
    abrir();
    arrastrar({200, 200}, {420, 260});
    const QString ruta = guardar("area");
    const QImage fichero = leer(ruta + ".bmp");
    EXPECT_EQ(fichero.size(), QSize(220, 60));
    EXPECT_TRUE(hayNegro(fichero));
    EXPECT_EQ(QImage(ruta + ".bmp").depth(), 24 + 8);
    EXPECT_EQ(fichero.dotsPerMeterX(), 3780);
}

TEST_F(ImageCropFormaSalida, ElAreaMovidaEsLaQueSale) {
    abrir({900, 900});
    arrastrar({500, 500}, {720, 560});
    EXPECT_FALSE(hayNegro(leer(guardar("fuera.bmp"))));
    arrastrar({600, 530}, {300, 230});
    EXPECT_TRUE(hayNegro(leer(guardar("dentro.bmp"))));
    // Taken past the right edge, it is drawn back until it fits.
    arrastrar({300, 230}, {1200, 230});
    EXPECT_EQ(leer(guardar("borde.bmp")).size(), QSize(220, 60));
}

TEST_F(ImageCropFormaSalida, ElAreaTrazadaConLaHojaEnMarchaSale) {
    abrir(pequena);
    const QPoint fuera(de("ContImagen").width() + 60, 250);
    pulsarEn({100, 100});
    esperarFuera(fuera, [&] { return logica->HScroll1().valor >= 3; });
    EXPECT_EQ(leer(guardar("largo.bmp")).width(), marco().width() - 1);
    EXPECT_GT(marco().width(), fuera.x() - 100);
}

TEST_F(ImageCropFormaSalida, EnBlancoYNegroElFicheroTieneUnBitPorPixel) {
    dibujo().Esquema = "Blanco y Negro";
    abrir();
    arrastrar({200, 200}, {420, 260});
    const QString ruta = guardar("dos.bmp");
    EXPECT_EQ(QImage(ruta).depth(), 1);
    EXPECT_EQ(QImage(ruta).size(), QSize(220, 60));
    EXPECT_EQ(QImage(ruta).dotsPerMeterY(), 3780);
    EXPECT_TRUE(hayNegro(leer(ruta)));
}

TEST_F(ImageCropFormaSalida, ConUnPerfilElFicheroEsDeColor) {
    dibujo().Esquema = "Perfil Predefinido";
    dibujo().Pared.modelo().LineColor = rojo;
    abrir();
    arrastrar({200, 200}, {420, 260});
    const QImage fichero = leer(guardar("perfil.bmp"));
    EXPECT_EQ(fichero.size(), QSize(220, 60));
    EXPECT_FALSE(hayColor(fichero, Qt::black));
    EXPECT_TRUE(hayColor(fichero, Qt::red));
}

TEST_F(ImageCropFormaSalida, ElDialogoDeFicherosEsElSuyoYNoPreguntaAlSobrescribir) {
    abrir();
    arrastrar({200, 200}, {420, 260});
    const QString ruta = guardar("otra.bmp");
    arrastrar({500, 500}, {550, 570});
    cuandoSeAbra<QFileDialog>([](QFileDialog& dialogo) {
        EXPECT_EQ(dialogo.windowTitle(), "Guardar mapa de bits");
        EXPECT_EQ(dialogo.nameFilters(), QStringList({"Mapa de Bits de Windows (*.bmp)"}));
        EXPECT_EQ(dialogo.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_TRUE(dialogo.testOption(QFileDialog::DontConfirmOverwrite));
        EXPECT_EQ(dialogo.parentWidget()->objectName(), "ImageCrop");
        dialogo.reject();
    });
    editar(2);
    EXPECT_EQ(leer(ruta).size(), QSize(220, 60));
    guardar("otra.bmp");
    EXPECT_EQ(leer(ruta).size(), QSize(50, 70));
}

TEST_F(ImageCropFormaSalida, DondeNoSePuedeEscribirSeAvisaComoSiempre) {
    abrir();
    arrastrar({200, 200}, {420, 260});
    const QString ruta = guardar("nadie/plano.bmp");
    EXPECT_FALSE(QFile::exists(ruta));
}

TEST_F(ImageCropFormaSalida, UnClicFueraDaUnRecuadroVacioYUnFicheroSinPixeles) {
    abrir();
    pulsarEn({50, 50});
    soltarEn({50, 50});
    EXPECT_TRUE(de("Shape1").isVisible());
    const QString ruta = guardar("nada.bmp");
    EXPECT_EQ(QFile(ruta).size(), 54);
}

TEST_F(ImageCropFormaSalida, SinAreaSePreguntaYReiniciarVuelveAPreguntar) {
    abrir();
    const QString guardando =
        "Debe seleccionar un área antes de guardar.\n¿Desea seleccionar todo el dibujo?";
    contestar(guardando, QMessageBox::No);
    editar(2);
    EXPECT_FALSE(de("Shape1").isVisible());
    arrastrar({200, 200}, {420, 260});
    editar(3);
    EXPECT_FALSE(de("Shape1").isVisible());
    contestar(guardando, QMessageBox::No);
    editar(1);
    contestar("Debe seleccionar un área antes de imprimir.\n¿Desea seleccionar todo el dibujo?",
              QMessageBox::No);
    editar(0);
    EXPECT_FALSE(de("Shape1").isVisible());
}

TEST_F(ImageCropFormaSalida, ConSiSeTomaTodoElDibujo) {
    abrir();
    contestar("Debe seleccionar un área antes de guardar.\n¿Desea seleccionar todo el dibujo?",
              QMessageBox::Yes);
    editar(1);
    EXPECT_EQ(marco().topLeft(), QPoint(0, 0));
    EXPECT_EQ(QApplication::clipboard()->image().size(), QSize(755, 755));
    EXPECT_TRUE(hayNegro(QApplication::clipboard()->image()));
}

TEST_F(ImageCropFormaSalida, LoCopiadoEsLoMismoQueElFichero) {
    abrir();
    arrastrar({200, 200}, {420, 260});
    editar(1);
    const QImage fichero = leer(guardar("igual.bmp"));
    EXPECT_TRUE(QApplication::clipboard()->image() == fichero);
    EXPECT_TRUE(QApplication::clipboard()->mimeData()->hasFormat("image/png"));
}

TEST_F(ImageCropFormaSalida, ImprimirDejaElPortapapelesVacioYAbreLaVistaDelPapel) {
    abrir();
    arrastrar({200, 200}, {420, 260});
    QApplication::clipboard()->setText("antes");
    const std::array<std::array<const char*, 2>, 4> papeles{{{"A4", "Vista Previa de Impresión"},
                                                             {"A4H", "ActiveReport1"},
                                                             {"A3", "ActiveReport1"},
                                                             {"A3H", "ActiveReport1"}}};
    for (int i = 0; i < 4; ++i) {
        de<QRadioButton>(QString("optTamaño_%1").arg(i / 2)).click();
        de<QRadioButton>(QString("optSentido_%1").arg(i % 2)).click();
        QString nombre;
        QString titulo;
        QTimer::singleShot(0, forma.get(), [&] {
            auto* vista = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            nombre = vista->objectName();
            titulo = vista->windowTitle();
            const QMimeData* datos = QApplication::clipboard()->mimeData();
            EXPECT_TRUE(!datos || datos->formats().isEmpty());
            vista->reject();
        });
        editar(0);
        EXPECT_EQ(nombre, papeles[static_cast<std::size_t>(i)][0]);
        EXPECT_EQ(titulo, papeles[static_cast<std::size_t>(i)][1]);
    }
}

TEST_F(ImageCropFormaSalida, LaHojaYElZoomMasGrandesSeAbrenCortadosYSinDecirNada) {
    dibujo().AreaWidth = dibujo().AreaHight = 2'000'000'000;
    bosquel.sesion().dibujo.FactorZoomActual = 1.5;
    MedirHoja(bosquel.sesion());
    abrir(pequena);
    EXPECT_EQ(hoja().size(), QSize(8192, 8192));
    de<QScrollBar>("HScroll1").setValue(100);
    EXPECT_NEAR(hoja().geometry().right() + 1, de("ContImagen").width(), 1);
    const QPoint esquina = -hoja().pos() + QPoint(50, 50);
    arrastrar(esquina, esquina + QPoint(100, 80));
    EXPECT_EQ(leer(guardar("lejos.bmp")).size(), QSize(100, 80));
}
