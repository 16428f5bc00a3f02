#include "formas/prueba_image_crop.h"

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

using ImageCropFormaAbrir = PruebaImageCrop;
using ImageCropFormaPuntero = PruebaImageCrop;

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
