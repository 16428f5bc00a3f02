#include "ui/vista_previa.h"

#include "formas/apoyo_formas.h"
#include "formas/apoyo_pdf.h"
#include "formas/ventana_de_prueba.h"
#include "output/papel.h"
#include "ui/pagina.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <array>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

constexpr int porPulgada = 192;  // two pixels to each of the picture's
constexpr double twipsPorPixelPdf = 1440.0 / porPulgada;

struct Caso {
    int tamano, sentido;
};
constexpr std::array<Caso, 4> papeles{{{0, 0}, {0, 1}, {1, 0}, {1, 1}}};

QImage imagenNegra(QSize tamano) {
    QImage imagen(tamano, QImage::Format_RGB32);
    imagen.fill(Qt::black);
    return imagen;
}

/// The page as a file, looked at.
QImage impresa(const CarpetaTemporal& carpeta, const Papel& papel, const QImage& imagen,
               int densidad = porPulgada) {
    const QString pdf = QString::fromStdString((carpeta / (std::string(papel.nombre) + ".pdf")).string());
    QPrinter impresora(QPrinter::HighResolution);
    impresora.setOutputFormat(QPrinter::PdfFormat);
    impresora.setOutputFileName(pdf);
    prepararPagina(impresora, papel);
    pintarPagina(impresora, papel, imagen);
    return paginaDe(pdf, densidad);
}

void esperarCerca(const QSize& tamano, double anchoTwips, double altoTwips, double holgura) {
    EXPECT_NEAR(tamano.width() * twipsPorPixelPdf, anchoTwips, holgura);
    EXPECT_NEAR(tamano.height() * twipsPorPixelPdf, altoTwips, holgura);
}

/// A picture of many colours, no two neighbours alike.
QImage abigarrada(QSize tamano) {
    QImage imagen(tamano, QImage::Format_RGB32);
    for (int y = 0; y < tamano.height(); ++y)
        for (int x = 0; x < tamano.width(); ++x)
            imagen.setPixelColor(x, y, QColor(x * 37 % 256, y * 91 % 256, (x * y) % 256));
    return imagen;
}

}  // namespace

TEST(Pagina, CadaPapelTieneSuTamanoYSuSentido) {
    const CarpetaTemporal carpeta;
    for (const Caso& caso : papeles) {
        const Papel& papel = *papelPara(caso.tamano, caso.sentido);
        const QSize pagina = impresa(carpeta, papel, imagenNegra({10, 10})).size();
        // The paper of the trade that comes nearest to the one laid out for: less than half a millimetre off.
        const bool echada = papel.apaisado;
        esperarCerca(pagina, echada ? papel.alto : papel.ancho, echada ? papel.ancho : papel.alto, 28);
    }
}

TEST(Pagina, LaImagenEmpiezaBajoElMargenYSeCortaEnSuCaja) {
    const CarpetaTemporal carpeta;
    for (const Caso& caso : papeles) {
        const Papel& papel = *papelPara(caso.tamano, caso.sentido);
        const QRect tinta = tintaDe(impresa(carpeta, papel, imagenNegra({1700, 1700})));
        EXPECT_EQ(tinta.left(), 0) << papel.nombre;
        EXPECT_NEAR(tinta.top() * twipsPorPixelPdf, 1000, twipsPorPixelPdf) << papel.nombre;
        esperarCerca(tinta.size(), papel.anchoImagen, papel.altoImagen, 2 * twipsPorPixelPdf);
    }
}

TEST(Pagina, ElA3NoSeCortaPorDebajoDeSuCaja) {
    const CarpetaTemporal carpeta;
    // 1436 rows of pixels are 21540 twips: all of them are there, and a fifth of the next.
    const QRect tinta = tintaDe(impresa(carpeta, *papelPara(1, 0), imagenNegra({100, 1436})));
    EXPECT_NEAR(tinta.height(), 2 * 1436, 1);
}

TEST(Pagina, LosPixelesLleganTalComoSon) {
    const CarpetaTemporal carpeta;
    const QImage imagen = abigarrada({200, 120});
    const int veces = 4;
    const QImage pagina = impresa(carpeta, *papelPara(0, 0), imagen, veces * 96);
    const int arriba = veces * 96 * 1000 / 1440;
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x)
            ASSERT_EQ(pagina.pixelColor(veces * x + veces / 2, arriba + veces * y + veces / 2),
                      imagen.pixelColor(x, y))
                << x << " " << y;
}

TEST(Pagina, UnaImagenVaciaDaUnaPaginaEnBlanco) {
    const CarpetaTemporal carpeta;
    const QImage pagina = impresa(carpeta, *papelPara(0, 0), {});
    EXPECT_FALSE(pagina.isNull());
    EXPECT_EQ(tintaDe(pagina), QRect());
}

namespace {

struct PruebaVista : testing::Test {
    QImage imagen = imagenNegra({300, 200});
    std::unique_ptr<VistaPrevia> vista;

    VistaPrevia& abrir(const Papel& papel) {
        vista = std::make_unique<VistaPrevia>(imagen, papel, nullptr);
        mostrarActiva(*vista);
        return *vista;
    }
    QPrintPreviewWidget& previa() { return control<QPrintPreviewWidget>(*vista, "Image1"); }
    QString zoom() { return control<QLabel>(*vista, "lblZoom").text(); }
    void esperarZoom() { EXPECT_EQ(zoom(), QString("%1 %").arg(qRound(previa().zoomFactor() * 100))); }
};

using VistaPreviaAbrir = PruebaVista;
using VistaPreviaZoom = PruebaVista;

}  // namespace

TEST_F(VistaPreviaAbrir, SeLlamaComoSuPapelYTieneSusBotonesEnEspanol) {
    for (const Caso& caso : papeles) {
        const Papel& papel = *papelPara(caso.tamano, caso.sentido);
        abrir(papel);
        EXPECT_EQ(vista->objectName().toStdString(), papel.nombre);
        EXPECT_EQ(vista->windowTitle().toStdString(), papel.titulo);
        EXPECT_EQ(previa().orientation(), papel.apaisado ? QPageLayout::Landscape : QPageLayout::Portrait);
        EXPECT_EQ(previa().pageCount(), 1);
    }
    EXPECT_EQ(rotulo<QToolButton>(*vista, "BttImprimir"), "Imprimir…");
    EXPECT_EQ(rotulo<QToolButton>(*vista, "BttAlejar"), "Alejar");
    EXPECT_EQ(rotulo<QToolButton>(*vista, "BttAcercar"), "Acercar");
    EXPECT_EQ(rotulo<QToolButton>(*vista, "BttPagina"), "Página entera");
    EXPECT_EQ(rotulo<QToolButton>(*vista, "BttAncho"), "Ancho de página");
    EXPECT_EQ(rotulo<QPushButton>(*vista, "BttCerrar"), "Cerrar");
    EXPECT_TRUE(vista->isModal());
    esperarAccesible(*vista);
}

TEST_F(VistaPreviaAbrir, EnsenaLaPaginaEnteraConLaImagenEnSuSitio) {
    abrir(*papelPara(0, 0));
    EXPECT_EQ(previa().zoomMode(), QPrintPreviewWidget::FitInView);
    const QImage pantalla = previa().grab().toImage().convertToFormat(QImage::Format_RGB32);
    const double pixel = previa().zoomFactor() * vista->logicalDpiX() / 96.0;
    // Half of the page is 397 pixels wide; the picture takes 300 from its left edge on.
    const int medio = pantalla.width() / 2;
    const QRect izquierda(medio - static_cast<int>(396 * pixel), 40, static_cast<int>(396 * pixel),
                          pantalla.height() - 80);
    const QRect tinta = tintaDe(pantalla.copy(izquierda));
    EXPECT_NEAR(tinta.width(), 300 * pixel, 3);
    EXPECT_NEAR(tinta.height(), 200 * pixel, 3);
}

TEST_F(VistaPreviaAbrir, DeLejosNoSePierdeNingunTrazo) {
    imagen.fill(Qt::white);
    for (int y = 0; y < 200; y += 10)
        for (int x = 0; x < 300; ++x)
            imagen.setPixelColor(x, y, Qt::black);
    abrir(*papelPara(1, 0));
    ASSERT_LT(previa().zoomFactor(), 0.8);
    const QImage pantalla = previa().grab().toImage();
    // Down a column of the page that crosses all lines: each of them darkens something.
    const int columna = pantalla.width() / 2 - static_cast<int>(400 * previa().zoomFactor());
    int trazos = 0;
    for (int y = 1; y < pantalla.height() - 1; ++y) {
        const auto gris = [&](int fila) { return qGray(pantalla.pixel(columna, fila)); };
        if (gris(y) < 235 && gris(y) > 165 && gris(y) <= gris(y - 1) && gris(y) < gris(y + 1)) ++trazos;
    }
    EXPECT_EQ(trazos, 20);
}

TEST_F(VistaPreviaAbrir, CerrarYEscapeLaCierran) {
    abrir(*papelPara(0, 0));
    QTest::keyClick(vista.get(), Qt::Key_Escape);
    EXPECT_FALSE(vista->isVisible());
    abrir(*papelPara(0, 0));
    control<QPushButton>(*vista, "BttCerrar").click();
    EXPECT_FALSE(vista->isVisible());
}

TEST_F(VistaPreviaZoom, AcercarYAlejarCambianElTamanoYLoDicen) {
    abrir(*papelPara(0, 0));
    esperarZoom();
    const double entera = previa().zoomFactor();
    pulsar(*vista, "BttAcercar");
    EXPECT_NEAR(previa().zoomFactor(), entera * 1.25, 1e-6);
    esperarZoom();
    pulsar(*vista, "BttAlejar");
    EXPECT_NEAR(previa().zoomFactor(), entera, 1e-6);
    esperarZoom();
}

TEST_F(VistaPreviaZoom, SeAjustaALaPaginaOASuAncho) {
    abrir(*papelPara(0, 0));
    const double entera = previa().zoomFactor();
    pulsar(*vista, "BttAncho");
    EXPECT_GT(previa().zoomFactor(), entera);
    EXPECT_EQ(previa().zoomMode(), QPrintPreviewWidget::FitToWidth);
    esperarZoom();
    pulsar(*vista, "BttPagina");
    EXPECT_EQ(previa().zoomMode(), QPrintPreviewWidget::FitInView);
    EXPECT_NEAR(previa().zoomFactor(), entera, 0.01);
    esperarZoom();
}

TEST_F(VistaPreviaZoom, LaPaginaEnteraSigueAlTamanoDeLaVentana) {
    abrir(*papelPara(0, 0));
    const double antes = previa().zoomFactor();
    vista->resize(vista->width(), vista->height() / 2);
    QApplication::processEvents();
    EXPECT_LT(previa().zoomFactor(), antes);
    esperarZoom();
}

namespace {

struct ImprimirEnVentana : VentanaDePrueba {
    template <class Control = QWidget>
    static Control& de(const QString& nombre) {
        return apoyo::control<Control>(*QApplication::activeModalWidget(), nombre);
    }

    /// Once a window of this name is in front, does something with it.
    void cuandoEste(const QString& nombre, std::function<void()> mano) {
        QTimer::singleShot(0, &ventana, [this, nombre, mano] {
            const QWidget* delante = QApplication::activeModalWidget();
            if (delante && delante->isVisible() && delante->objectName() == nombre)
                mano();
            else
                cuandoEste(nombre, mano);
        });
    }

    /// In the printing dialog of the desktop: to a PDF file.
    void imprimirA(const QString& pdf) {
        cuandoSeAbra<QPrintDialog>([pdf](QPrintDialog& dialogo) {
            auto& impresoras = apoyo::control<QComboBox>(dialogo, "printers");
            impresoras.setCurrentIndex(impresoras.count() - 1);
            apoyo::control<QLineEdit>(dialogo, "filename").setText(pdf);
            dialogo.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        });
        de<QToolButton>("BttImprimir").click();
    }

    /// "Imprimir", paper and direction, the whole drawing, the preview, its button.
    QImage imprimir(const Caso& caso) {
        const std::string nombre(papelPara(caso.tamano, caso.sentido)->nombre);
        const QString pdf = QString::fromStdString((carpeta / (nombre + ".pdf")).string());
        cuandoEste("ImageCrop", [&] {
            QWidget* salida = QApplication::activeModalWidget();
            de<QRadioButton>(QString("optTamaño_%1").arg(caso.tamano)).click();
            de<QRadioButton>(QString("optSentido_%1").arg(caso.sentido)).click();
            cuandoSeAbra<QMessageBox>([](QMessageBox& caja) { caja.button(QMessageBox::Yes)->click(); });
            cuandoEste(QString::fromStdString(nombre), [&] {
                imprimirA(pdf);
                de<QPushButton>("BttCerrar").click();
            });
            de<QPushButton>("BotonEdicion_0").click();
            salida->close();
        });
        pulsar("BttPrincipal_8");
        return paginaDe(pdf, porPulgada);
    }
};

}  // namespace

TEST_F(ImprimirEnVentana, UnMuroDeCuatroMetrosMideCuatroCentimetrosEnLosCuatroPapeles) {
    ponMuro({200, 200});
    ASSERT_EQ(dibujo().Pared.en(1)->Longitud, 4000);
    ASSERT_EQ(dibujo().FactorZoomActual, 0.5);
    for (const Caso& caso : papeles) {
        const QImage pagina = imprimir(caso);
        const QRect tinta = tintaDe(pagina);
        const double milimetro = porPulgada / 25.4;
        const double pixel = porPulgada / 96.0;
        // From the middle of one cap to the middle of the other.
        EXPECT_NEAR(tinta.width() - pixel, 40 * milimetro, pixel) << caso.tamano << caso.sentido;
        EXPECT_NEAR(tinta.left(), 3000 / 500.0 * 10 * milimetro, pixel);
        EXPECT_NEAR(tinta.top(), 1000 / twipsPorPixelPdf + 3000 / 500.0 * 10 * milimetro, 2 * pixel);
    }
}

TEST_F(ImprimirEnVentana, ElDialogoDelEscritorioNoCambiaElPapel) {
    ponMuro({200, 200});
    const QString pdf = QString::fromStdString((carpeta / "A3H.pdf").string());
    VistaPrevia vista(imagenNegra({50, 50}), *papelPara(1, 1), &ventana);
    cuandoSeAbra<QPrintDialog>([pdf](QPrintDialog& dialogo) {
        auto& impresoras = apoyo::control<QComboBox>(dialogo, "printers");
        impresoras.setCurrentIndex(impresoras.count() - 1);
        apoyo::control<QLineEdit>(dialogo, "filename").setText(pdf);
        dialogo.printer()->setPageSize(QPageSize(QPageSize::A5));
        dialogo.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    vista.show();
    apoyo::control<QToolButton>(vista, "BttImprimir").click();
    esperarCerca(paginaDe(pdf, porPulgada).size(), 23808, 16833, 28);
}

TEST_F(ImprimirEnVentana, CancelarElDialogoNoImprimeNada) {
    VistaPrevia vista(imagenNegra({50, 50}), *papelPara(0, 0), &ventana);
    bool abierto = false;
    cuandoSeAbra<QPrintDialog>([&](QPrintDialog& dialogo) {
        abierto = true;
        apoyo::control<QLineEdit>(dialogo, "filename")
            .setText(QString::fromStdString((carpeta / "no.pdf").string()));
        dialogo.reject();
    });
    vista.show();
    apoyo::control<QToolButton>(vista, "BttImprimir").click();
    EXPECT_TRUE(abierto);
    EXPECT_FALSE(std::filesystem::exists(carpeta / "no.pdf"));
}
