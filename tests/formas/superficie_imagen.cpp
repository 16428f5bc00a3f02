#include "ui/superficie_imagen.h"

#include "apoyo/muestrario.h"
#include "drawing/sesion.h"
#include "formas/apoyo_formas.h"
#include "furnishing/dibujar_elemento.h"
#include "furnishing/recuadro.h"
#include "stairs_symbols/catalogo.h"
#include "surface/escritor_svg.h"
#include "ui/pintura_hoja.h"
#include "walls/pared.h"

#include <QImage>
#include <QSvgRenderer>
#include <cmath>
#include <numbers>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

constexpr double pi = std::numbers::pi;

QImage papel(int ancho = 300, int alto = 300) {
    QImage imagen(ancho, alto, QImage::Format_RGB32);
    imagen.fill(Qt::white);
    return imagen;
}

template <class Dibujar>
QImage pintado(Dibujar dibujar, double escala = 1, QPointF origen = {}, QSize tamano = {300, 300}) {
    QImage imagen = papel(tamano.width(), tamano.height());
    SuperficieImagen superficie(imagen, escala, SuperficieImagen::Letras::suaves, origen);
    dibujar(superficie);
    return imagen;
}

bool tinta(const QImage& imagen, int x, int y) {
    return imagen.valid(x, y) && imagen.pixelColor(x, y) != QColor(Qt::white);
}

/// Ink within a pixel of the place.
bool tintaCerca(const QImage& imagen, double x, double y) {
    for (int dx = -1; dx <= 1; ++dx)
        for (int dy = -1; dy <= 1; ++dy)
            if (tinta(imagen, static_cast<int>(std::lround(x)) + dx, static_cast<int>(std::lround(y)) + dy))
                return true;
    return false;
}

bool enArco(const Arco& arco, double angulo, double holgura) {
    const double abertura = std::fmod(arco.fin - arco.inicio + 2 * pi, 2 * pi);
    const double desde = std::fmod(angulo - arco.inicio + 4 * pi, 2 * pi);
    return desde >= -holgura && desde <= abertura + holgura;
}

/// Goes along every stroke that it is given and marks where ink has to be.
class Sonda : public SuperficieSalida {
  public:
    Sonda(QSize tamano, double escala, QPointF origen)
        : marca(tamano, QImage::Format_RGB32), escala_(escala), origen_(origen) {
        marca.fill(Qt::white);
    }
    void FillStyle(Relleno) override {}
    void FillColor(Color) override {}

    std::vector<QPointF> puntos;
    QImage marca;  ///< the strokes, two pixels fat on either side

  protected:
    void trazarLinea(double x1, double y1, double x2, double y2, Color) override {
        const int pasos = 1 + static_cast<int>(std::hypot(x2 - x1, y2 - y1) * escala_);
        for (int i = 0; i <= pasos; ++i)
            punto(x1 + (x2 - x1) * i / pasos, y1 + (y2 - y1) * i / pasos);
    }
    void trazarCaja(double x1, double y1, double x2, double y2, Color color) override {
        trazarLinea(x1, y1, x2, y1, color);
        trazarLinea(x2, y1, x2, y2, color);
        trazarLinea(x2, y2, x1, y2, color);
        trazarLinea(x1, y2, x1, y1, color);
    }
    void trazarCurva(const Curva& curva, Color) override {
        const Arco arco = curva.arco.value_or(Arco{});
        double abertura = arco.fin - arco.inicio;
        if (abertura <= 0) abertura += 2 * pi;
        const int pasos = 8 + static_cast<int>(abertura * curva.radio * escala_);
        for (int i = 0; i <= pasos; ++i) {
            const double angulo = arco.inicio + abertura * i / pasos;
            punto(curva.x + curva.ejeX() * std::cos(angulo), curva.y - curva.ejeY() * std::sin(angulo));
        }
    }

  private:
    void punto(double x, double y) {
        const QPointF lugar = origen_ + QPointF(x, y) * escala_;
        puntos.push_back(lugar);
        const QPoint centro = lugar.toPoint();
        QPainter(&marca).fillRect(QRect(centro - QPoint(2, 2), QSize(5, 5)), Qt::black);
    }

    double escala_;
    QPointF origen_;
};

}  // namespace

TEST(SuperficieImagen, UnArcoVaDeSuPrincipioASuFinContraElReloj) {
    for (const double aspecto : {1.0, 0.6, 1.5})
        for (int inicio = 0; inicio < 360; inicio += 30)
            for (int fin = 0; fin < 360; fin += 45) {
                if (inicio == fin) continue;
                const Arco arco{inicio * pi / 180, fin * pi / 180};
                const Curva curva{150, 140, 100, arco, aspecto};
                const QImage imagen = pintado([&](SuperficieSalida& hoja) { hoja.Circle(curva, negro); });
                EXPECT_FALSE(tintaCerca(imagen, 150, 140));
                for (int grados = 0; grados < 360; grados += 5) {
                    const double angulo = grados * pi / 180;
                    const double margen = 5 * pi / 180;
                    const bool dentro = enArco(arco, angulo, 1e-9);
                    const bool junto = enArco({arco.inicio - margen, arco.fin + margen}, angulo, 0);
                    if (!dentro && junto) continue;
                    EXPECT_EQ(tintaCerca(imagen, 150 + curva.ejeX() * std::cos(angulo),
                                         140 - curva.ejeY() * std::sin(angulo)),
                              dentro)
                        << aspecto << " " << inicio << " " << fin << " " << grados;
                }
            }
}

TEST(SuperficieImagen, ExtremosIgualesSonLaVueltaEnteraSinRelleno) {
    const QImage imagen = pintado([](SuperficieSalida& hoja) {
        hoja.FillStyle(Relleno::solido);
        hoja.FillColor(rojo);
        hoja.Circle({150, 150, 80, Arco{1, 1}}, negro);
        hoja.Circle({150, 150, 60, Arco{0, pi}}, negro);
    });
    for (int grados = 0; grados < 360; grados += 5)
        EXPECT_TRUE(tintaCerca(imagen, 150 + 80 * std::cos(grados * pi / 180),
                               150 - 80 * std::sin(grados * pi / 180)));
    EXPECT_EQ(imagen.pixelColor(150, 120), QColor(Qt::white));
}

TEST(SuperficieImagen, CajasYElipsesSeRellenanComoDiceElEstado) {
    const QImage imagen = pintado(
        [](SuperficieSalida& hoja) {
            hoja.Caja(10, 10, 50, 50, negro);
            hoja.FillStyle(Relleno::solido);
            hoja.FillColor(rojo);
            hoja.Caja(100, 50, 60, 10, negro);
            hoja.Circle({30, 100, 20, {}, 0.5}, negro);
            hoja.FillStyle(Relleno::transparente);
            hoja.Circle({100, 100, 20, {}, 2}, negro);
        },
        2);
    const QColor blanca(Qt::white);
    const QColor tintaNegra(Qt::black);
    const QColor roja(255, 0, 0);
    EXPECT_EQ(imagen.pixelColor(60, 60), blanca);
    EXPECT_EQ(imagen.pixelColor(160, 60), roja);
    for (const int x : {20, 100, 120, 200})
        EXPECT_EQ(imagen.pixelColor(x, 60), tintaNegra) << x;
    for (const int y : {20, 100})
        EXPECT_EQ(imagen.pixelColor(60, y), tintaNegra) << y;
    EXPECT_EQ(imagen.pixelColor(60, 200), roja);
    EXPECT_EQ(imagen.pixelColor(60, 225), blanca);
    EXPECT_EQ(imagen.pixelColor(200, 200), blanca);
}

TEST(SuperficieImagen, NadaSeSuaviza) {
    const QImage imagen = pintado([](SuperficieSalida& hoja) {
        hoja.Line(3, 5, 280, 130, negro);
        hoja.Circle({150, 150, 90.3, Arco{0.2, 4}}, negro);
        hoja.Circle({150, 150, 40.7}, negro);
    });
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x) {
            const QColor color = imagen.pixelColor(x, y);
            ASSERT_TRUE(color == QColor(Qt::white) || color == QColor(Qt::black)) << x << " " << y;
        }
}

TEST(SuperficieImagen, LoDesmedidoNoSePintaNiCuelga) {
    const QImage imagen = pintado([](SuperficieSalida& hoja) {
        hoja.Circle({0, 0, 1e12}, negro);
        hoja.Circle({1e12, 0, 5}, negro);
        hoja.Caja(-1e12, -1e12, 1e12, 1e12, negro);
        hoja.CurrentX(1e12);
        hoja.Print("lejos");
    });
    EXPECT_EQ(imagen, papel());
}

TEST(SuperficieImagen, UnTextoEmpiezaEnSuEsquinaYTieneSuCuerpo) {
    const QImage imagen = pintado(
        [](SuperficieSalida& hoja) {
            hoja.FontSize(20);
            hoja.CurrentX(1000);
            hoja.CurrentY(500);
            hoja.ForeColor(negro);
            hoja.Print("HHH");
        },
        0.1);
    int izquierda = 300;
    int arriba = 300;
    int abajo = 0;
    for (int y = 0; y < 300; ++y)
        for (int x = 0; x < 300; ++x)
            if (tinta(imagen, x, y)) {
                izquierda = std::min(izquierda, x);
                arriba = std::min(arriba, y);
                abajo = std::max(abajo, y);
            }
    EXPECT_GE(izquierda, 99);
    EXPECT_LE(izquierda, 110);
    EXPECT_GE(arriba, 50);
    EXPECT_LE(abajo, 50 + 48);
    EXPECT_GT(abajo - arriba, 20);  // capitals of a type 40 pixels high
}

namespace {

/// A sample without fills on a picture of its own size.
struct Encuadre {
    explicit Encuadre(const Muestra& muestra_)
        : muestra(muestra_),
          dibujo(dibujoDe(muestra_, 1)),
          caja(extensionDe(dibujo, muestra_.clase, 1).value()),
          escala(muestra_.clase == Clase::Electrico ? 0.8 : 0.15),
          origen(QPointF(10.3, 10.6) - QPointF(caja.Left, caja.Top) * escala),
          tamano(static_cast<int>(caja.Width * escala) + 24, static_cast<int>(caja.Height * escala) + 24) {}

    void dibujar(SuperficieSalida& hoja) const {
        DibujarElemento(salidaDe(dibujo, hoja, 1), dibujo, muestra.clase, 1);
    }

    QImage enPintor() const {
        return pintado([this](SuperficieSalida& hoja) { dibujar(hoja); }, escala, origen, tamano);
    }

    QImage enSvg() const {
        EscritorSvg escritor(
            {-origen.x() / escala, -origen.y() / escala, tamano.width() / escala, tamano.height() / escala},
            1 / escala, tamano.width());
        dibujar(escritor);
        QSvgRenderer lector(QByteArray::fromStdString(escritor.documento()));
        QImage imagen = papel(tamano.width(), tamano.height());
        QPainter pintor(&imagen);
        lector.render(&pintor, QRectF(imagen.rect()));
        return imagen;
    }

    const Muestra& muestra;
    Dibujo dibujo;
    Recuadro caja;
    double escala;
    QPointF origen;
    QSize tamano;
};

/// Ink on every stroke, and none beside them.
void esperarTrazos(const Encuadre& encuadre, const QImage& imagen) {
    Sonda sonda(encuadre.tamano, encuadre.escala, encuadre.origen);
    encuadre.dibujar(sonda);
    const auto nombre = std::string(datos(encuadre.muestra.clase).nombre) + " " + encuadre.muestra.titulo;
    for (const QPointF& punto : sonda.puntos)
        ASSERT_TRUE(tintaCerca(imagen, punto.x(), punto.y())) << nombre;
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x)
            ASSERT_TRUE(!tinta(imagen, x, y) || tinta(sonda.marca, x, y)) << nombre << " " << x << " " << y;
}

}  // namespace

TEST(SuperficieImagen, LasFigurasHuecasPintanSusTrazosYNadaMasComoEnElSvg) {
    for (const Muestra& muestra : muestrario()) {
        const bool sanitario = muestra.clase >= Clase::MblInodoro && muestra.clase <= Clase::MblUrinario;
        if (!sanitario && muestra.clase != Clase::Escalera && muestra.clase != Clase::Electrico) continue;
        const Encuadre encuadre(muestra);
        esperarTrazos(encuadre, encuadre.enPintor());
        esperarTrazos(encuadre, encuadre.enSvg());
    }
}

namespace {

constexpr double escalaHoja = 1.0 / 15;
const LugarHoja enHoja{{}, escalaHoja};

QImage hojaPintada(Sesion& sesion) {
    anunciarTodo(sesion.dibujo);
    sesion.mapa.ponerAlDia(sesion.dibujo);
    QImage imagen = papel();
    pintarQuieto(imagen, enHoja, sesion, imagen.rect());
    return imagen;
}

template <class T>
T& poner(Coleccion<T>& coleccion, int indice, double x, double y, Color fondo) {
    T& elemento = coleccion.crear(indice);
    elemento.Left = static_cast<float>(x * 15);
    elemento.Top = static_cast<float>(y * 15);
    elemento.BackColor = fondo;
    elemento.Visible = true;
    return elemento;
}

}  // namespace

TEST(PinturaHoja, LasClasesSePintanEnSuOrdenYLasParedesEncima) {
    PlataformaMuda plataforma;
    Sesion sesion(plataforma, {});
    Dibujo& dibujo = sesion.dibujo;
    poner(dibujo.MblLavadora, 1, 30, 30, verdeAzulado);
    poner(dibujo.MblArmario, 1, 20, 20, rojo);
    Pared& pared = dibujo.Pared.crear(1);
    pared.InicialX = 10 * 15;
    pared.InicialY = 33 * 15;
    DibujaPared(dibujo, 1, false);
    const QImage imagen = hojaPintada(sesion);
    EXPECT_EQ(imagen.pixelColor(25, 25), QColor(255, 0, 0));
    EXPECT_EQ(imagen.pixelColor(32, 31), QColor(0, 192, 192));
    EXPECT_EQ(imagen.pixelColor(32, 33), QColor(Qt::black));
    EXPECT_EQ(imagen.pixelColor(20, 40), QColor(Qt::white));
    // The wall's grip is white on its red neighbour's brush.
    const Pinza& pinza = dibujo.Pared.en(1)->ParedPick;
    const QPoint centro = (QPointF(pinza.Left, pinza.Top) * escalaHoja).toPoint() + QPoint(2, 1);
    EXPECT_NE(imagen.pixelColor(centro), QColor(255, 0, 0));
}

TEST(PinturaHoja, LoTraidoAlFrenteTapaLoDemas) {
    PlataformaMuda plataforma;
    Sesion sesion(plataforma, {});
    Dibujo& dibujo = sesion.dibujo;
    MblArmario& armario = poner(dibujo.MblArmario, 1, 20, 20, rojo);
    poner(dibujo.MblLavadora, 1, 30, 30, verdeAzulado);
    ASSERT_EQ(hojaPintada(sesion).pixelColor(32, 31), QColor(0, 192, 192));
    alFrente(dibujo, armario);
    EXPECT_EQ(hojaPintada(sesion).pixelColor(32, 31), QColor(255, 0, 0));
}

TEST(PinturaHoja, LaEscaleraYElSimboloElegidosSalenEnRojo) {
    PlataformaMuda plataforma;
    Sesion sesion(plataforma, {});
    Dibujo& dibujo = sesion.dibujo;
    Escalera& escalera = dibujo.Escalera.crear(2);
    escalera.Visible = true;
    Electrico& simbolo = dibujo.Electrico.crear(1);
    ponerSimbolo(simbolo, "Cuadro Eléctrico");
    simbolo.Visible = true;
    simbolo.Left = 150 * 15;
    const auto rojos = [&] {
        const QImage imagen = hojaPintada(sesion);
        std::array<int, 2> cuenta{};
        for (int y = 0; y < imagen.height(); ++y)
            for (int x = 0; x < imagen.width(); ++x)
                if (imagen.pixelColor(x, y) == QColor(255, 0, 0)) ++cuenta[x >= 150 ? 1 : 0];
        return cuenta;
    };
    EXPECT_EQ(rojos(), (std::array<int, 2>{}));
    escalera.Resaltado = true;
    EXPECT_GT(rojos()[0], 0);
    EXPECT_EQ(rojos()[1], 0);
    simbolo.Resaltado = true;
    EXPECT_GT(rojos()[1], 0);
}

TEST(PinturaHoja, LoQueSeArrastraNoEstaEnLoQuieto) {
    PlataformaMuda plataforma;
    Sesion sesion(plataforma, {});
    poner(sesion.dibujo.MblArmario, 1, 20, 20, rojo);
    sesion.dibujo.ObjetoEnMovimiento = Referencia{Clase::MblArmario, 1};
    QImage imagen = hojaPintada(sesion);
    EXPECT_EQ(imagen.pixelColor(25, 25), QColor(Qt::white));
    pintarEncima(imagen, enHoja, sesion);
    EXPECT_EQ(imagen.pixelColor(25, 25), QColor(255, 0, 0));
}

TEST(PinturaHoja, CadaClaseSaleComoSuDibujo) {
    for (const Muestra& muestra : muestrario()) {
        PlataformaMuda plataforma;
        Sesion sesion(plataforma, {});
        sesion.dibujo = dibujoDe(muestra, 0.5);
        const QImage esperada = pintado(
            [&](SuperficieSalida& hoja) {
                DibujarElemento(salidaDe(sesion.dibujo, hoja, 1), sesion.dibujo, muestra.clase, 1);
            },
            escalaHoja);
        ASSERT_TRUE(hojaPintada(sesion) == esperada) << datos(muestra.clase).nombre << muestra.titulo;
        ASSERT_FALSE(esperada == papel()) << datos(muestra.clase).nombre << muestra.titulo;
    }
}

TEST(PinturaHoja, UnTrozoPintadoDeNuevoNoCambiaNadaEnNingunaDensidad) {
    PlataformaMuda plataforma;
    Sesion sesion(plataforma, {});
    Dibujo& dibujo = sesion.dibujo;
    sesion.cuadricula = {50, 4000, 4000};
    for (int i = 1; i <= 3; ++i) {
        Pared& pared = dibujo.Pared.crear(i);
        pared.InicialX = 130;
        pared.InicialY = 2500.0F + 300.0F * static_cast<float>(i);
        asignar(pared.Angulo, 25.0 * (i - 1));
        pared.Longitud = 4000;
        DibujaPared(dibujo, i, false);
    }
    poner(dibujo.MblMesa, 1, 20, 20, verdeAzulado);
    poner(dibujo.MblAsiento, 1, 60, 50, rojo);
    TextoLibre& texto = dibujo.TextoLibre.crear(1);
    texto.Left = 40 * 15;
    texto.Top = 60 * 15;
    texto.Text = "Salón";
    texto.Visible = true;
    anunciarTodo(dibujo);
    sesion.mapa.ponerAlDia(dibujo);
    for (const double densidad : {1.0, 1.25, 1.5, 2.0}) {
        const LugarHoja lugar{{}, densidad * escalaHoja};
        QImage entera = papel();
        pintarQuieto(entera, lugar, sesion, entera.rect());
        QImage aTrozos = papel();
        for (int y = 0; y < 300; y += 7)
            for (int x = 0; x < 300; x += 13)
                pintarQuieto(aTrozos, lugar, sesion, {x, y, 13, 7});
        EXPECT_TRUE(aTrozos == entera) << densidad;
        // And as a picture of its own, as what is dragged is put together.
        for (int y = 0; y + 40 <= 300; y += 37) {
            const QRect zona(3, y, 290, 40);
            QImage suya = papel(zona.width(), zona.height());
            pintarQuieto(suya, {zona.topLeft(), lugar.escala}, sesion, zona);
            EXPECT_TRUE(suya == entera.copy(zona)) << densidad << " " << y;
        }
    }
}

TEST(PinturaHoja, LejosDeLaEsquinaDeUnaHojaEnormeSePintaLoMismo) {
    const QPoint lejos(100000, 60000);
    const auto pintada = [](QPoint esquina) {
        PlataformaMuda plataforma;
        Sesion sesion(plataforma, {});
        Dibujo& dibujo = sesion.dibujo;
        poner(dibujo.MblMesa, 1, esquina.x() + 20, esquina.y() + 20, verdeAzulado);
        poner(dibujo.MblLavadora, 1, esquina.x() + 90, esquina.y() + 50, rojo);
        TextoLibre& texto = dibujo.TextoLibre.crear(1);
        asignar(texto.Left, (esquina.x() + 40) * 15.0);
        asignar(texto.Top, (esquina.y() + 60) * 15.0);
        texto.Text = "Salón";
        texto.Visible = true;
        Pared& pared = dibujo.Pared.crear(1);
        asignar(pared.InicialX, (esquina.x() + 10) * 15.0);
        asignar(pared.InicialY, (esquina.y() + 150) * 15.0);
        pared.Angulo = 30;
        DibujaPared(dibujo, 1, false);
        sesion.cuadricula = {300, 15.0 * 200000, 15.0 * 200000};
        sesion.RectSel = {{(esquina.x() + 80) * 15.0, (esquina.y() + 40) * 15.0, 900, 600}, true};
        anunciarTodo(dibujo);
        sesion.mapa.ponerAlDia(dibujo);
        QImage imagen = papel();
        pintarQuieto(imagen, {esquina, escalaHoja}, sesion, imagen.rect().translated(esquina));
        pintarEncima(imagen, {esquina, escalaHoja}, sesion);
        return imagen;
    };
    const QImage cerca = pintada({});
    EXPECT_EQ(cerca.pixelColor(92, 52), QColor(255, 0, 0)) << "the machine";
    EXPECT_EQ(cerca.pixelColor(80, 40), QColor(255, 0, 0)) << "the frame";
    EXPECT_TRUE(tinta(cerca, 20, 20)) << "the table";
    EXPECT_EQ(pintada(lejos), cerca);
}

TEST(SuperficieImagen, UnaCajaSinAnchoEsUnTrazo) {
    const QImage imagen =
        pintado([](SuperficieSalida& superficie) { superficie.Caja(50, 20, 50, 80, negro); });
    EXPECT_TRUE(tinta(imagen, 50, 20) && tinta(imagen, 50, 50) && tinta(imagen, 50, 80));
    EXPECT_FALSE(tinta(imagen, 0, 0) || tinta(imagen, 51, 50) || tinta(imagen, 49, 50));
}

TEST(SuperficieImagen, UnaCajaFueraDelPapelNoDejaTinta) {
    for (const double lejos : {400.0, -400.0, 1e6, -1e6, 1e300, -1e300}) {
        const QImage imagen = pintado([&](SuperficieSalida& superficie) {
            superficie.FillStyle(Relleno::solido);
            superficie.Caja(lejos, lejos, lejos + lejos / 10, lejos + 50, negro);
        });
        EXPECT_EQ(imagen, papel()) << lejos;
    }
}

TEST(SuperficieImagen, UnaCajaQueAbarcaElPapelLoLlena) {
    const QImage imagen = pintado([](SuperficieSalida& superficie) {
        superficie.FillStyle(Relleno::solido);
        superficie.FillColor(rojo);
        superficie.Caja(1e9, -1e300, -1e9, 1e7, negro);
    });
    EXPECT_EQ(imagen.pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(imagen.pixelColor(299, 299), QColor(Qt::red));
}
