#include "ui/ayuda_forma.h"

#include "formas/apoyo_formas.h"
#include "formas/ventana_de_prueba.h"
#include "ui/ayuda_archivo.h"
#include "ui/carpeta.h"

#include <QBuffer>
#include <QListWidget>
#include <QScrollBar>
#include <QTextBrowser>
#include <QToolButton>
#include <QTreeWidget>
#include <algorithm>

using namespace bosquel;

namespace {

QByteArray pagina(const char* titulo, const char* cuerpo) {
    return QString("<html><head><title>%1</title></head><body><h1>%1</h1>%2</body></html>")
        .arg(titulo, cuerpo)
        .toUtf8();
}

QByteArray linea(const char* nombre, const char* destino) {
    return QString(R"(<li><object type="text/sitemap"><param name="Name" value="%1">
                      <param name="Local" value="%2"></object>)")
        .arg(nombre, destino)
        .toUtf8();
}

QByteArray png(QImage imagen, int puntosPorMetro) {
    imagen.setDotsPerMeterX(puntosPorMetro);
    imagen.setDotsPerMeterY(puntosPorMetro);
    QByteArray bytes;
    QBuffer salida(&bytes);
    salida.open(QIODevice::WriteOnly);
    imagen.save(&salida, "PNG");
    return bytes;
}

QImage rojo(QSize tamano) {
    QImage imagen(tamano, QImage::Format_RGB32);
    imagen.fill(Qt::red);
    return imagen;
}

/// All the colours of a palette at the left, more than which come of mixing them, and one of them at the
/// right.
QImage conPaleta() {
    QImage imagen(100, 100, QImage::Format_Indexed8);
    QList<QRgb> colores;
    for (int i = 0; i < 200; ++i)
        colores += qRgb(238 - i, 238 - 7 * i % 200, 238 - 13 * i % 200);
    imagen.setColorTable(colores);
    for (int x = 0; x < imagen.width(); ++x)
        for (int y = 0; y < imagen.height(); ++y)
            imagen.setPixel(x, y, static_cast<uint>(x < 50 ? (x * x + 31 * y) % 200 : 0));
    return imagen;
}

ArchivoAyuda archivoDePrueba() {
    return {{"uno.html", pagina("Uno", R"(<p>La bañera. <a href="dos.html#sitio">Dos</a>
                                         <a href="https://example.org/">fuera</a>
                                         <a href="falta.html">falta</a></p>)")},
            {"dos.html", pagina("Dos", R"(<p><img src="imagenes/rojo.png"></p><p>Un muro.</p>
                                         <h2><a name="sitio">Sitio</a></h2><p>Otro muro.</p>)")},
            {"larga.html", pagina("Larga", QByteArray("<p>Línea.</p>").repeated(200).constData())},
            {"ancha.html", pagina("Ancha", R"(<p><img src="imagenes/ancha.png"></p>)")},
            {"imagenes/rojo.png", png(rojo({200, 100}), 7560)},
            {"imagenes/paleta.png", png(conPaleta(), 7560)},
            {"imagenes/ancha.png", png(rojo({3000, 100}), 3780)},
            {"a.hhc",
             "<ul>" + linea("Primera", "uno.html") + "<ul>" + linea("Segunda", "dos.html") + "</ul></ul>"},
            {"a.hhk", "<ul>" + linea("bañera", "uno.html") + linea("sitio", "dos.html#sitio") + "</ul>"}};
}

struct AyudaFormaPrueba : testing::Test {
    AyudaForma& forma = *new AyudaForma(archivoDePrueba());  // goes when it is closed
    QPointer<AyudaForma> viva{&forma};

    AyudaFormaPrueba() { apoyo::mostrarActiva(forma); }
    ~AyudaFormaPrueba() override { delete viva; }
    AyudaFormaPrueba(const AyudaFormaPrueba&) = delete;
    AyudaFormaPrueba& operator=(const AyudaFormaPrueba&) = delete;

    template <class Control = QWidget>
    Control& control(const char* nombre) {
        return apoyo::control<Control>(forma, nombre);
    }
    QTextBrowser& pagina() { return control<QTextBrowser>("Pagina"); }
    QString fuente() { return pagina().source().toString(); }
    QString marcada() {
        const QTreeWidgetItem* item = control<QTreeWidget>("Contenido").currentItem();
        return item ? item->text(0) : QString();
    }
    void pulsar(const char* boton) { QTest::mouseClick(&control(boton), Qt::LeftButton); }
    void buscar(const QString& texto) {
        control<QLineEdit>("Busqueda").clear();
        QTest::keyClicks(&control("Busqueda"), texto);
    }
    QStringList hallazgos() {
        QStringList titulos;
        const auto& lista = control<QListWidget>("Hallazgos");
        for (int i = 0; i < lista.count(); ++i)
            titulos += lista.item(i)->text().section('\n', 0, 0);
        return titulos;
    }
    QImage imagen(const char* nombre) {
        const QUrl url(QString("chm:/imagenes/%1.png").arg(nombre));
        return pagina().loadResource(QTextDocument::ImageResource, url).value<QImage>();
    }
    QSizeF tamanoDeImagen() { return imagen("rojo").deviceIndependentSize(); }
};

}  // namespace

TEST_F(AyudaFormaPrueba, EmpiezaPorLaPrimeraPaginaDelContenido) {
    EXPECT_EQ(forma.objectName(), "Ayuda");
    EXPECT_EQ(forma.windowTitle(), "Ayuda de Bosquel Rapiz");
    EXPECT_EQ(fuente(), "chm:/uno.html");
    EXPECT_EQ(marcada(), "Primera");
    EXPECT_TRUE(pagina().toPlainText().contains("La bañera."));
}

TEST_F(AyudaFormaPrueba, ElArbolEsElContenidoYLaListaElIndice) {
    const auto& contenido = control<QTreeWidget>("Contenido");
    ASSERT_EQ(contenido.topLevelItemCount(), 1);
    EXPECT_EQ(contenido.topLevelItem(0)->text(0), "Primera");
    ASSERT_EQ(contenido.topLevelItem(0)->childCount(), 1);
    EXPECT_EQ(contenido.topLevelItem(0)->child(0)->text(0), "Segunda");
    EXPECT_TRUE(contenido.topLevelItem(0)->isExpanded());
    auto& indice = control<QTreeWidget>("Indice");
    ASSERT_EQ(indice.topLevelItemCount(), 2);
    EXPECT_EQ(indice.topLevelItem(0)->text(0), "bañera");
    indice.setCurrentItem(indice.topLevelItem(1));
    EXPECT_EQ(fuente(), "chm:/dos.html#sitio");
    EXPECT_EQ(marcada(), "Segunda") << "the contents follow, though they do not name the place";
}

TEST_F(AyudaFormaPrueba, UnaLineaDelContenidoMuestraSuPaginaTambienLaSegundaVez) {
    auto& contenido = control<QTreeWidget>("Contenido");
    QTreeWidgetItem* segunda = contenido.topLevelItem(0)->child(0);
    contenido.setCurrentItem(segunda);
    EXPECT_EQ(fuente(), "chm:/dos.html");
    pagina().setSource(QUrl("chm:/dos.html#sitio"));
    emit contenido.itemClicked(segunda, 0);
    EXPECT_EQ(fuente(), "chm:/dos.html");
}

TEST_F(AyudaFormaPrueba, AtrasAdelanteEInicioRecorrenLoVisto) {
    EXPECT_FALSE(control("BttAtras").isEnabled());
    EXPECT_FALSE(control("BttAdelante").isEnabled());
    pagina().setSource(QUrl("chm:/dos.html"));
    pulsar("BttAtras");
    EXPECT_EQ(fuente(), "chm:/uno.html");
    EXPECT_EQ(marcada(), "Primera");
    pulsar("BttAdelante");
    EXPECT_EQ(fuente(), "chm:/dos.html");
    pulsar("BttInicio");
    EXPECT_EQ(fuente(), "chm:/uno.html");
    QTest::keyClick(&pagina(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(fuente(), "chm:/dos.html");
    QTest::keyClick(&pagina(), Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(fuente(), "chm:/uno.html");
}

TEST_F(AyudaFormaPrueba, LoQueNoEstaEnElFicheroNoSeSigue) {
    for (const char* destino : {"https://example.org/", "chm:/falta.html", "chm://otro/dos.html",
                                "file:///etc/hostname", "dos.html"}) {
        pagina().setSource(QUrl(destino));
        EXPECT_EQ(fuente(), "chm:/uno.html") << destino;
    }
    EXPECT_FALSE(control("BttAtras").isEnabled());
    EXPECT_FALSE(pagina().openExternalLinks());
    EXPECT_FALSE(pagina().loadResource(QTextDocument::ImageResource, QUrl("file:///etc/hostname")).isValid());
}

TEST_F(AyudaFormaPrueba, UnEnlaceLlevaASuPagina) {
    QTest::keyClick(&pagina(), Qt::Key_Tab);
    QTest::keyClick(&pagina(), Qt::Key_Return);
    EXPECT_EQ(fuente(), "chm:/dos.html#sitio");
}

TEST_F(AyudaFormaPrueba, BuscarMuestraLoHalladoEnLugarDelContenido) {
    EXPECT_TRUE(control("Contenido").isVisible());
    buscar("banera");
    EXPECT_TRUE(control("Hallazgos").isVisible());
    EXPECT_FALSE(control("Contenido").isVisible());
    EXPECT_EQ(hallazgos(), QStringList({"Uno"}));
    buscar("nadie");
    EXPECT_EQ(control<QListWidget>("Hallazgos").item(0)->text().trimmed(), "No se ha encontrado nada.");
    control<QLineEdit>("Busqueda").clear();
    EXPECT_TRUE(control("Contenido").isVisible());
}

TEST_F(AyudaFormaPrueba, UnHallazgoMuestraSuPaginaConLasPalabrasMarcadas) {
    buscar("muro");
    QTest::keyClick(&control("Busqueda"), Qt::Key_Return);
    EXPECT_EQ(forma.focusWidget(), &control("Hallazgos"));
    EXPECT_EQ(fuente(), "chm:/dos.html");
    const auto marcas = pagina().extraSelections();
    ASSERT_EQ(marcas.size(), 2);
    for (const auto& marca : marcas)
        EXPECT_EQ(marca.cursor.selectedText(), "muro");
    EXPECT_EQ(pagina().textCursor().position(), marcas[0].cursor.selectionStart());
}

TEST_F(AyudaFormaPrueba, LaEscaleraDeTamanosSeSubeYSeBaja) {
    const double letra = pagina().font().pointSizeF();
    const QSizeF imagen = tamanoDeImagen();
    EXPECT_EQ(imagen, QSizeF(100, 50)) << "made at twice the size, shown at the natural one";
    pulsar("BttAumentar");
    EXPECT_EQ(control<QToolButton>("BttTamano").text(), "115 %");
    EXPECT_NEAR(pagina().font().pointSizeF(), 1.15 * letra, 0.01);
    EXPECT_EQ(tamanoDeImagen(), QSizeF(115, 57));
    for (int i = 0; i < 20; ++i)
        pulsar("BttAumentar");
    EXPECT_EQ(control<QToolButton>("BttTamano").text(), "200 %");
    for (int i = 0; i < 20; ++i)
        QTest::keyClick(&forma, Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(control<QToolButton>("BttTamano").text(), "60 %");
    pulsar("BttTamano");
    EXPECT_EQ(control<QToolButton>("BttTamano").text(), "100 %");
    EXPECT_EQ(tamanoDeImagen(), imagen);
    EXPECT_EQ(fuente(), "chm:/uno.html");
}

TEST_F(AyudaFormaPrueba, AlCambiarDeTamanoLaPaginaSigueMarcadaYEnSuSitio) {
    forma.resize(700, 400);
    pagina().setSource(QUrl("chm:/larga.html"));
    QScrollBar& barra = *pagina().verticalScrollBar();
    barra.setValue(barra.maximum() / 2);
    const int arriba = pagina().cursorForPosition({0, 0}).blockNumber();
    EXPECT_GT(arriba, 50);
    pulsar("BttAumentar");
    EXPECT_NEAR(pagina().cursorForPosition({0, 0}).blockNumber(), arriba, 1);
    buscar("muro");
    QTest::keyClick(&control("Busqueda"), Qt::Key_Return);
    pulsar("BttReducir");
    EXPECT_FALSE(pagina().extraSelections().isEmpty());
    pagina().setSource(QUrl("chm:/uno.html"));
    pulsar("BttReducir");
    EXPECT_TRUE(pagina().extraSelections().isEmpty()) << "what was looked for was the other page's";
}

TEST_F(AyudaFormaPrueba, AlCambiarDeAnchoSeSigueViendoElPrincipioEntero) {
    pagina().setSource(QUrl("chm:/larga.html"));
    for (const int ancho : {600, 1000}) {
        forma.resize(ancho, 400);
        QApplication::processEvents();
        EXPECT_GT(pagina().verticalScrollBar()->maximum(), 0);
        EXPECT_EQ(pagina().verticalScrollBar()->value(), 0) << ancho;
    }
}

TEST_F(AyudaFormaPrueba, UnaImagenNoEsMasAnchaQueElTexto) {
    pagina().setSource(QUrl("chm:/ancha.html"));
    for (const int ancho : {1000, 600}) {
        forma.resize(ancho, 500);
        QApplication::processEvents();
        EXPECT_EQ(pagina().horizontalScrollBar()->maximum(), 0) << ancho;
        EXPECT_GT(pagina().document()->idealWidth(), 0.9 * std::min(720, pagina().viewport()->width()))
            << ancho;
    }
}

TEST_F(AyudaFormaPrueba, UnaImagenConPaletaSeReduceConLosColoresQueHagaFalta) {
    pulsar("BttReducir");
    const QImage reducida = imagen("paleta");
    ASSERT_EQ(reducida.size(), QSize(45, 45));
    for (int x = 25; x < 45; ++x)
        EXPECT_EQ(reducida.pixelColor(x, 20), QColor(238, 238, 238)) << x;
}

TEST_F(AyudaFormaPrueba, EscapeDejaPrimeroLaBusquedaYDespuesLaVentana) {
    buscar("muro");
    QTest::keyClick(&forma, Qt::Key_Escape);
    EXPECT_EQ(control<QLineEdit>("Busqueda").text(), "");
    EXPECT_TRUE(pagina().extraSelections().isEmpty());
    EXPECT_TRUE(forma.isVisible());
    QTest::keyClick(&forma, Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(viva.isNull());
}

TEST_F(AyudaFormaPrueba, CtrlFLlevaABuscar) {
    QTest::keyClick(&forma, Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(forma.focusWidget(), &control("Busqueda"));
}

TEST_F(AyudaFormaPrueba, TodoTieneNombreYSeAlcanzaConElTeclado) {
    apoyo::esperarAccesible(forma);
    control("BttInicio").setFocus();
    EXPECT_EQ(apoyo::recorridoTab(forma), QStringList({"BttInicio", "BttReducir", "BttTamano", "BttAumentar",
                                                       "Busqueda", "Pestanas", "Contenido", "Pagina"}));
}

namespace {

/// The main window, with the manual or something else in the program's folder.
struct AyudaDesdeLaVentana : apoyo::VentanaDePrueba {
    void ponerManual() const { std::filesystem::copy(BOSQUEL_MANUAL, carpeta / "Bosquel.chm"); }

    static QList<QWidget*> ayudas() {
        QList<QWidget*> halladas;
        for (QWidget* ventana : QApplication::topLevelWidgets())
            if (ventana->objectName() == "Ayuda") halladas += ventana;
        return halladas;
    }
    static int ventanasVisibles() {
        const auto todas = QApplication::topLevelWidgets();
        return static_cast<int>(
            std::count_if(todas.begin(), todas.end(), [](auto* una) { return una->isVisible(); }));
    }
};

}  // namespace

TEST_F(AyudaDesdeLaVentana, ElBotonAbreElManualSinDetenerAlPrograma) {
    ponerManual();
    pulsar("BttPrincipal_3");
    ASSERT_EQ(ayudas().size(), 1);
    EXPECT_TRUE(ayudas().front()->isVisible());
    EXPECT_FALSE(ayudas().front()->isModal());
    ponMuro({200, 200});
    EXPECT_TRUE(dibujo().Pared.existe(1));
}

TEST_F(AyudaDesdeLaVentana, VariasPulsacionesTraenAlFrenteLaMisma) {
    ponerManual();
    pulsar("BttPrincipal_3");
    ASSERT_EQ(ayudas().size(), 1);
    QWidget* primera = ayudas().front();
    primera->showMinimized();
    ventana.activateWindow();
    pulsar("BttPrincipal_3");
    EXPECT_EQ(ayudas(), QList<QWidget*>({primera}));
    EXPECT_FALSE(primera->isMinimized());
    EXPECT_TRUE(QTest::qWaitForWindowActive(primera));
}

TEST_F(AyudaDesdeLaVentana, CerradaYVueltaAAbrirNoRecuerdaNada) {
    ponerManual();
    pulsar("BttPrincipal_3");
    ayudas().front()->findChild<QLineEdit*>("Busqueda")->setText("muro");
    ayudas().front()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(ayudas().isEmpty());
    pulsar("BttPrincipal_3");
    ASSERT_EQ(ayudas().size(), 1);
    EXPECT_EQ(ayudas().front()->findChild<QLineEdit*>("Busqueda")->text(), "");
    EXPECT_FALSE(ayudas().front()->findChild<QWidget*>("BttAtras")->isEnabled());
}

TEST_F(AyudaDesdeLaVentana, SeLeeTambienMientrasUnDialogoEstaAbierto) {
    ponerManual();
    pulsar("BttPrincipal_3");
    ASSERT_EQ(ayudas().size(), 1);
    QWidget& ayuda = *ayudas().front();
    auto& pagina = apoyo::control<QTextBrowser>(ayuda, "Pagina");
    pagina.setSource(QUrl("chm:/paredes.html"));
    cuandoSeAbra<QDialog>([&](QDialog& dialogo) {
        const QWidget& inicio = apoyo::control(ayuda, "BttInicio");
        QTest::mouseClick(ayuda.windowHandle(), Qt::LeftButton, {},
                          inicio.mapTo(&ayuda, inicio.rect().center()));
        dialogo.reject();
    });
    pulsar("BttPrincipal_6");
    EXPECT_EQ(pagina.source(), QUrl("chm:/bienvenida.html"));
}

TEST_F(AyudaDesdeLaVentana, SinFicheroNoSeMuestraNada) {
    plataforma.mostrarAyuda(carpeta / "Falta.chm");
    EXPECT_TRUE(ayudas().isEmpty());
    EXPECT_EQ(ventanasVisibles(), 1);
}

TEST_F(AyudaDesdeLaVentana, UnFicheroDanadoNoMuestraNada) {
    apoyo::ponerBytes(carpeta / "Bosquel.chm", "ITSF y nada más");
    pulsar("BttPrincipal_3");
    EXPECT_TRUE(ayudas().isEmpty());
    EXPECT_EQ(ventanasVisibles(), 1);
    EXPECT_FALSE(bosquel.sesion().Ocupado);
}

TEST(SitioDelManual, EsElPedidoOElQueVieneConElPrograma) {
    const apoyo::CarpetaTemporal carpeta;
    const auto pedido = carpeta / "usuario/Bosquel.chm";
    const auto propio = carpeta / "datos/Bosquel.chm";
    EXPECT_EQ(sitioDelManual(pedido, carpeta / "datos"), pedido);
    for (const auto& sitio : {propio, pedido}) {
        std::filesystem::create_directories(sitio.parent_path());
        apoyo::ponerBytes(sitio, "x");
        EXPECT_EQ(sitioDelManual(pedido, carpeta / "datos"), sitio);
    }
}
