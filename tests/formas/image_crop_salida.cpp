#include "formas/prueba_image_crop.h"

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

using ImageCropFormaSalida = PruebaImageCrop;

}  // namespace

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
