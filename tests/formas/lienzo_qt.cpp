#include "ui/lienzo_qt.h"

#include "apoyo/carpeta_temporal.h"
#include "apoyo/muestrario.h"
#include "formas/apoyo_formas.h"
#include "formas/apoyo_pdf.h"
#include "formas/trazador.h"
#include "furnishing/dibujar_elemento.h"
#include "output/escala.h"
#include "output/image_crop.h"
#include "surface/superficie_salida.h"
#include "ui/superficie_qt.h"
#include "walls/pared.h"

#include <QClipboard>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QImageReader>
#include <QMimeData>
#include <cmath>
#include <numbers>
#include <set>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

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

    void ponTexto(const char* escrito, float puntos = 20) {
        TextoLibre& texto = dibujo.TextoLibre.crear(1);
        dibujo.TextoLibre.contador = 2;
        texto.Left = texto.Top = 3000;
        texto.FontSize = puntos;
        texto.Text = escrito;
        texto.Visible = true;
    }

    /// A window and a door, of slanting lines that meet nothing else.
    void ponAberturas() {
        std::size_t n = 0;
        for (Segmento& linea : dibujo.Ventana.crear(1).lineas)
            linea = {600, 500 + 91.3F * static_cast<float>(++n), 1900, 300, true};
        for (Segmento& linea : dibujo.Puerta.crear(1).lineas)
            linea = {8200, 600, 8000 + 123.7F * static_cast<float>(++n), 2900, true};
        dibujo.Ventana.contador = dibujo.Puerta.contador = 2;
    }

    /// The strokes of the whole drawing.
    void trazar(Trazador& trazos) const { DibujarTodo(salidaDe(dibujo, trazos, EscalaSalida), dibujo); }

    /// The picture is that of the strokes: each of them has its pixels, and nothing else has any.
    void esperarTrazos(const QImage& imagen, std::size_t pasosAlMenos) const {
        Trazador trazos;
        trazar(trazos);
        EXPECT_EQ(trazos.falta(imagen), "");
        EXPECT_GE(trazos.pasos(), pasosAlMenos);
    }

    /// What is drawn on a small sheet has its pixels there, and nothing else has any.
    void esperarDibujado(const std::function<void(SuperficieSalida&)>& dibujar, const std::string& que) {
        Trazador trazos;
        dibujar(trazos);
        lienzo.pintarHoja({120, 120}, dibujar);
        EXPECT_EQ(trazos.falta(lienzo.HojaSalida()), "") << que;
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
    ponAberturas();
    esperarTrazos(exportado().convertToFormat(QImage::Format_RGB32), 4000);
}

TEST_F(LienzoQtPintar, CadaMuebleEscaleraYSimboloTieneLosPixelesDeSusTrazos) {
    std::set<Clase> clases;
    for (const Muestra& muestra : muestrario())
        for (const double factor : {0.5, 1.0}) {
            clases.insert(muestra.clase);
            dibujo = dibujoDe(muestra, factor);
            dibujo.Hoja.Width = dibujo.Hoja.Height = factor == 0.5 ? 5000 : 8000;
            pintar();
            Trazador trazos;
            trazar(trazos);
            EXPECT_FALSE(enBlanco(lienzo.HojaSalida()));
            EXPECT_EQ(trazos.falta(lienzo.HojaSalida()), "")
                << datos(muestra.clase).nombre << " " << muestra.titulo << " " << factor;
        }
    EXPECT_EQ(clases.size(), numeroDeClases - 4);
}

TEST_F(LienzoQtPintar, TodasLasClasesJuntasTienenLosPixelesDeSusTrazosEnElFichero) {
    for (const float separacion : {0.0F, 700.0F, 2400.0F}) {
        dibujo = {};
        dibujo.Esquema = "Colores Personalizados";
        dibujo.Hoja.Width = dibujo.Hoja.Height = 14000;
        std::set<Clase> puestas;
        for (const Muestra& muestra : muestrario()) {
            if (!puestas.insert(muestra.clase).second) continue;
            muestra.poner(dibujo);
            Situado& puesto = *situado(dibujo, {muestra.clase, 1});
            puesto.Left = 300 + separacion * static_cast<float>(puestas.size() % 5);
            puesto.Top = 300 + separacion * static_cast<float>(puestas.size() / 5);
        }
        dibujo.Pared.modelo().LineColor = rojo;
        ponMuro(1500, 9200, 21, 9000);
        ponAberturas();
        ponTexto("Salón");
        for (std::size_t i = 0; i < numeroDeClases; ++i)
            conColeccion(dibujo, static_cast<Clase>(i),
                         [](const auto& coleccion) { EXPECT_EQ(coleccion.contador, 2); });
        esperarTrazos(exportado().convertToFormat(QImage::Format_RGB32), 5000);
    }
}

TEST_F(LienzoQtPintar, LasRayasDeUnaPuertaDejanSusHuecos) {
    Segmento linea{600, 600, 600, 2700, true};
    for (Segmento& oculta : dibujo.Puerta.crear(1).lineas)
        oculta = {-900, -900, -900, -900, true};
    dibujo.Puerta.en(1)->lineas[7] = linea;
    dibujo.Puerta.contador = 2;
    pintar();
    // Three dashes of a seventh of its length, not scaled; the fourth reaches to its end.
    std::string columna;
    const int x = static_cast<int>(std::lround(600 * EscalaSalida / twipsPorPixel));
    for (int y = 40; y <= 210; ++y)
        columna += esTinta(lienzo.HojaSalida(), x, y) ? 'x' : '.';
    const std::string raya(21, 'x');
    const std::string hueco(19, '.');
    EXPECT_EQ(columna, std::string(5, '.') + raya + hueco + raya + hueco + raya + hueco +
                           std::string(40, 'x') + std::string(6, '.'));
}

TEST_F(LienzoQtPintar, CadaCurvaTieneSusPixeles) {
    constexpr double pi = std::numbers::pi;
    const std::vector<std::optional<Arco>> arcos{std::nullopt, Arco{0, pi / 2}, Arco{5 * pi / 3, pi / 3},
                                                 Arco{1, 1}, Arco{pi, 1.9 * pi}};
    for (const double radio : {0.0, 1.0, 20.0, 45.0, 100.0, 301.7, 777.7})
        for (const double aspecto : {0.05, 0.4, 1.0, 2.3})
            for (const double fraccion : {0.0, 4.3, 7.4, 11.8})
                for (const auto& arco : arcos) {
                    const Curva curva{900 + fraccion, 900 - fraccion / 2, radio, arco, aspecto};
                    esperarDibujado([&](SuperficieSalida& hoja) { hoja.Circle(curva, rojo); },
                                    std::to_string(radio) + " " + std::to_string(aspecto) + " " +
                                        std::to_string(fraccion) + (arco ? " arco" : ""));
                }
}

TEST_F(LienzoQtPintar, UnaCurvaTieneUnPixelDeGrosor) {
    for (const double radio : {100.0, 301.7, 777.7})
        for (const double fraccion : {0.0, 4.3, 7.4, 11.8}) {
            lienzo.pintarHoja({120, 120}, [&](SuperficieSalida& hoja) {
                hoja.Circle({900 + fraccion, 900 - fraccion / 2, radio}, negro);
            });
            int tinta = 0;
            for (int y = 0; y < 120; ++y)
                for (int x = 0; x < 120; ++x)
                    tinta += esTinta(lienzo.HojaSalida(), x, y) ? 1 : 0;
            // A pixel for each column or row of its eight octants, and one at each of their joints.
            EXPECT_NEAR(tinta, 8 * std::numbers::sqrt2 / 2 * radio / twipsPorPixel, 8) << radio;
        }
}

TEST_F(LienzoQtPintar, LoRellenoLoEstaHastaSuContorno) {
    for (const double fraccion : {0.0, 4.3, 7.4, 11.8})
        for (const double medida : {0.0, 10.0, 31.0, 100.0, 307.3, 777.7}) {
            esperarDibujado(
                [&](SuperficieSalida& hoja) {
                    hoja.FillStyle(Relleno::solido);
                    hoja.FillColor(azulOscuro);
                    hoja.Caja(300 + fraccion, 300, 300 + medida, 400 + fraccion + medida, rojo);
                    hoja.Circle({900 + fraccion, 900 - fraccion, medida}, rojo);
                    hoja.Circle({900, 900 + fraccion, medida / 2, {}, 0.5}, negro);
                    hoja.FillStyle(Relleno::transparente);
                    hoja.Caja(700 + fraccion, 700, 700 + medida, 700 - medida / 2, negro);
                },
                std::to_string(fraccion) + " " + std::to_string(medida));
        }
}

TEST_F(LienzoQtPintar, LasLetrasLlenanSuCajaYNoSeSalenDeElla) {
    for (const float puntos : {6.0F, 10.0F, 24.0F}) {
        const char* escrito = "Salón jg 24,5 m²";
        ponTexto(escrito, puntos);
        pintar();
        const auto surtido = static_cast<float>(std::round(puntos * EscalaSalida * 100) / 100);
        const QFontMetrics letra(sinSuavizar(fuenteTexto(surtido, 1 / twipsPorPixel)));
        const int esquina = static_cast<int>(std::lround(3000 * EscalaSalida / twipsPorPixel));
        const QRect caja(esquina, esquina, letra.horizontalAdvance(escrito), letra.height());
        const QRect tinta = tintaDe(lienzo.HojaSalida());
        EXPECT_TRUE(caja.contains(tinta)) << puntos;
        const QRect justa =
            letra.tightBoundingRect(escrito).translated(caja.left(), caja.top() + letra.ascent());
        for (const int diferencia : {tinta.left() - justa.left(), tinta.top() - justa.top(),
                                     tinta.right() - justa.right(), tinta.bottom() - justa.bottom()})
            EXPECT_LE(std::abs(diferencia), 1) << puntos;
    }
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

namespace {

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

TEST(LienzoQtMemoria, LaHojaSeCortaALoQueCabeConSusCopias) {
    // Four of it, and 16 MB more for each: one of 4000 by 2000 takes 30.5 MB.
    for (const auto& [memoria, tamano] : {std::pair{187 * mega, TamanoSalida{4000, 2000}},
                                          {186 * mega, TamanoSalida{2000, 2000}},
                                          {100 * mega, TamanoSalida{2000, 1000}},
                                          {65 * mega, TamanoSalida{250, 250}},
                                          {64 * mega, TamanoSalida{}}}) {
        const auto lienzo = lienzoCon(memoria);
        EXPECT_EQ(lienzo->pintarHoja({4000, 2000}, pintarNegro), tamano) << memoria;
        EXPECT_EQ(lienzo->HojaSalida().size(), QSize(tamano.ancho, tamano.alto));
        if (tamano.ancho > 0) {
            EXPECT_TRUE(esTinta(lienzo->HojaSalida(), tamano.ancho - 1, tamano.alto - 1));
        }
    }
}

TEST(LienzoQtMemoria, ElRecorteTambien) {
    const auto lienzo = lienzoCon(100 * mega);
    EXPECT_EQ(lienzo->pintarHoja({700, 700}, pintarNegro), (TamanoSalida{700, 700}));
    lienzo->recortar({0, 0, 8000, 500});
    EXPECT_EQ(lienzo->RecorteSalida().size(), QSize(8000, 500));
    lienzo->recortar({0, 0, 8000, 6000});
    EXPECT_EQ(lienzo->RecorteSalida().size(), QSize(2000, 1500));
    EXPECT_TRUE(esTinta(lienzo->RecorteSalida(), 699, 699));
    EXPECT_FALSE(esTinta(lienzo->RecorteSalida(), 700, 700));
}

TEST(LienzoQtMemoria, SinNadaCadaFinSigueSuCaminoConLoVacio) {
    const CarpetaTemporal carpeta;
    const auto lienzo = lienzoCon(0);
    EXPECT_EQ(lienzo->pintarHoja({700, 700}, pintarNegro), TamanoSalida());
    lienzo->recortar({0, 0, 100, 100});
    EXPECT_TRUE(lienzo->RecorteSalida().isNull());
    lienzo->ponerEnPortapapeles();
    EXPECT_FALSE(QGuiApplication::clipboard()->mimeData()->hasImage());
    lienzo->guardar(carpeta / "nada.bmp", Profundidad::color);
    EXPECT_EQ(std::filesystem::file_size(carpeta / "nada.bmp"), 54U);
}
