#include "ui/mueble_forma.h"

#include "apoyo/idioma.h"
#include "formas/apoyo_formas.h"
#include "formas/ventana_de_prueba.h"
#include "furnishing/mueble_prop.h"
#include "ui/selector_color.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QToolButton>
#include <memory>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

constexpr Color verde = 0x00FF00;

struct Fila {
    Clase clase;
    const char* nombre;
    const char* titulo;
    QStringList controles;  ///< apart from those that every dialog has
    bool relleno;
};

QStringList indices(const QString& grupo, int desde, int hasta) {
    QStringList nombres;
    for (int i = desde; i <= hasta; ++i)
        nombres += QString("%1_%2").arg(grupo).arg(i);
    return nombres;
}

std::vector<Fila> filas() {
    const QStringList cuatro = indices("Dist", 0, 3);
    const QStringList ocho = indices("Dist", 0, 7);
    return {
        {Clase::MblSilla, "SillaProp", "Propiedades de silla", QStringList("TxtSilla") + cuatro, true},
        {Clase::MblCama90, "Cama90Prop", "Propiedades de cama", ocho, true},
        {Clase::MblCama130, "Cama130Prop", "Propiedades de Cama", cuatro, true},
        {Clase::MblArmario, "ArmarioProp", "Propiedades Armario", {"TxtDimX", "TxtDimY"}, true},
        {Clase::MblAsiento, "AsientoProp", "Propiedades de asientos",
         QStringList{"TxtAncho", "TxtFondo"} + indices("Option1", 1, 4) + cuatro, true},
        {Clase::MblInodoro, "InodoroProp", "Propiedades de Inodoro", cuatro, false},
        {Clase::MblLavabo, "LavaboProp", "Propiedades de Lavabo", cuatro, false},
        {Clase::MblBidet, "BidetProp", "Propiedades Bidet", cuatro, false},
        {Clase::MblBañera, "BañeraProp", "Propiedades de Bañera", indices("Longitud", 0, 5) + cuatro, false},
        {Clase::MblDucha, "DuchaProp", "Propiedades Ducha", indices("Dist", 0, 2), false},
        {Clase::MblUrinario, "UrinarioProp", "Propiedades de Urinario", cuatro, false},
        {Clase::MblCocina, "CocinaProp", "Propiedades Cocina", indices("Dist", 0, 1), true},
        {Clase::MblNevera, "NeveraProp", "Propiedades Nevera", ocho, true},
        {Clase::MblFregadero, "FregaderoProp", "Propiedades de Fregadero",
         indices("OptNumSenos", 1, 3) + QStringList("ChkEscurridor") + ocho, true},
        {Clase::MblLavadora, "LavadoraProp", "Propiedades Lavadora", indices("Dist", 0, 1), true},
        {Clase::MblLavadero, "LavaderoProp", "Propiedades Lavadero", cuatro, true},
        {Clase::MblVertedero, "VertederoProp", "Propiedades Vertedero", cuatro, true},
    };
}

struct PruebaMuebleForma : testing::Test {
    Idioma idioma{Idioma::espanol};
    Dibujo dibujo;
    std::unique_ptr<MuebleProp> logica;
    std::unique_ptr<MuebleForma> forma;

    void abrir(Clase clase) {
        conColeccion(dibujo, clase, [](auto& coleccion) {
            if (!coleccion.existe(1)) coleccion.crear(1);
        });
        forma.reset();
        logica = std::make_unique<MuebleProp>(dibujo, clase, 1);
        forma = std::make_unique<MuebleForma>(*logica);
        mostrarActiva(*forma);
    }
    bool puesto(const QString& nombre) { return control<QAbstractButton>(*forma, nombre).isChecked(); }
    void pulsa(const QString& nombre) { pulsar(*forma, nombre); }
    /// Radios and check boxes are hit on their indicator.
    void elige(const QString& nombre) { control<QAbstractButton>(*forma, nombre).click(); }
    QImage imagen(const QString& nombre) {
        return control<QAbstractButton>(*forma, nombre).icon().pixmap(48, 48).toImage();
    }
    QStringList pulsados() {
        QStringList nombres;
        for (const auto* boton : forma->findChildren<QAbstractButton*>())
            if (boton->objectName().startsWith("Dist_") && boton->isChecked()) nombres += boton->objectName();
        return nombres;
    }
};

}  // namespace

using MuebleFormaAbrir = PruebaMuebleForma;
using MuebleFormaPulsar = PruebaMuebleForma;
using MuebleFormaTeclas = PruebaMuebleForma;
using MuebleFormaColores = PruebaMuebleForma;
using MuebleFormaEnVentana = VentanaDePrueba;

TEST_F(MuebleFormaAbrir, CadaDialogoTieneSuNombreSuTituloYSusControles) {
    for (const Fila& fila : filas()) {
        abrir(fila.clase);
        EXPECT_EQ(forma->objectName(), fila.nombre);
        EXPECT_EQ(forma->windowTitle(), fila.titulo);
        EXPECT_TRUE(forma->isModal());
        for (const QString& nombre : fila.controles)
            EXPECT_TRUE(control(*forma, nombre).isVisible()) << fila.nombre << qPrintable(nombre);
        EXPECT_TRUE(control(*forma, "txtLineColor").isVisible());
        EXPECT_TRUE(control(*forma, "cmdLineColor").isVisible());
        EXPECT_EQ(forma->findChild<QWidget*>("txtBackColor") != nullptr, fila.relleno) << fila.nombre;
        EXPECT_EQ(forma->findChild<QWidget*>("cmdBackColor") != nullptr, fila.relleno) << fila.nombre;
        EXPECT_EQ(rotulo<QCheckBox>(*forma, "Check1"), "Guardar como modelo");
        EXPECT_EQ(rotulo<QPushButton>(*forma, "Command1"), "Aplicar");
        EXPECT_EQ(rotulo<QPushButton>(*forma, "Command2"), "Cancelar");
    }
}

TEST_F(MuebleFormaAbrir, NoTieneMasBotonesQueLosSuyos) {
    for (const Fila& fila : filas()) {
        abrir(fila.clase);
        const QStringList comunes{"cmdLineColor", "cmdBackColor", "Check1", "Command1", "Command2"};
        for (const auto* boton : forma->findChildren<QAbstractButton*>())
            EXPECT_TRUE((fila.controles + comunes).contains(boton->objectName()))
                << fila.nombre << qPrintable(boton->objectName());
    }
}

TEST_F(MuebleFormaAbrir, TodosDicenQueSonYNoComparteLetraNinguno) {
    for (const Fila& fila : filas()) {
        SCOPED_TRACE(fila.nombre);
        abrir(fila.clase);
        EXPECT_EQ(forma->accessibleName(), fila.titulo);
        esperarAccesible(*forma);
        if (!fila.controles.contains("Dist_0")) continue;
        QSet<QString> leidos;
        for (const QString& nombre : fila.controles.filter("Dist_"))
            leidos.insert(control(*forma, nombre).accessibleName());
        EXPECT_EQ(leidos.size(), fila.controles.filter("Dist_").size());
    }
}

TEST_F(MuebleFormaAbrir, LosRotulosEstanALaLetra) {
    abrir(Clase::MblSilla);
    EXPECT_EQ(control(*forma, "TxtSilla").accessibleName(), "Medida del lado");
    EXPECT_EQ(control(*forma, "TxtSilla").accessibleDescription(), "metros");
    abrir(Clase::MblArmario);
    EXPECT_EQ(control(*forma, "TxtDimX").accessibleName(), "Horizontal");
    EXPECT_EQ(control(*forma, "TxtDimY").accessibleName(), "Vertical");
    abrir(Clase::MblAsiento);
    EXPECT_EQ(control(*forma, "TxtAncho").accessibleName(), "Ancho");
    EXPECT_EQ(control(*forma, "TxtFondo").accessibleName(), "Fondo");
    abrir(Clase::MblFregadero);
    EXPECT_EQ(rotulo<QCheckBox>(*forma, "ChkEscurridor"), "Con Escurridor");
    EXPECT_EQ(forma->findChild<QGroupBox*>()->title(), "Número de Senos");
    EXPECT_EQ(rotulo<QRadioButton>(*forma, "OptNumSenos_3"), "3");
    abrir(Clase::MblBañera);
    const QStringList largos{"1,00", "1,20", "1,40", "1,60", "1,80", "2,00"};
    for (int i = 0; i < largos.size(); ++i)
        EXPECT_EQ(rotulo<QRadioButton>(*forma, QString("Longitud_%1").arg(i)), largos[i]);
}

TEST_F(MuebleFormaAbrir, LosLadosEnCentimetrosSeLeenEnSuBoton) {
    abrir(Clase::MblDucha);
    EXPECT_EQ(rotulo<QAbstractButton>(*forma, "Dist_0"), "60");
    EXPECT_EQ(rotulo<QAbstractButton>(*forma, "Dist_1"), "65");
    EXPECT_EQ(rotulo<QAbstractButton>(*forma, "Dist_2"), "70");
    for (const Clase clase : {Clase::MblCocina, Clase::MblLavadora}) {
        abrir(clase);
        EXPECT_EQ(rotulo<QAbstractButton>(*forma, "Dist_0"), "50");
        EXPECT_EQ(rotulo<QAbstractButton>(*forma, "Dist_1"), "60");
    }
    abrir(Clase::MblNevera);
    EXPECT_EQ(rotulo<QAbstractButton>(*forma, "Dist_0"), "");
}

TEST_F(MuebleFormaAbrir, MuestraElElementoEnLosDosIdiomas) {
    MblAsiento& asiento = dibujo.MblAsiento.crear(1);
    asiento.AnchoAsiento = 1234565;
    asiento.NumeroAsientos = 2;
    asiento.Orientacion = "E";
    asiento.LineColor = verde;
    asiento.BackColor = 0xC0C0FF;
    for (const auto& [nombre, ancho] :
         {std::pair(Idioma::espanol, "1.234,57"), std::pair(Idioma::ingles, "1,234.57")}) {
        const Idioma otro(nombre);
        abrir(Clase::MblAsiento);
        EXPECT_EQ(texto(*forma, "TxtAncho"), ancho);
        EXPECT_TRUE(puesto("Option1_2") && !puesto("Option1_3"));
        EXPECT_EQ(pulsados(), QStringList("Dist_1"));
        EXPECT_EQ(color(control(*forma, "txtLineColor"), QPalette::Window), QColor(Qt::green));
        EXPECT_EQ(color(control(*forma, "txtBackColor"), QPalette::Window), QColor(255, 192, 192));
        EXPECT_FALSE(puesto("Check1"));
    }
}

TEST_F(MuebleFormaAbrir, LosColoresDelSistemaSeVenNegroYBlanco) {
    dibujo.MblSilla.crear(1).BackColor = colorFondoVentana;
    abrir(Clase::MblSilla);
    EXPECT_EQ(color(control(*forma, "txtLineColor"), QPalette::Window), QColor(Qt::black));
    EXPECT_EQ(color(control(*forma, "txtBackColor"), QPalette::Window), QColor(Qt::white));
}

TEST_F(MuebleFormaAbrir, UnaOrientacionDesconocidaNoMuestraNingunBotonPulsado) {
    dibujo.MblSilla.crear(1).Orientacion = "N";
    abrir(Clase::MblSilla);
    EXPECT_EQ(pulsados(), QStringList());
    pulsa("Dist_0");
    EXPECT_EQ(pulsados(), QStringList("Dist_0"));
}

TEST_F(MuebleFormaAbrir, LaBañeraDeOtroLargoNoLuceNingunBoton) {
    dibujo.MblBañera.crear(1).Longitud = 1100;
    abrir(Clase::MblBañera);
    for (int i = 0; i < 6; ++i)
        EXPECT_FALSE(puesto(QString("Longitud_%1").arg(i)));
}

TEST_F(MuebleFormaPulsar, LaOrientacionSeEscribeAntesDeAplicarYCancelarLaDeja) {
    abrir(Clase::MblCama90);
    pulsa("Dist_2");
    EXPECT_EQ(dibujo.MblCama90.en(1)->Orientacion, "WU");
    EXPECT_EQ(pulsados(), QStringList("Dist_2"));
    pulsa("Command2");
    EXPECT_FALSE(forma->isVisible());
    EXPECT_EQ(dibujo.MblCama90.en(1)->Orientacion, "WU");
}

TEST_F(MuebleFormaPulsar, UnBotonYaPulsadoVuelveAEscribir) {
    abrir(Clase::MblSilla);
    teclear(*forma, "TxtSilla", "0,5");
    pulsa("Dist_3");
    EXPECT_EQ(pulsados(), QStringList("Dist_3"));
    EXPECT_EQ(dibujo.MblSilla.en(1)->Orientacion, "Sur");
    EXPECT_EQ(dibujo.MblSilla.en(1)->AnchoSilla, 500);
}

TEST_F(MuebleFormaPulsar, LasOpcionesYElEscurridorSeEscribenEnElActo) {
    abrir(Clase::MblFregadero);
    elige("OptNumSenos_2");
    elige("ChkEscurridor");
    EXPECT_EQ(dibujo.MblFregadero.en(1)->NumeroSenos, 2);
    EXPECT_EQ(dibujo.MblFregadero.en(1)->Escurridor, 0);
    abrir(Clase::MblBañera);
    elige("Longitud_5");
    EXPECT_EQ(dibujo.MblBañera.en(1)->Longitud, 2000);
}

TEST_F(MuebleFormaPulsar, LosBotonesMuestranElElementoComoEsAhora) {
    abrir(Clase::MblFregadero);
    const QImage unSeno = imagen("Dist_0");
    EXPECT_NE(unSeno, imagen("Dist_1"));
    elige("OptNumSenos_3");
    const QImage tresSenos = imagen("Dist_0");
    EXPECT_NE(tresSenos, unSeno);
    elige("ChkEscurridor");
    EXPECT_NE(imagen("Dist_0"), tresSenos);
}

TEST_F(MuebleFormaPulsar, LasImagenesDeUnGrupoEstanALaMismaEscala) {
    abrir(Clase::MblDucha);
    const auto ancho = [](const QImage& imagen) {
        int cuantas = 0;
        for (int x = 0; x < imagen.width(); ++x)
            cuantas += imagen.pixelColor(x, imagen.height() / 2 - 10).alpha() > 0 ? 1 : 0;
        return cuantas;
    };
    const auto columnas = [&](const QString& nombre) {
        const QImage imagen = this->imagen(nombre);
        int primera = imagen.width();
        int ultima = 0;
        for (int x = 0; x < imagen.width(); ++x)
            if (imagen.pixelColor(x, imagen.height() / 2).alpha() > 0) {
                primera = std::min(primera, x);
                ultima = std::max(ultima, x);
            }
        return ultima - primera;
    };
    EXPECT_GT(ancho(imagen("Dist_0")), 0);
    EXPECT_LT(columnas("Dist_0"), columnas("Dist_1"));
    EXPECT_LT(columnas("Dist_1"), columnas("Dist_2"));
}

TEST_F(MuebleFormaPulsar, AplicarEscribeMedidasYGuardaElModelo) {
    abrir(Clase::MblArmario);
    teclear(*forma, "TxtDimX", "2,4");
    teclear(*forma, "TxtDimY", "0.65");
    elige("Check1");
    EXPECT_EQ(dibujo.MblArmario.en(1)->DimX, 1500);
    pulsa("Command1");
    EXPECT_FALSE(forma->isVisible());
    EXPECT_EQ(dibujo.MblArmario.en(1)->DimX, 2400);
    EXPECT_EQ(dibujo.MblArmario.en(1)->DimY, 650);
    EXPECT_EQ(dibujo.MblArmario.modelo().DimX, 2400);
    EXPECT_EQ(dibujo.MblArmario.modelo().DimY, 650);
}

TEST_F(MuebleFormaTeclas, ElPuntoEscribeUnaComaYLasDemasTeclasPitan) {
    for (const Clase clase : {Clase::MblSilla, Clase::MblArmario, Clase::MblAsiento}) {
        abrir(clase);
        for (const CampoMueble& dato : logica->ficha().campos) {
            const QString nombre = QString::fromUtf8(dato.control.data());
            QSignalSpy rechazadas(&control(*forma, nombre), SIGNAL(rechazada()));
            teclear(*forma, nombre, "1.2a-x5");
            EXPECT_EQ(texto(*forma, nombre), "1,25");
            EXPECT_EQ(rechazadas.count(), 3);
            QTest::keyClick(&control(*forma, nombre), Qt::Key_Backspace);
            EXPECT_EQ(texto(*forma, nombre), "1,2");
        }
    }
}

TEST_F(MuebleFormaTeclas, AlRecibirElFocoSeSeleccionaTodoElTexto) {
    abrir(Clase::MblArmario);
    EXPECT_EQ(forma->focusWidget()->objectName(), "TxtDimX");
    EXPECT_EQ(control<QLineEdit>(*forma, "TxtDimX").selectedText(), "1,50");
    QTest::keyClick(forma->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(control<QLineEdit>(*forma, "TxtDimY").selectedText(), "0,60");
}

TEST_F(MuebleFormaTeclas, ElTabuladorRecorreElDialogoDeArribaAbajo) {
    abrir(Clase::MblAsiento);
    EXPECT_EQ(recorridoTab(*forma),
              QStringList({"TxtAncho", "TxtFondo", "Option1_3", "Dist_2", "cmdLineColor", "cmdBackColor",
                           "Check1", "Command1", "Command2"}));
    abrir(Clase::MblFregadero);
    EXPECT_EQ(recorridoTab(*forma), QStringList({"OptNumSenos_1", "ChkEscurridor", "Dist_6", "cmdLineColor",
                                                 "cmdBackColor", "Check1", "Command1", "Command2"}));
    dibujo.MblLavabo.crear(1).Orientacion = "nada";
    abrir(Clase::MblLavabo);
    EXPECT_EQ(recorridoTab(*forma),
              QStringList({"Dist_0", "cmdLineColor", "Check1", "Command1", "Command2"}));
}

TEST_F(MuebleFormaTeclas, LasFlechasPasanDeUnaOrientacionAOtra) {
    abrir(Clase::MblAsiento);
    control(*forma, "Dist_2").setFocus();
    QTest::keyClick(forma->focusWidget(), Qt::Key_Right);
    EXPECT_EQ(dibujo.MblAsiento.en(1)->Orientacion, "W");
    EXPECT_EQ(pulsados(), QStringList("Dist_3"));
    EXPECT_EQ(forma->focusWidget()->objectName(), "Dist_3");
}

TEST_F(MuebleFormaTeclas, IntroAplicaYEscapeNo) {
    abrir(Clase::MblSilla);
    teclear(*forma, "TxtSilla", "0,6");
    QTest::keyClick(forma->focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(forma->isVisible());
    EXPECT_EQ(dibujo.MblSilla.en(1)->AnchoSilla, 450);
    abrir(Clase::MblSilla);
    teclear(*forma, "TxtSilla", "0,6");
    control(*forma, "Dist_3").setFocus();
    QTest::keyClick(forma->focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(forma->isVisible());
    EXPECT_EQ(dibujo.MblSilla.en(1)->AnchoSilla, 600);
}

TEST_F(MuebleFormaTeclas, UnTextoQueNoEsNumeroDejaLaMedidaComoEstaba) {
    abrir(Clase::MblArmario);
    control<QLineEdit>(*forma, "TxtDimX").clear();
    teclear(*forma, "TxtDimY", ",");
    pulsa("Command1");
    EXPECT_EQ(dibujo.MblArmario.en(1)->DimX, 1500);
    EXPECT_EQ(dibujo.MblArmario.en(1)->DimY, 600);
}

TEST_F(MuebleFormaColores, ElColorElegidoEsperaAAplicar) {
    abrir(Clase::MblSilla);
    const auto elegir = [&](const QString& boton, const QColor& elegido) {
        QTimer::singleShot(0, [elegido] {
            auto* dialogo = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialogo);
            dialogo->setCurrentColor(elegido);
            dialogo->accept();
        });
        pulsa(boton);
    };
    elegir("cmdLineColor", QColor(255, 0, 0));
    elegir("cmdBackColor", QColor(0, 0, 255));
    EXPECT_EQ(color(control(*forma, "txtLineColor"), QPalette::Window), QColor(Qt::red));
    EXPECT_EQ(dibujo.MblSilla.en(1)->LineColor, colorTextoVentana);
    pulsa("Command1");
    EXPECT_EQ(dibujo.MblSilla.en(1)->LineColor, 0x0000FF);
    EXPECT_EQ(dibujo.MblSilla.en(1)->BackColor, 0xFF0000);
}

TEST_F(MuebleFormaColores, CerrarElDialogoDeColorDejaElQueHabia) {
    abrir(Clase::MblLavabo);
    QTimer::singleShot(0, [] {
        if (auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget())) dialogo->reject();
    });
    pulsa("cmdLineColor");
    pulsa("Command1");
    EXPECT_EQ(dibujo.MblLavabo.en(1)->LineColor, colorTextoVentana);
}

TEST_F(MuebleFormaEnVentana, SeAbreDelanteDeLaVentanaYEscribeEnElDibujo) {
    dibujo().MblLavadora.crear(1);
    MuebleProp logica(dibujo(), Clase::MblLavadora, 1);
    cuandoSeAbra<QDialog>([](QDialog& forma) {
        EXPECT_EQ(forma.objectName(), "LavadoraProp");
        QTest::mouseClick(forma.findChild<QWidget*>("Dist_0"), Qt::LeftButton);
        QTest::mouseClick(forma.findChild<QWidget*>("Command2"), Qt::LeftButton);
    });
    mostrar(bosquel.sesion(), logica);
    EXPECT_EQ(dibujo().MblLavadora.en(1)->Orientacion, "50");
}

TEST_F(MuebleFormaEnVentana, LaHojaMuestraLaPulsacionConElDialogoAbierto) {
    MblArmario& armario = dibujo().MblArmario.crear(1);
    armario.Visible = true;
    dibujo().MblCama90.crear(1).Visible = true;
    dibujo().sucia.anadirTodo();
    publicar(bosquel.sesion());
    MuebleProp logica(dibujo(), Clase::MblCama90, 1);
    QImage antes;
    QImage despues;
    cuandoSeAbra<QDialog>([&](QDialog& forma) {
        antes = control("Hoja").grab().toImage();
        dibujo().sucia.anadirTodo();
        QTest::mouseClick(forma.findChild<QWidget*>("Dist_2"), Qt::LeftButton);
        despues = control("Hoja").grab().toImage();
        forma.reject();
    });
    mostrar(bosquel.sesion(), logica);
    EXPECT_NE(antes, despues);
}
