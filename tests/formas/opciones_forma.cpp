#include "ui/opciones_forma.h"

#include "apoyo/carpeta_temporal.h"
#include "apoyo/idioma.h"
#include "drawing/opciones.h"
#include "formas/apoyo_formas.h"
#include "persistence/perfiles.h"
#include "ui/campo_numero.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QSignalSpy>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

struct PruebaOpciones : testing::Test {
    Idioma idioma{Idioma::espanol};
    CarpetaTemporal carpeta;
    PlataformaMuda plataforma;
    Sesion sesion{plataforma, carpeta.ruta()};
    Dibujo& dibujo = sesion.dibujo;
    Opciones logica{sesion};
    OpcionesForma forma{logica};

    PruebaOpciones() { mostrarActiva(forma); }

    bool marcada(const QString& nombre) { return control<QCheckBox>(forma, nombre).isChecked(); }
    void marcar(const QString& nombre) { control<QCheckBox>(forma, nombre).click(); }
    std::string ajuste(const char* seccion, const char* clave) const {
        return LeerIni(carpeta / "Bqr.ini", seccion, clave);
    }
};

}  // namespace

using OpcionesFormaMostrar = PruebaOpciones;
using OpcionesFormaCampos = PruebaOpciones;
using OpcionesFormaBotones = PruebaOpciones;

TEST_F(OpcionesFormaMostrar, TieneSusMarcosRotulosYUnidades) {
    EXPECT_EQ(forma.objectName(), "Opciones");
    EXPECT_EQ(forma.windowTitle(), "Configuración");
    QStringList marcos;
    QStringList rotulos;
    for (const auto* marco : forma.findChildren<QGroupBox*>())
        marcos += marco->title();
    for (const auto* etiqueta : forma.findChildren<QLabel*>())
        rotulos += etiqueta->text().remove('&');
    EXPECT_EQ(marcos, QStringList({"Dimensiones", "Cuadrícula", "Salvado Automático"}));
    EXPECT_EQ(rotulos, QStringList({"Ancho de la hoja:", "mm", "Alto de la hoja:", "mm", "Espaciado", "m.",
                                    "Guardar cada", "minutos"}));
    EXPECT_EQ(rotulo<QCheckBox>(forma, "ChkIman"), "Activar cuadrícula");
    EXPECT_EQ(rotulo<QCheckBox>(forma, "ChkVisible"), "Mostrar cuadrícula");
    EXPECT_EQ(rotulo<QCheckBox>(forma, "chkSalvadoAutomatico"), "Activar Salvado Automático");
    EXPECT_EQ(rotulo<QPushButton>(forma, "BttAplicar"), "Aplicar");
    EXPECT_EQ(rotulo<QPushButton>(forma, "BttCancelar"), "Cancelar");
    EXPECT_EQ(rotulo<QPushButton>(forma, "BttPredeterminar"), "Predeterminar");
    EXPECT_EQ(rotulo<QPushButton>(forma, "BttOriginales"), "Restablecer");
    esperarAccesible(forma);
}

TEST_F(OpcionesFormaMostrar, MuestraLosValoresDelDibujo) {
    EXPECT_EQ(texto(forma, "TxtAnchoHoja"), "200");
    EXPECT_EQ(texto(forma, "TxtAltoHoja"), "200");
    EXPECT_EQ(texto(forma, "TxtCuadricula"), "0,10");
    EXPECT_EQ(texto(forma, "txtSalvarCadaXmin"), "5");
    EXPECT_FALSE(marcada("ChkIman"));
    EXPECT_FALSE(marcada("ChkVisible"));
    EXPECT_TRUE(marcada("chkSalvadoAutomatico"));
}

TEST_F(OpcionesFormaMostrar, SinSalvadoAutomaticoLosMinutosSonCincoYGrises) {
    dibujo.AutoSave = 0;
    logica.CargarControles();
    OpcionesForma otra(logica);
    EXPECT_FALSE(control<QCheckBox>(otra, "chkSalvadoAutomatico").isChecked());
    EXPECT_EQ(texto(otra, "txtSalvarCadaXmin"), "5");
    EXPECT_TRUE(gris(control(otra, "txtSalvarCadaXmin")));
}

TEST_F(OpcionesFormaCampos, LaHojaYLosMinutosAdmitenSoloCifras) {
    for (const char* nombre : {"TxtAnchoHoja", "TxtAltoHoja", "txtSalvarCadaXmin"}) {
        QSignalSpy pitidos(&control<CampoNumero>(forma, nombre), &CampoNumero::rechazada);
        teclear(forma, nombre, "1.2,3-");
        EXPECT_EQ(texto(forma, nombre), "123");
        EXPECT_EQ(pitidos.count(), 3);
    }
}

TEST_F(OpcionesFormaCampos, ElPuntoDeLaCuadriculaEsComa) {
    teclear(forma, "TxtCuadricula", ".25-");
    EXPECT_EQ(texto(forma, "TxtCuadricula"), ",25");
}

TEST_F(OpcionesFormaCampos, LaHojaYLaCuadriculaSeSeleccionanAlTomarElFoco) {
    for (const char* nombre : {"TxtAltoHoja", "TxtCuadricula", "TxtAnchoHoja"}) {
        pulsar(forma, nombre);
        EXPECT_EQ(control<QLineEdit>(forma, nombre).selectedText(), texto(forma, nombre)) << nombre;
    }
}

TEST_F(OpcionesFormaCampos, ElTabuladorLosRecorreEnOrden) {
    EXPECT_EQ(recorridoTab(forma),
              QStringList({"TxtAnchoHoja", "TxtAltoHoja", "ChkIman", "ChkVisible", "TxtCuadricula",
                           "chkSalvadoAutomatico", "txtSalvarCadaXmin", "BttAplicar", "BttCancelar",
                           "BttPredeterminar", "BttOriginales"}));
}

TEST_F(OpcionesFormaCampos, LosMinutosNoSeSeleccionan) {
    control(forma, "txtSalvarCadaXmin").setFocus(Qt::TabFocusReason);
    EXPECT_EQ(control<QLineEdit>(forma, "txtSalvarCadaXmin").selectedText(), "");
}

TEST_F(OpcionesFormaCampos, LaCasillaHabilitaLosMinutos) {
    auto& minutos = control(forma, "txtSalvarCadaXmin");
    EXPECT_TRUE(blanca(minutos));
    marcar("chkSalvadoAutomatico");
    EXPECT_TRUE(gris(minutos));
    marcar("chkSalvadoAutomatico");
    EXPECT_TRUE(blanca(minutos));
}

TEST_F(OpcionesFormaBotones, AplicarEscribeEnElDibujoYCierra) {
    teclear(forma, "TxtAnchoHoja", "150");
    teclear(forma, "TxtAltoHoja", "80");
    teclear(forma, "TxtCuadricula", "0.5");
    teclear(forma, "txtSalvarCadaXmin", "0");
    marcar("ChkIman");
    marcar("ChkVisible");
    pulsar(forma, "BttAplicar");
    EXPECT_FALSE(forma.isVisible());
    EXPECT_EQ(dibujo.AreaWidth, 15000);
    EXPECT_EQ(dibujo.AreaHight, 8000);
    EXPECT_EQ(dibujo.Cuadricula, 500.0);
    EXPECT_TRUE(dibujo.Iman);
    EXPECT_TRUE(dibujo.VerCuadricula);
    EXPECT_EQ(dibujo.AutoSave, 5);
    EXPECT_EQ(plataforma.activaciones, 0);
    EXPECT_FALSE(std::filesystem::exists(carpeta / "Bqr.ini"));
}

TEST_F(OpcionesFormaBotones, EnterAplica) {
    teclear(forma, "TxtAnchoHoja", "90");
    QTest::keyClick(&control(forma, "TxtAnchoHoja"), Qt::Key_Enter);
    EXPECT_FALSE(forma.isVisible());
    EXPECT_EQ(dibujo.AreaWidth, 9000);
}

TEST_F(OpcionesFormaBotones, CancelarYEscapeNoCambianNada) {
    teclear(forma, "TxtAnchoHoja", "90");
    pulsar(forma, "BttCancelar");
    EXPECT_FALSE(forma.isVisible());
    mostrarActiva(forma);
    QTest::keyClick(&forma, Qt::Key_Escape);
    EXPECT_FALSE(forma.isVisible());
    EXPECT_EQ(dibujo.AreaWidth, 20000);
}

TEST_F(OpcionesFormaBotones, PredeterminarAplicaGuardaYDejaAbierto) {
    teclear(forma, "TxtAnchoHoja", "300");
    teclear(forma, "TxtCuadricula", "0.25");
    marcar("ChkIman");
    marcar("chkSalvadoAutomatico");
    pulsar(forma, "BttPredeterminar");
    EXPECT_TRUE(forma.isVisible());
    EXPECT_EQ(ajuste("PaperSize", "AreaWidth"), "30000");
    EXPECT_EQ(ajuste("PaperSize", "AreaHight"), "20000");
    EXPECT_EQ(ajuste("Smart", "Grid"), "250");
    EXPECT_EQ(ajuste("Smart", "Snap"), "Verdadero");
    EXPECT_EQ(ajuste("Smart", "GridView"), "Falso");
    EXPECT_EQ(ajuste("Smart", "AutoSave"), "0");
    pulsar(forma, "BttCancelar");
    EXPECT_EQ(dibujo.AreaWidth, 30000);
}

TEST_F(OpcionesFormaBotones, RestablecerMuestraLosPrimerosValoresYDejaAbierto) {
    teclear(forma, "TxtAnchoHoja", "300");
    teclear(forma, "TxtCuadricula", "2");
    marcar("ChkIman");
    marcar("ChkVisible");
    marcar("chkSalvadoAutomatico");
    dibujo.FactorZoomActual = 1.5;
    pulsar(forma, "BttOriginales");
    EXPECT_TRUE(forma.isVisible());
    EXPECT_EQ(dibujo.FactorZoomActual, 0.5);
    EXPECT_EQ(texto(forma, "TxtAnchoHoja"), "200");
    EXPECT_EQ(texto(forma, "TxtCuadricula"), "0,10");
    EXPECT_EQ(texto(forma, "txtSalvarCadaXmin"), "5");
    EXPECT_FALSE(marcada("ChkIman"));
    EXPECT_FALSE(marcada("ChkVisible"));
    EXPECT_TRUE(marcada("chkSalvadoAutomatico"));
    EXPECT_TRUE(blanca(control(forma, "txtSalvarCadaXmin")));
}
