#include "ui/lienzo_qt.h"

#include "formas/prueba_lienzo.h"
#include "output/escala.h"
#include "surface/superficie_salida.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImageReader>
#include <QMimeData>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

using LienzoQtRecortar = PruebaLienzo;
using LienzoQtGuardar = PruebaLienzo;
using LienzoQtPortapapeles = PruebaLienzo;
using LienzoQtMemoria = PruebaLienzo;

constexpr std::size_t mega = 1 << 20;

/// A canvas for which there are so many bytes at most.
std::unique_ptr<LienzoQt> lienzoCon(std::size_t memoria) {
    return std::make_unique<LienzoQt>([memoria](std::size_t bytes) { return bytes <= memoria; });
}

void pintarNegro(SuperficieSalida& hoja) {
    hoja.FillStyle(Relleno::solido);
    hoja.FillColor(negro);
    hoja.Caja(-15, -15, 1e6, 1e6, negro);
}

}  // namespace

TEST_F(LienzoQtRecortar, CopiaLosMismosPixeles) {
    ponMuro(3000, 3000, 27, 3000);
    pintar();
    lienzo.recortar({180, 120, 300, 200});
    EXPECT_TRUE(lienzo.RecorteSalida() == lienzo.HojaSalida().copy(180, 120, 300, 200));
    EXPECT_EQ(lienzo.RecorteSalida().dotsPerMeterX(), 3780);
}

TEST_F(LienzoQtRecortar, FueraDeLaHojaEsBlanco) {
    lienzo.pintarHoja({100, 50}, [](SuperficieSalida& hoja) {
        hoja.FillStyle(Relleno::solido);
        hoja.FillColor(negro);
        hoja.Caja(-1000, -1000, 10000, 10000, negro);
    });
    lienzo.recortar({-10, -20, 150, 100});
    const QImage& recorte = lienzo.RecorteSalida();
    EXPECT_EQ(recorte.size(), QSize(150, 100));
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 150; ++x)
            ASSERT_EQ(esTinta(recorte, x, y), x >= 10 && x < 110 && y >= 20 && y < 70) << x << " " << y;
}

TEST_F(LienzoQtRecortar, SinAnchoOSinAltoQuedaVacio) {
    pintar();
    for (const AreaSalida& area : {AreaSalida{}, {10, 10, 0, 50}, {10, 10, 50, 0}, {10, 10, -5, 20}}) {
        lienzo.recortar({0, 0, 10, 10});
        lienzo.recortar(area);
        EXPECT_TRUE(lienzo.RecorteSalida().isNull());
    }
}

TEST_F(LienzoQtGuardar, EnColorGuardaLosColores) {
    dibujo.Pared.modelo().LineColor = rojo;
    ponMuro(3000, 3000, 0, 3000);
    const QImage fichero = exportado();
    EXPECT_EQ(fichero.size(), QSize(755, 755));
    EXPECT_GE(fichero.depth(), 24);
    EXPECT_TRUE(fichero.convertToFormat(QImage::Format_RGB32) == lienzo.RecorteSalida());
    EXPECT_EQ(fichero.pixelColor(300, 227), QColor(255, 0, 0));
    EXPECT_EQ(fichero.dotsPerMeterX(), 3780);
    EXPECT_EQ(fichero.dotsPerMeterY(), 3780);
}

TEST_F(LienzoQtGuardar, EnBlancoYNegroGuardaUnBitPorPixel) {
    dibujo.Esquema = "Blanco y Negro";
    ponMuro(3000, 3000, 27, 3000);
    const QImage fichero = exportado();
    EXPECT_EQ(fichero.depth(), 1);
    EXPECT_EQ(fichero.dotsPerMeterX(), 3780);
    EXPECT_TRUE(fichero.convertToFormat(QImage::Format_RGB32) == lienzo.RecorteSalida());
}

TEST_F(LienzoQtGuardar, EnBlancoYNegroLoOscuroEsNegroYLoClaroBlanco) {
    dibujo.Esquema = "Blanco y Negro";
    for (const auto& [color, esNegro] : {std::pair{rojo, true},
                                         {azulOscuro, true},
                                         {colorCuadricula, false},
                                         {verdeAzulado, true},
                                         {0xC0C0C0, false},
                                         {negro, true}}) {
        dibujo.Pared.modelo().LineColor = color;
        dibujo.Pared.contador = 1;
        ponMuro(3000, 3000, 0, 3000);
        EXPECT_EQ(esTinta(exportado().convertToFormat(QImage::Format_RGB32), 300, 227), esNegro) << color;
    }
}

TEST_F(LienzoQtGuardar, LoVacioEsUnFicheroSinPixeles) {
    for (const auto& [profundidad, cabecera] :
         {std::pair{Profundidad::color, 54U}, {Profundidad::dosTonos, 62U}}) {
        lienzo.recortar({});
        lienzo.guardar(plataforma.ruta, profundidad);
        const std::string bytes = bytesDe(plataforma.ruta);
        ASSERT_EQ(bytes.size(), cabecera);
        EXPECT_EQ(bytes.substr(0, 2), "BM");
        EXPECT_EQ(static_cast<unsigned char>(bytes[2]), cabecera);
        EXPECT_EQ(bytes.substr(18, 8), std::string(8, '\0'));
        EXPECT_EQ(bytes[28], profundidad == Profundidad::color ? 24 : 1);
        EXPECT_EQ(bytes.substr(34, 4), std::string(4, '\0'));
    }
}

TEST_F(LienzoQtGuardar, LoQueHabiaSeReemplazaEntero) {
    ponerBytes(plataforma.ruta, std::string(5'000'000, 'x'));
    EXPECT_EQ(exportado().size(), QSize(755, 755));
    EXPECT_LT(std::filesystem::file_size(plataforma.ruta), 2'000'000U);
}

TEST_F(LienzoQtGuardar, UnaRutaDondeNoSePuedeEscribirNoHaceNada) {
    plataforma.ruta = plataforma.carpeta / "nadie" / "plano.bmp";
    EXPECT_TRUE(exportado().isNull());
    EXPECT_FALSE(std::filesystem::exists(plataforma.ruta));
}

TEST_F(LienzoQtPortapapeles, OfreceLaImagenYSuPng) {
    ponMuro(3000, 3000, 27, 3000);
    pintar();
    lienzo.recortar({180, 120, 300, 200});
    lienzo.vaciarPortapapeles();
    lienzo.ponerEnPortapapeles();
    const QMimeData* datos = QGuiApplication::clipboard()->mimeData();
    ASSERT_TRUE(datos->hasImage());
    ASSERT_TRUE(datos->hasFormat("image/png"));
    EXPECT_TRUE(QGuiApplication::clipboard()->image() == lienzo.RecorteSalida());
    const QImage png = QImage::fromData(datos->data("image/png"), "PNG");
    EXPECT_TRUE(png.convertToFormat(QImage::Format_RGB32) == lienzo.RecorteSalida());
    EXPECT_EQ(png.dotsPerMeterX(), 3780);
}

TEST_F(LienzoQtPortapapeles, LoVacioTambienReemplazaLoQueHabia) {
    QGuiApplication::clipboard()->setText("antes");
    lienzo.recortar({});
    lienzo.ponerEnPortapapeles();
    EXPECT_FALSE(QGuiApplication::clipboard()->mimeData()->hasImage());
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString());
}

TEST_F(LienzoQtPortapapeles, VaciarNoDejaNada) {
    QGuiApplication::clipboard()->setText("antes");
    lienzo.vaciarPortapapeles();
    const QMimeData* datos = QGuiApplication::clipboard()->mimeData();
    EXPECT_TRUE(!datos || datos->formats().isEmpty());
}

TEST_F(LienzoQtMemoria, LaHojaMasGrandeSeCortaYTodoSigueFuncionando) {
    dibujo.Hoja.Width = dibujo.Hoja.Height = 3.3e9F;
    ponMuro(3000, 3000, 27, 3000);
    ponMuro(-3e8, 3e8, 45, 1e9);
    QImageReader::setAllocationLimit(0);
    const QImage fichero = exportado();
    EXPECT_EQ(fichero.size(), QSize(ladoMaximo, ladoMaximo));
    EXPECT_TRUE(esTinta(fichero, 227, 227));
    lienzo.ponerEnPortapapeles();
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), QSize(ladoMaximo, ladoMaximo));
    QGuiApplication::clipboard()->clear();
}

TEST_F(LienzoQtMemoria, LaHojaSeCortaALoQueCabeConSusCopias) {
    // Four of it, and 16 MB more for each: one of 4000 by 2000 takes 30.5 MB.
    for (const auto& [memoria, tamano] : {std::pair{187 * mega, TamanoSalida{4000, 2000}},
                                          {186 * mega, TamanoSalida{2000, 2000}},
                                          {100 * mega, TamanoSalida{2000, 1000}},
                                          {65 * mega, TamanoSalida{250, 250}},
                                          {64 * mega, TamanoSalida{}}}) {
        const auto justo = lienzoCon(memoria);
        EXPECT_EQ(justo->pintarHoja({4000, 2000}, pintarNegro), tamano) << memoria;
        EXPECT_EQ(justo->HojaSalida().size(), QSize(tamano.ancho, tamano.alto));
        if (tamano.ancho > 0) {
            EXPECT_TRUE(esTinta(justo->HojaSalida(), tamano.ancho - 1, tamano.alto - 1));
        }
    }
}

TEST_F(LienzoQtMemoria, ElRecorteTambien) {
    const auto justo = lienzoCon(100 * mega);
    EXPECT_EQ(justo->pintarHoja({700, 700}, pintarNegro), (TamanoSalida{700, 700}));
    justo->recortar({0, 0, 8000, 500});
    EXPECT_EQ(justo->RecorteSalida().size(), QSize(8000, 500));
    justo->recortar({0, 0, 8000, 6000});
    EXPECT_EQ(justo->RecorteSalida().size(), QSize(2000, 1500));
    EXPECT_TRUE(esTinta(justo->RecorteSalida(), 699, 699));
    EXPECT_FALSE(esTinta(justo->RecorteSalida(), 700, 700));
}

TEST_F(LienzoQtMemoria, SinNadaCadaFinSigueSuCaminoConLoVacio) {
    const auto justo = lienzoCon(0);
    EXPECT_EQ(justo->pintarHoja({700, 700}, pintarNegro), TamanoSalida());
    justo->recortar({0, 0, 100, 100});
    EXPECT_TRUE(justo->RecorteSalida().isNull());
    justo->ponerEnPortapapeles();
    EXPECT_FALSE(QGuiApplication::clipboard()->mimeData()->hasImage());
    justo->guardar(plataforma.ruta, Profundidad::color);
    EXPECT_EQ(std::filesystem::file_size(plataforma.ruta), 54U);
}
