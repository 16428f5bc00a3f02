#include "ui/lienzo_qt.h"

#include "apoyo/carpeta_temporal.h"
#include "apoyo/muestrario.h"
#include "formas/apoyo_formas.h"
#include "furnishing/dibujar_elemento.h"
#include "output/escala.h"
#include "output/image_crop.h"
#include "surface/superficie_salida.h"
#include "walls/pared.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImageReader>
#include <QMimeData>
#include <array>
#include <cmath>
#include <set>
#include <vector>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

using Pixel = std::pair<int, int>;

/// The pixels of the straight strokes that it is given. Between two pixels a stroke takes either.
class Trazador : public SuperficieSalida {
  public:
    void FillStyle(Relleno) override {}
    void FillColor(Color) override {}
    void CurrentX(double) override {}
    void CurrentY(double) override {}
    void ForeColor(Color) override {}
    void FontSize(float) override {}
    void Print(std::string_view) override {}

    std::vector<std::array<Pixel, 2>> pasos;  ///< each wants one of its two, which may be the same

  protected:
    void trazarLinea(double x1, double y1, double x2, double y2, Color) override {
        const auto pixel = [](double twips) { return std::round(twips / twipsPorPixel); };
        const double dx = pixel(x2) - pixel(x1);
        const double dy = pixel(y2) - pixel(y1);
        const double largo = std::max({std::abs(dx), std::abs(dy), 1.0});
        for (double i = 0; i <= largo; ++i) {
            const double x = pixel(x1) + dx * i / largo;
            const double y = pixel(y1) + dy * i / largo;
            pasos.push_back({Pixel(std::floor(x), std::floor(y)), Pixel(std::ceil(x), std::ceil(y))});
        }
    }
    void trazarCaja(double, double, double, double, Color) override { FAIL(); }
    void trazarCurva(const Curva&, Color) override { FAIL(); }
};

/// Says yes to everything, and names a file.
struct PlataformaDeSi : PlataformaMuda {
    CarpetaTemporal carpeta;
    std::filesystem::path ruta = carpeta / "plano.bmp";

    Respuesta mensaje(const Mensaje&) override { return Respuesta::si; }
    std::optional<std::filesystem::path> elegirArchivo(const PeticionArchivo&) override { return ruta; }
};

/// The output of a drawing of one's own, without its window.
struct PruebaLienzo : testing::Test {
    PlataformaDeSi plataforma;
    Dibujo dibujo;
    LienzoQt lienzo;

    PruebaLienzo() { dibujo.Esquema = "Colores Personalizados"; }

    void pintar() { ImageCrop(plataforma, dibujo, {}).cargar(lienzo); }

    /// The bitmap file of the whole drawing.
    QImage exportado() {
        ImageCrop logica(plataforma, dibujo, {});
        logica.cargar(lienzo);
        logica.pulsarEdicion(ImageCrop::Edicion::Bitmap);
        return QImage(QString::fromStdString(plataforma.ruta.string()));
    }

    void ponMuro(double x, double y, int angulo, double longitud, const char* tipo = "Muro") {
        const int indice = dibujo.Pared.contador;
        Pared& pared = dibujo.Pared.crear(indice);
        avanzar(dibujo.Pared.contador);
        asignar(pared.InicialX, x);
        asignar(pared.InicialY, y);
        asignar(pared.Angulo, angulo);
        pared.Longitud = longitud;
        pared.Tipo = tipo;
        DibujaPared(dibujo, indice, false);
    }

    void ponTexto(const char* escrito) {
        TextoLibre& texto = dibujo.TextoLibre.crear(1);
        dibujo.TextoLibre.contador = 2;
        texto.Left = texto.Top = 3000;
        texto.FontSize = 20;
        texto.Text = escrito;
        texto.Visible = true;
    }
};

using LienzoQtPintar = PruebaLienzo;
using LienzoQtRecortar = PruebaLienzo;
using LienzoQtGuardar = PruebaLienzo;
using LienzoQtPortapapeles = PruebaLienzo;

bool esTinta(const QImage& imagen, int x, int y) {
    return (imagen.pixel(x, y) & 0xFFFFFFU) == 0;
}

bool enBlanco(const QImage& imagen) {
    QImage papel(imagen.size(), QImage::Format_RGB32);
    papel.fill(Qt::white);
    return imagen == papel;
}

/// Every stroke has its pixels, one at each step, and nothing else has any.
void esperarTrazos(const QImage& imagen, const Trazador& trazos) {
    const auto esNegro = [&](const Pixel& p) {
        return imagen.valid(p.first, p.second) && esTinta(imagen, p.first, p.second);
    };
    std::set<Pixel> posibles;
    for (const auto& paso : trazos.pasos) {
        posibles.insert(paso.begin(), paso.end());
        ASSERT_TRUE(esNegro(paso[0]) || esNegro(paso[1])) << paso[0].first << " " << paso[0].second;
    }
    std::size_t tinta = 0;
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x) {
            ASSERT_TRUE(esTinta(imagen, x, y) || imagen.pixel(x, y) == 0xFFFFFFFFU) << x << " " << y;
            if (!esTinta(imagen, x, y)) continue;
            ++tinta;
            ASSERT_TRUE(posibles.contains({x, y})) << x << " " << y;
        }
    EXPECT_LE(tinta, trazos.pasos.size());
    EXPECT_GT(tinta, 4000U);
}

}  // namespace

TEST_F(LienzoQtPintar, ElPapelEsBlancoDeUnPixelPorPixel) {
    pintar();
    EXPECT_EQ(lienzo.HojaSalida().size(), QSize(756, 756));
    EXPECT_EQ(lienzo.HojaSalida().devicePixelRatio(), 1);
    EXPECT_EQ(lienzo.HojaSalida().dotsPerMeterX(), 3780);
    EXPECT_EQ(lienzo.HojaSalida().dotsPerMeterY(), 3780);
    EXPECT_TRUE(enBlanco(lienzo.HojaSalida()));
}

TEST_F(LienzoQtPintar, LosPixelesDelFicheroSonLosDeLosTrazos) {
    for (int angulo = -90, i = 0; angulo <= 90; angulo += 13, ++i)
        ponMuro(1500 + 400.3 * i, 5200 + 77.7 * i, angulo, 2345 + 111 * i, i % 2 == 0 ? "Muro" : "Tabique");
    std::size_t n = 0;
    for (Segmento& linea : dibujo.Ventana.crear(1).lineas)
        linea = {600, 500 + 91.3F * static_cast<float>(++n), 1900, 300, true};
    for (Segmento& linea : dibujo.Puerta.crear(1).lineas)
        linea = {8200, 600, 8000 + 123.7F * static_cast<float>(++n), 2900, true};
    dibujo.Ventana.contador = dibujo.Puerta.contador = 2;
    Trazador trazos;
    DibujarTodo(salidaDe(dibujo, trazos, EscalaSalida), dibujo);
    esperarTrazos(exportado(), trazos);
}

TEST_F(LienzoQtPintar, NadaSeSuaviza) {
    ponTexto("Salón-comedor 24,5 m²");
    pintar();
    int tinta = 0;
    for (int y = 0; y < 756; ++y)
        for (int x = 0; x < 756; ++x) {
            const QRgb pixel = lienzo.HojaSalida().pixel(x, y);
            ASSERT_TRUE(pixel == 0xFFFFFFFFU || pixel == 0xFF000000U) << x << " " << y;
            tinta += pixel == 0xFF000000U ? 1 : 0;
        }
    EXPECT_GT(tinta, 300);
}

TEST_F(LienzoQtPintar, CadaClaseSale) {
    for (const Muestra& muestra : muestrario()) {
        dibujo = dibujoDe(muestra, 0.5);
        pintar();
        EXPECT_FALSE(enBlanco(lienzo.HojaSalida())) << datos(muestra.clase).nombre << muestra.titulo;
    }
}

TEST_F(LienzoQtRecortar, CopiaLosMismosPixeles) {
    ponMuro(3000, 3000, 27, 3000);
    pintar();
    lienzo.recortar({180, 120, 300, 200});
    EXPECT_TRUE(lienzo.RecorteSalida() == lienzo.HojaSalida().copy(180, 120, 300, 200));
    EXPECT_EQ(lienzo.RecorteSalida().dotsPerMeterX(), 3780);
}

TEST_F(LienzoQtRecortar, FueraDeLaHojaEsBlanco) {
    lienzo.pintarHoja(100, 50, [](SuperficieSalida& hoja) {
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

TEST_F(LienzoQtPintar, LaHojaMasGrandeSeCortaYTodoSigueFuncionando) {
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
