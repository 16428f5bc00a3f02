#include "ui/electrico_forma.h"

#include "apoyo/idioma.h"
#include "formas/apoyo_formas.h"
#include "formas/ventana_de_prueba.h"
#include "stairs_symbols/catalogo.h"
#include "stairs_symbols/electrico_prop.h"
#include "ui/campo_numero.h"

#include <QColorDialog>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <memory>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

/// A symbol as its button of the palette makes it.
struct Simbolo {
    const char* nombre;
    double RectX, RectY;
    const char* titulo;
    QStringList opciones;
};

const std::vector<Simbolo>& simbolos() {
    static const std::vector<Simbolo> todos{
        {"Punto de Luz", 250, 250, "Propiedades Punto de Luz", {}},
        {"Interruptor", 200, 200, "Propiedades Llave Interruptor", {"Interruptor", "Conmutador"}},
        {"Enchufe",
         160,
         180,
         "Propiedades Toma de Corriente",
         {"Enchufe", "Enchufe de Fuerza", "Enchufe Trifásico"}},
        {"Pulsador", 150, 150, "Propiedades Pulsador", {}},
        {"Señal TV", 200, 200, "Propiedades Toma de Señal", {"Señal TV", "Señal Teléfono"}},
        {"Cuadro Eléctrico", 325, 165, "Propiedades Cuadro Eléctrico", {}}};
    return todos;
}

struct PruebaElectricoForma : testing::Test {
    Idioma idioma{Idioma::espanol};
    Dibujo dibujo;
    std::unique_ptr<ElectricoProp> logica;
    std::unique_ptr<ElectricoForma> forma;

    Electrico& poner(const Simbolo& simbolo) {
        Electrico& uno = dibujo.Electrico.crear(1);
        ponerSimbolo(uno, simbolo.nombre);
        uno.RectX = simbolo.RectX;
        uno.RectY = simbolo.RectY;
        return uno;
    }
    Electrico& electrico() { return *dibujo.Electrico.en(1); }

    void abrir() {
        logica = std::make_unique<ElectricoProp>(dibujo, 1);
        forma = std::make_unique<ElectricoForma>(*logica);
        mostrarActiva(*forma);
    }
    void abrir(const Simbolo& simbolo) {
        poner(simbolo);
        abrir();
    }

    QWidget& de(const QString& nombre) const { return control(*forma, nombre); }
    bool hay(const QString& nombre) const { return forma->findChild<QWidget*>(nombre) != nullptr; }
    QRadioButton& opt(int i) const { return control<QRadioButton>(*forma, QString("opt_%1").arg(i)); }
    QImage marco() const { return de("Marco").grab().toImage(); }
    const Electrico& vista() const { return logica->preview(); }
};

QRect tinta(const QImage& imagen) {
    QRect caja;
    for (int y = 2; y < imagen.height() - 2; ++y)
        for (int x = 2; x < imagen.width() - 2; ++x)
            if (imagen.pixelColor(x, y) != QColor(Qt::white)) caja |= QRect(x, y, 1, 1);
    return caja;
}

}  // namespace

using ElectricoFormaAbrir = PruebaElectricoForma;
using ElectricoFormaCambios = PruebaElectricoForma;
using ElectricoFormaCerrar = PruebaElectricoForma;
using ElectricoEnVentana = VentanaDePrueba;

TEST_F(ElectricoFormaAbrir, CadaSimboloTieneSuTituloYSusOpciones) {
    for (const Simbolo& simbolo : simbolos()) {
        abrir(simbolo);
        EXPECT_EQ(forma->objectName(), "ElectricoProp");
        EXPECT_EQ(forma->windowTitle(), simbolo.titulo);
        EXPECT_TRUE(forma->isModal());
        for (int i = 0; i < simbolo.opciones.size(); ++i) {
            EXPECT_EQ(opt(i).text(), simbolo.opciones[i]);
            EXPECT_EQ(opt(i).isChecked(), simbolo.opciones[i] == simbolo.nombre);
        }
        EXPECT_FALSE(hay(QString("opt_%1").arg(simbolo.opciones.size())));
        esperarAccesible(*forma);
    }
}

TEST_F(ElectricoFormaAbrir, TieneSusRotulosYMuestraElAnguloYElColor) {
    for (const auto& [nombre, angulo] : {std::pair{Idioma::espanol, "22,5"}, {Idioma::ingles, "22.5"}}) {
        const Idioma puesto(nombre);
        Electrico& uno = poner(simbolos()[2]);
        uno.Angle = 22.5;
        uno.LineColor = rojo;
        abrir();
        EXPECT_EQ(forma->findChild<QGroupBox*>()->title().remove('&'), "Angulo");
        EXPECT_EQ(rotulo<QPushButton>(*forma, "Command1"), "Aplicar");
        EXPECT_EQ(rotulo<QPushButton>(*forma, "Command2"), "Cancelar");
        EXPECT_EQ(texto(*forma, "TxtAngulo"), angulo);
        EXPECT_EQ(color(de("txtLineColor"), QPalette::Window), QColor(Qt::red));
        for (int i = 1; i <= 24; ++i) {
            EXPECT_EQ(rotulo<QLabel>(*forma, QString("EtiquetaAngulo_%1").arg(i)),
                      QString("%1º").arg(15 * (i - 1)));
            EXPECT_TRUE(hay(QString("LineaAngulo_%1").arg(i)));
        }
    }
}

TEST_F(ElectricoFormaAbrir, ElSimboloSeVeEnteroACualquierAngulo) {
    for (const double zoom : {0.5, 1.5})
        for (const Simbolo& simbolo : simbolos()) {
            dibujo.FactorZoomActual = zoom;
            abrir(simbolo);
            for (int i = 1; i <= 24; i += 3) {
                pulsar(*forma, QString("EtiquetaAngulo_%1").arg(i));
                const QImage imagen = marco();
                const QRect trazos = tinta(imagen);
                EXPECT_FALSE(trazos.isEmpty());
                EXPECT_TRUE(imagen.rect().adjusted(8, 8, -8, -8).contains(trazos)) << simbolo.nombre << i;
            }
        }
}

TEST_F(ElectricoFormaAbrir, ElTabuladorLoRecorreEnOrden) {
    poner(simbolos()[2]).ObjectType = "Enchufe de Fuerza";
    abrir();
    EXPECT_EQ(control<QLineEdit>(*forma, "TxtAngulo").selectedText(), "0");
    EXPECT_EQ(recorridoTab(*forma), QStringList({"TxtAngulo", "cmd90Plus_0", "cmd90Plus_1", "Dial",
                                                 "Command1", "Command2", "opt_1", "cmdLineColor"}));
}

TEST_F(ElectricoFormaCambios, UnaOpcionCambiaElSimboloYSeVe) {
    for (const Simbolo& simbolo : simbolos()) {
        abrir(simbolo);
        for (int i = 1; i < simbolo.opciones.size(); ++i) {
            const QImage antes = marco();
            opt(i).click();
            EXPECT_EQ(vista().ObjectType, simbolo.opciones[i].toStdString());
            EXPECT_EQ(vista().Guion, DrawObjects(simbolo.opciones[i].toStdString()));
            EXPECT_NE(marco(), antes);
        }
        EXPECT_EQ(electrico().ObjectType, simbolo.nombre) << "nothing is written before it is applied";
    }
}

TEST_F(ElectricoFormaCambios, LasVeinticuatroEtiquetasYLosDosBotonesLoGiran) {
    abrir(simbolos()[5]);
    QImage antes = marco();
    for (int i = 2; i <= 24; ++i) {
        pulsar(*forma, QString("EtiquetaAngulo_%1").arg(i));
        EXPECT_EQ(texto(*forma, "TxtAngulo"), QString::number(15 * (i - 1)));
        EXPECT_EQ(vista().Angle, 15 * (i - 1));
        const QColor tinta = color(de(QString("EtiquetaAngulo_%1").arg(i)), QPalette::WindowText);
        EXPECT_EQ(tinta, QColor(Qt::red));
        const QImage despues = marco();
        EXPECT_NE(despues, antes) << i;
        antes = despues;
    }
    pulsar(*forma, "cmd90Plus_1");
    EXPECT_EQ(texto(*forma, "TxtAngulo"), "75");
    pulsar(*forma, "cmd90Plus_0");
    EXPECT_EQ(texto(*forma, "TxtAngulo"), "345");
    EXPECT_EQ(vista().Angle, 345);
}

TEST_F(ElectricoFormaCambios, ElAnguloTecleadoLlevaComaYNoPasaDeTrescientosSesenta) {
    abrir(simbolos()[0]);
    QSignalSpy pitidos(&control<CampoNumero>(*forma, "TxtAngulo"), &CampoNumero::rechazada);
    teclear(*forma, "TxtAngulo", "-22.5");
    EXPECT_EQ(texto(*forma, "TxtAngulo"), "22,5");
    EXPECT_EQ(pitidos.count(), 1);
    EXPECT_EQ(vista().Angle, 22.5);
    teclear(*forma, "TxtAngulo", "999");
    EXPECT_EQ(texto(*forma, "TxtAngulo"), "360");
    EXPECT_EQ(vista().Angle, 360);
    de("Dial").setFocus();
    pulsar(*forma, "TxtAngulo");
    EXPECT_EQ(control<QLineEdit>(*forma, "TxtAngulo").selectedText(), "360");
}

TEST_F(ElectricoFormaCambios, ElColorElegidoLlegaALaVistaPrevia) {
    abrir(simbolos()[0]);
    QTimer::singleShot(0, forma.get(), [] {
        auto* dialogo = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialogo);
        dialogo->setCurrentColor(QColor(0x12, 0x34, 0x56));
        dialogo->accept();
    });
    pulsar(*forma, "cmdLineColor");
    EXPECT_EQ(color(de("txtLineColor"), QPalette::Window), QColor(0x12, 0x34, 0x56));
    EXPECT_EQ(vista().LineColor, 0x563412);
}

TEST_F(ElectricoFormaCerrar, LoElegidoLlegaAlSimbolo) {
    abrir(simbolos()[4]);
    opt(1).click();
    pulsar(*forma, "EtiquetaAngulo_7");
    pulsar(*forma, "Command1");
    EXPECT_FALSE(forma->isVisible());
    EXPECT_EQ(electrico().ObjectType, "Señal Teléfono");
    EXPECT_EQ(electrico().Guion, DrawObjects("Señal Teléfono"));
    EXPECT_EQ(electrico().Angle, 90);
}

TEST_F(ElectricoFormaCerrar, EnterAplica) {
    abrir(simbolos()[0]);
    teclear(*forma, "TxtAngulo", "45");
    QTest::keyClick(&de("TxtAngulo"), Qt::Key_Return);
    EXPECT_FALSE(forma->isVisible());
    EXPECT_EQ(electrico().Angle, 45);
}

TEST_F(ElectricoFormaCerrar, CancelarYEscapeNoCambianNada) {
    for (const bool escape : {false, true}) {
        abrir(simbolos()[1]);
        opt(1).click();
        teclear(*forma, "TxtAngulo", "45");
        if (escape)
            QTest::keyClick(forma.get(), Qt::Key_Escape);
        else
            pulsar(*forma, "Command2");
        EXPECT_FALSE(forma->isVisible());
        EXPECT_EQ(electrico().ObjectType, "Interruptor");
        EXPECT_EQ(electrico().Angle, 0);
    }
}

TEST_F(ElectricoEnVentana, LaPlataformaAbreSuDialogo) {
    ponerSimbolo(dibujo().Electrico.crear(1), "Pulsador");
    ElectricoProp logica(dibujo(), 1);
    cuandoSeAbra<ElectricoForma>([](ElectricoForma& forma) {
        teclear(forma, "TxtAngulo", "60");
        apoyo::pulsar(forma, "Command1");
    });
    plataforma.mostrar(logica);
    EXPECT_EQ(dibujo().Electrico.en(1)->Angle, 60);
}
