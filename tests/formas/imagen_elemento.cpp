#include "ui/imagen_elemento.h"

#include "apoyo/muestrario.h"
#include "formas/ventana_de_prueba.h"
#include "furnishing/calcar.h"
#include "ui/boton.h"

#include <QImage>
#include <QPainter>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

constexpr Color azul = 0xFF0000;

QPalette clara() {
    QPalette paleta(Qt::lightGray);
    paleta.setColor(QPalette::WindowText, Qt::black);
    paleta.setColor(QPalette::Base, Qt::white);
    return paleta;
}

QPalette oscura() {
    QPalette paleta(QColor(40, 40, 40));
    paleta.setColor(QPalette::WindowText, QColor(240, 240, 240));
    paleta.setColor(QPalette::Base, QColor(20, 20, 20));
    paleta.setColor(QPalette::Disabled, QPalette::WindowText, QColor(110, 110, 110));
    return paleta;
}

QImage pintada(const QIcon& icono, QSize tamano = {60, 40}, QIcon::Mode modo = QIcon::Normal) {
    return icono.pixmap(tamano, 1.0, modo).toImage().convertToFormat(QImage::Format_ARGB32);
}

/// What of the picture is not transparent.
QRect tinta(const QImage& imagen) {
    QRect zona;
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x)
            if (imagen.pixelColor(x, y).alpha() > 0) zona |= QRect(x, y, 1, 1);
    return zona;
}

bool tiene(const QImage& imagen, const QColor& color) {
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x)
            if (imagen.pixelColor(x, y) == color) return true;
    return false;
}

Calco deArmario(double ancho, double alto, Color linea = colorTextoVentana, Color fondo = blanco) {
    Dibujo dibujo;
    MblArmario& armario = dibujo.MblArmario.modelo();
    armario.DimX = ancho + 20;
    armario.DimY = alto + 20;
    armario.LineColor = linea;
    armario.BackColor = fondo;
    return calcar(dibujo, Clase::MblArmario, 0);
}

}  // namespace

using ModelosEnLaPaleta = VentanaDePrueba;

TEST(ImagenElemento, CabeEnteroYLlenaElBoton) {
    EXPECT_EQ(tinta(pintada(imagenElemento(deArmario(600, 400), clara()))), QRect(0, 0, 60, 40));
    const QRect alto = tinta(pintada(imagenElemento(deArmario(100, 1000), clara())));
    EXPECT_EQ(alto.height(), 40);
    EXPECT_NEAR(alto.width(), 5, 1);
    EXPECT_NEAR(alto.center().x(), 29, 1);
}

TEST(ImagenElemento, TodosLosElementosDelMuestrarioCabenYSeVen) {
    for (const Muestra& muestra : muestrario()) {
        Dibujo dibujo;
        muestra.poner(dibujo);
        const Calco calco = calcar(dibujo, muestra.clase, 1);
        if (calco.trazos.empty()) continue;
        for (const QSize tamano : {QSize(42, 25), QSize(48, 48), QSize(96, 96)}) {
            // A band around the button, which nothing may reach.
            QImage lienzo(tamano + QSize(20, 20), QImage::Format_ARGB32);
            lienzo.fill(Qt::transparent);
            QPainter pintor(&lienzo);
            imagenElemento(calco, clara()).paint(&pintor, QRect(QPoint(10, 10), tamano));
            pintor.end();
            const QRect zona = tinta(lienzo);
            EXPECT_TRUE(QRect(QPoint(10, 10), tamano).adjusted(-2, -2, 2, 2).contains(zona))
                << muestra.titulo;
            EXPECT_TRUE(zona.width() >= tamano.width() - 3 || zona.height() >= tamano.height() - 3)
                << muestra.titulo;
        }
    }
}

TEST(ImagenElemento, LosTrazosTienenUnPixelDelDispositivoACualquierDensidad) {
    const QIcon icono = imagenElemento(deArmario(600, 400), clara());
    for (const int densidad : {1, 2, 3}) {
        const QImage imagen = icono.pixmap({60, 40}, densidad, QIcon::Normal).toImage();
        EXPECT_EQ(imagen.size(), QSize(60, 40) * densidad);
        const int medio = imagen.height() / 2;
        EXPECT_EQ(imagen.pixelColor(0, medio), QColor(Qt::black));
        EXPECT_EQ(imagen.pixelColor(1, medio), QColor(Qt::white));
        EXPECT_EQ(imagen.pixelColor(imagen.width() - 1, medio), QColor(Qt::black));
    }
}

TEST(ImagenElemento, EnSusColoresDePartidaTomaLosDelEscritorio) {
    const Calco calco = deArmario(600, 400);
    const QImage deDia = pintada(imagenElemento(calco, clara()));
    EXPECT_EQ(deDia.pixelColor(0, 20), QColor(Qt::black));
    EXPECT_EQ(deDia.pixelColor(30, 20), QColor(Qt::white));
    const QImage deNoche = pintada(imagenElemento(calco, oscura()));
    EXPECT_EQ(deNoche.pixelColor(0, 20), QColor(240, 240, 240));
    EXPECT_EQ(deNoche.pixelColor(30, 20), QColor(20, 20, 20));
    const QImage delSistema =
        pintada(imagenElemento(deArmario(600, 400, colorTextoVentana, colorFondoVentana), oscura()));
    EXPECT_EQ(delSistema, deNoche);
}

TEST(ImagenElemento, EnOtrosColoresEstaSobrePapelComoEnLaHoja) {
    for (const QPalette& paleta : {clara(), oscura()}) {
        const QImage imagen = pintada(imagenElemento(deArmario(600, 400, azul, 0x00FFFF), paleta));
        EXPECT_EQ(imagen.pixelColor(0, 20), QColor(Qt::blue));
        EXPECT_EQ(imagen.pixelColor(30, 20), QColor(Qt::yellow));
        Dibujo dibujo;
        dibujo.MblLavabo.modelo().LineColor = azul;
        const QImage hueco = pintada(imagenElemento(calcar(dibujo, Clase::MblLavabo, 0), paleta));
        EXPECT_TRUE(tiene(hueco, Qt::white));
        EXPECT_TRUE(tiene(hueco, Qt::blue));
    }
}

TEST(ImagenElemento, ApagadaEsMasPalida) {
    const QImage apagada = pintada(imagenElemento(deArmario(600, 400), oscura()), {60, 40}, QIcon::Disabled);
    EXPECT_EQ(apagada.pixelColor(0, 20), QColor(110, 110, 110));
    const QImage deColor =
        pintada(imagenElemento(deArmario(600, 400, azul), clara()), {60, 40}, QIcon::Disabled);
    EXPECT_LT(deColor.pixelColor(0, 20).alpha(), 255);
}

TEST(ImagenElemento, ConUnMarcoComunLosTamanosSeComparan) {
    const Calco chico = deArmario(300, 300);
    const Calco grande = deArmario(600, 600);
    const QSizeF marco = marcoDe({chico, grande});
    EXPECT_EQ(marco, QSizeF(300, 300));
    EXPECT_EQ(tinta(pintada(imagenElemento(grande, clara(), marco), {41, 41})).width(), 41);
    EXPECT_EQ(tinta(pintada(imagenElemento(chico, clara(), marco), {41, 41})).width(), 21);
}

TEST(ImagenElemento, LoQueNoTieneAnchoSeVe) {
    const QRect zona = tinta(pintada(imagenElemento(deArmario(0, 800), clara())));
    EXPECT_EQ(zona.height(), 40);
    EXPECT_EQ(zona.width(), 1);
}

TEST(ImagenElemento, LoDesmesuradoNoRompeNada) {
    for (const double lado : {1e12, 1e150, 1e300}) {
        const QImage imagen = pintada(imagenElemento(deArmario(lado, lado / 2), clara()));
        EXPECT_EQ(imagen.size(), QSize(60, 40)) << lado;
    }
}

TEST(ImagenElemento, SinTrazosNoHayIcono) {
    EXPECT_TRUE(imagenElemento(Calco{}, clara()).isNull());
    EXPECT_EQ(marcoDe({Calco{}}), QSizeF(0, 0));
}

TEST(BotonDeElemento, SigueLaPaletaDelEscritorio) {
    Boton boton("B", "", "", nullptr);
    boton.ponerImagen([](const QPalette& paleta) { return imagenElemento(deArmario(600, 400), paleta); });
    boton.setPalette(oscura());
    EXPECT_TRUE(tiene(pintada(boton.icon()), QColor(240, 240, 240)));
    boton.setPalette(clara());
    EXPECT_FALSE(tiene(pintada(boton.icon()), QColor(240, 240, 240)));
}

TEST(BotonDeElemento, ElPulsadoSeDistingue) {
    Boton boton("B", "", "", nullptr);
    boton.setCheckable(true);
    boton.resize(60, 60);
    const QImage suelto = boton.grab().toImage();
    boton.setChecked(true);
    const QImage pulsado = boton.grab().toImage();
    EXPECT_NE(pulsado, suelto);
    EXPECT_NE(pulsado.pixelColor(30, 30), suelto.pixelColor(30, 30));
}

TEST_F(ModelosEnLaPaleta, CadaBotonDeElementoMuestraSuModelo) {
    const std::array<std::pair<int, const char*>, 4> paletas{
        {{0, "BttMueble"}, {1, "BttBaño"}, {2, "BttCocina"}, {5, "BttElectrico"}}};
    QList<QImage> imagenes;
    for (const auto& [tipo, grupo] : paletas) {
        pulsar(QString("BttTipo_%1").arg(tipo));
        for (int i = 0; i < 6; ++i) {
            const QImage imagen = pintada(control<Boton>(QString("%1_%2").arg(grupo).arg(i)).icon());
            EXPECT_FALSE(tinta(imagen).isEmpty()) << grupo << i;
            EXPECT_FALSE(imagenes.contains(imagen)) << grupo << i;
            imagenes += imagen;
        }
    }
    const QPalette paleta = control<Boton>("BttBaño_3").palette();
    EXPECT_EQ(pintada(control<Boton>("BttBaño_3").icon()),
              pintada(imagenElemento(calcar(dibujo(), Clase::MblBañera, 0), paleta)));
    EXPECT_EQ(pintada(control<Boton>("BttElectrico_5").icon()),
              pintada(imagenElemento(calcarSimbolo(dibujo(), "Cuadro Eléctrico"), paleta)));
}

TEST_F(ModelosEnLaPaleta, LaImagenSigueAlModelo) {
    pulsar("BttTipo_0");
    const auto imagen = [this] { return pintada(control<Boton>("BttMueble_5").icon()); };
    const QImage antes = imagen();
    dibujo().MblAsiento.modelo().NumeroAsientos = 1;
    dibujo().sucia.anadir({0, 0, 10, 10});
    publicar(bosquel.sesion());
    EXPECT_NE(imagen(), antes);
    dibujo().MblAsiento.modelo().NumeroAsientos = 3;
    anunciarTodo(dibujo());
    publicar(bosquel.sesion());
    EXPECT_EQ(imagen(), antes);
}

TEST_F(ModelosEnLaPaleta, LaQueNoEstabaALaVistaSigueAlModeloAlVolver) {
    pulsar("BttTipo_5");
    const QImage antes = pintada(control<Boton>("BttElectrico_2").icon());
    pulsar("BttTipo_3");
    dibujo().Electrico.modelo().LineColor = azul;
    pulsar("BttTipo_5");
    EXPECT_NE(pintada(control<Boton>("BttElectrico_2").icon()), antes);
}

TEST_F(ModelosEnLaPaleta, LosDemasBotonesTienenSuIconoDibujado) {
    for (const char* boton : {"BttTipo_4", "BttUsuario_0", "BttUsuario_5", "BttOperacion_2"})
        EXPECT_EQ(control<Boton>(boton).iconSize(), QSize(24, 24)) << boton;
    pulsar("BttTipo_0");
    EXPECT_NE(control<Boton>("BttMueble_0").iconSize(), QSize(24, 24));
}
