#include "apoyo/muestrario.h"
#include "formas/apoyo_pdf.h"
#include "formas/prueba_lienzo.h"
#include "formas/trazador.h"
#include "furnishing/dibujar_elemento.h"
#include "output/escala.h"
#include "ui/letra.h"
#include "ui/lienzo_qt.h"

#include <QFontMetrics>
#include <cmath>
#include <numbers>
#include <set>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

struct LienzoQtPintar : PruebaLienzo {
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
