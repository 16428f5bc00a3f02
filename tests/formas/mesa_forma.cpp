#include "ui/mesa_forma.h"

#include "apoyo/idioma.h"
#include "formas/apoyo_formas.h"
#include "formas/ventana_de_prueba.h"
#include "furnishing/mesa_prop.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <memory>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

struct Colocaciones {
    int sillas;
    QStringList pone, alAbrir;
};

const std::vector<Colocaciones>& grupos() {
    static const std::vector<Colocaciones> todos{
        {0, {"0"}, {"0"}},
        {1, {"1L", "1R", "1D", "1U"}, {"1L", "1R", "1U", "1D"}},
        {2, {"2UD", "2RL", "2DD", "2RR", "2UU", "2LL"}, {"2UD", "2RL", "2UU", "2DD", "2LL", "2RR"}},
        {3, {"3RUL", "3ULD", "3LDR", "3DRU"}, {"3RUL", "3ULD", "3LDR", "3DRU"}},
        {4, {"4RLUD", "4RRLL", "4UUDD"}, {"4RLUD", "4RRLL", "4UUDD"}},
        {5, {"5URRLL", "5DRRLL", "5LUUDD", "5RUUDD"}, {"5URRLL", "5DRRLL", "5LUUDD", "5RUUDD"}},
        {6, {"6URRLLD", "6LUUDDR"}, {"6URRLLD", "6LUUDDR"}},
    };
    return todos;
}

struct PruebaMesaForma : testing::Test {
    Idioma idioma{Idioma::espanol};
    Dibujo dibujo;
    MblMesa& mesa = dibujo.MblMesa.crear(1);
    std::unique_ptr<MesaProp> logica;
    std::unique_ptr<MesaForma> forma;

    void abrir() {
        forma.reset();
        logica = std::make_unique<MesaProp>(dibujo, 1);
        forma = std::make_unique<MesaForma>(*logica);
        mostrarActiva(*forma);
    }
    void pulsa(const QString& nombre) { pulsar(*forma, nombre); }
    void elige(const QString& nombre) { control<QAbstractButton>(*forma, nombre).click(); }
    static QString boton(int grupo, qsizetype indice) { return QString("Dist%1_%2").arg(grupo).arg(indice); }
    QStringList pulsados() {
        QStringList nombres;
        for (const auto* uno : forma->findChildren<QAbstractButton*>())
            if (uno->objectName().startsWith("Dist") && uno->isChecked()) nombres += uno->objectName();
        return nombres;
    }
    /// The indices of the frames on view.
    QList<int> marcos() {
        QList<int> visibles;
        for (int i = 0; i < MesaProp::grupos; ++i)
            if (control(*forma, QString("FrmDist_%1").arg(i)).isVisible()) visibles += i;
        return visibles;
    }
};

}  // namespace

using MesaFormaAbrir = PruebaMesaForma;
using MesaFormaPulsar = PruebaMesaForma;
using MesaFormaTeclas = PruebaMesaForma;
using MesaFormaEnVentana = VentanaDePrueba;

TEST_F(MesaFormaAbrir, SeLlamaComoDebeYTieneSusRotulos) {
    abrir();
    EXPECT_EQ(forma->objectName(), "MesaProp");
    EXPECT_EQ(forma->windowTitle(), "Propiedades de mesa");
    EXPECT_TRUE(forma->isModal());
    QStringList titulos;
    for (const auto* marco : forma->findChildren<QGroupBox*>())
        titulos += marco->title();
    EXPECT_TRUE(titulos.contains("Dimensiones en metros"));
    EXPECT_TRUE(titulos.contains("Número de sillas:"));
    QStringList rotulos;
    for (const auto* etiqueta : forma->findChildren<QLabel*>())
        rotulos += etiqueta->text().remove('&');
    for (const char* rotulo : {"Mesa", "Sillas", "Horizontal:", "Vertical:"})
        EXPECT_TRUE(rotulos.contains(rotulo)) << rotulo;
    for (int i = 0; i < MesaProp::grupos; ++i)
        EXPECT_EQ(rotulo<QRadioButton>(*forma, QString("OptSillas_%1").arg(i)), QString::number(i));
    EXPECT_EQ(rotulo<QCheckBox>(*forma, "Check1"), "Guardar como modelo");
    EXPECT_EQ(rotulo<QPushButton>(*forma, "Command1"), "Aplicar");
    EXPECT_EQ(rotulo<QPushButton>(*forma, "Command2"), "Cancelar");
    esperarAccesible(*forma);
}

TEST_F(MesaFormaAbrir, MuestraLaMesaEnLosDosIdiomas) {
    mesa.MesaDimX = 1234565;
    mesa.MesaDimY = 800;
    for (const auto& [nombre, ancho, alto] :
         {std::tuple(Idioma::espanol, "1.234,57", "0,80"), std::tuple(Idioma::ingles, "1,234.57", "0.80")}) {
        const Idioma otro(nombre);
        abrir();
        EXPECT_EQ(texto(*forma, "TxtMesaX"), ancho);
        EXPECT_EQ(texto(*forma, "TxtMesaY"), alto);
        EXPECT_EQ(texto(*forma, "TxtSillaX").left(1), "0");
        EXPECT_EQ(texto(*forma, "TxtSillaY").right(2), "30");
    }
}

TEST_F(MesaFormaAbrir, CadaCodigoLuceSuBotonEnSuMarco) {
    for (const Colocaciones& grupo : grupos())
        for (qsizetype i = 0; i < grupo.alAbrir.size(); ++i) {
            mesa.ColocacionSillas = grupo.alAbrir[i].toStdString();
            abrir();
            EXPECT_EQ(pulsados(), QStringList(boton(grupo.sillas, i))) << mesa.ColocacionSillas;
            EXPECT_EQ(marcos(), QList<int>{grupo.sillas});
            EXPECT_TRUE(control<QRadioButton>(*forma, QString("OptSillas_%1").arg(grupo.sillas)).isChecked());
        }
}

TEST_F(MesaFormaAbrir, UnCodigoDesconocidoNoMuestraMarcoNiBotonPulsado) {
    mesa.ColocacionSillas = "mesa";
    abrir();
    EXPECT_EQ(marcos(), QList<int>());
    EXPECT_EQ(pulsados(), QStringList());
    const QSize tamano = forma->size();
    elige("OptSillas_3");
    EXPECT_EQ(marcos(), QList<int>{3});
    EXPECT_EQ(forma->size(), tamano);
}

TEST_F(MesaFormaAbrir, CadaBotonTieneSuImagenYDiceQuePone) {
    abrir();
    QSet<QString> leidos;
    QList<QImage> imagenes;
    for (const Colocaciones& grupo : grupos())
        for (qsizetype i = 0; i < grupo.pone.size(); ++i) {
            auto& uno = control<QAbstractButton>(*forma, boton(grupo.sillas, i));
            leidos.insert(uno.accessibleName());
            const QImage imagen = uno.icon().pixmap(48, 48).toImage();
            EXPECT_FALSE(imagenes.contains(imagen)) << qPrintable(uno.objectName());
            imagenes += imagen;
        }
    EXPECT_EQ(leidos.size(), 24);
    EXPECT_FALSE(forma->findChild<QWidget*>("Dist0_1") || forma->findChild<QWidget*>("Dist4_3"));
}

TEST_F(MesaFormaPulsar, ElNumeroDeSillasMuestraSoloSuMarcoYNoCambiaLaMesa) {
    abrir();
    const QSize tamano = forma->size();
    for (int i = 0; i < MesaProp::grupos; ++i) {
        elige(QString("OptSillas_%1").arg(i));
        EXPECT_EQ(marcos(), QList<int>{i});
        EXPECT_EQ(forma->size(), tamano);
    }
    EXPECT_EQ(mesa.ColocacionSillas, "4RLUD");
    EXPECT_TRUE(dibujo.cambiados.empty());
}

TEST_F(MesaFormaPulsar, CadaBotonPoneSuCodigoYSueltaLosDemas) {
    abrir();
    for (const Colocaciones& grupo : grupos()) {
        elige(QString("OptSillas_%1").arg(grupo.sillas));
        for (qsizetype i = 0; i < grupo.pone.size(); ++i) {
            pulsa(boton(grupo.sillas, i));
            EXPECT_EQ(mesa.ColocacionSillas, grupo.pone[i].toStdString());
            EXPECT_EQ(pulsados(), QStringList(boton(grupo.sillas, i)));
        }
    }
}

TEST_F(MesaFormaPulsar, UnaPulsacionEscribeLasMedidasYCancelarLasDeja) {
    abrir();
    teclear(*forma, "TxtMesaX", "1.5");
    teclear(*forma, "TxtMesaY", "0,9");
    teclear(*forma, "TxtSillaX", "0,45");
    control<QLineEdit>(*forma, "TxtSillaY").clear();
    pulsa("Dist4_1");
    teclear(*forma, "TxtMesaX", "7");
    pulsa("Command2");
    EXPECT_FALSE(forma->isVisible());
    EXPECT_EQ(mesa.MesaDimX, 1500);
    EXPECT_EQ(mesa.MesaDimY, 900);
    EXPECT_EQ(mesa.AnchoSilla, 450);
    EXPECT_EQ(mesa.AltoSilla, 300);
    EXPECT_EQ(mesa.ColocacionSillas, "4RRLL");
}

TEST_F(MesaFormaPulsar, LosBotonesSiguenLasMedidasDeLaMesa) {
    abrir();
    const auto imagen = [&] {
        return control<QAbstractButton>(*forma, "Dist4_0").icon().pixmap(48, 48).toImage();
    };
    const QImage antes = imagen();
    teclear(*forma, "TxtMesaX", "2");
    EXPECT_EQ(imagen(), antes);
    pulsa("Dist4_0");
    EXPECT_NE(imagen(), antes);
}

TEST_F(MesaFormaPulsar, AplicarGuardaEnElModeloLasMedidasDeAntes) {
    abrir();
    teclear(*forma, "TxtMesaX", "2");
    elige("Check1");
    pulsa("Command1");
    EXPECT_FALSE(forma->isVisible());
    EXPECT_EQ(mesa.MesaDimX, 2000);
    EXPECT_EQ(dibujo.MblMesa.modelo().MesaDimX, 1000);
}

TEST_F(MesaFormaTeclas, LasCuatroMedidasFiltranLasTeclas) {
    abrir();
    for (const char* nombre : {"TxtMesaX", "TxtMesaY", "TxtSillaX", "TxtSillaY"}) {
        QSignalSpy rechazadas(&control(*forma, nombre), SIGNAL(rechazada()));
        teclear(*forma, nombre, "0.7m5-");
        EXPECT_EQ(texto(*forma, nombre), "0,75");
        EXPECT_EQ(rechazadas.count(), 2);
        EXPECT_EQ(control(*forma, nombre).accessibleDescription(), "metros");
    }
}

TEST_F(MesaFormaTeclas, ElTabuladorRecorreElDialogoYSeleccionaLasMedidas) {
    abrir();
    EXPECT_EQ(control<QLineEdit>(*forma, "TxtMesaX").selectedText(), "1,00");
    EXPECT_EQ(recorridoTab(*forma),
              QStringList({"TxtMesaX", "TxtMesaY", "TxtSillaX", "TxtSillaY", "OptSillas_4", "Dist4_0",
                           "cmdLineColor", "cmdBackColor", "Check1", "Command1", "Command2"}));
    elige("OptSillas_2");
    control(*forma, "OptSillas_2").setFocus();
    QTest::keyClick(forma->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(forma->focusWidget()->objectName(), "Dist2_0");
    EXPECT_EQ(mesa.ColocacionSillas, "4RLUD");
}

TEST_F(MesaFormaEnVentana, SeAbreDelanteDeLaVentanaYLaHojaMuestraLaPulsacion) {
    dibujo().MblMesa.crear(1).Visible = true;
    dibujo().sucia.anadirTodo();
    publicar(bosquel.sesion());
    MesaProp logica(dibujo(), 1);
    cuandoSeAbra<QDialog>([this](QDialog& forma) {
        EXPECT_EQ(forma.objectName(), "MesaProp");
        const QImage antes = control("Hoja").grab().toImage();
        dibujo().sucia.anadirTodo();
        QTest::mouseClick(forma.findChild<QWidget*>("Dist4_1"), Qt::LeftButton);
        EXPECT_NE(control("Hoja").grab().toImage(), antes);
        QTest::mouseClick(forma.findChild<QWidget*>("Command2"), Qt::LeftButton);
    });
    mostrar(bosquel.sesion(), logica);
    EXPECT_EQ(dibujo().MblMesa.en(1)->ColocacionSillas, "4RRLL");
}
