#include "apoyo/banco.h"
#include "appearance/colores.h"
#include "furnishing/dibujar_elemento.h"
#include "surface/grabadora.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

struct ColoresBoton : testing::Test {
    void abrir(std::function<void(Colores&)> mano) {
        banco.plataforma.alAbrirColores = std::move(mano);
        banco.boton("Colores");
    }
    /// Walls, doors and windows each in a colour of their own.
    void colorear() {
        abrir([](Colores& dialogo) {
            dialogo.elegirEsquema(1);
            dialogo.cmdLineCatColor(3, 0x00C000);
            dialogo.cmdLineCatColor(4, rojo);
            dialogo.cmdLineCatColor(5, 0xFF0000);
            dialogo.AplicarColores();
        });
    }

    Banco banco;
};

/// The colour of all strokes of an element, RRGGBB; empty if they differ or there is none.
std::string colorDeTrazos(const Dibujo& dibujo, Clase clase) {
    Grabadora hoja;
    DibujarElemento(salidaDe(dibujo, hoja, 1), dibujo, clase, 1);
    const auto colorDe = [](const std::string& trazo) { return trazo.substr(trazo.find_last_of(' ') + 1); };
    if (hoja.trazos().empty()) return {};
    const std::string primero = colorDe(hoja.trazos().front());
    const bool iguales = std::all_of(hoja.trazos().begin(), hoja.trazos().end(),
                                     [&](const std::string& trazo) { return colorDe(trazo) == primero; });
    return iguales ? primero : std::string{};
}

}  // namespace

TEST_F(ColoresBoton, AbreElDialogoDentroDeLaCompuertaYAcabaLaHerramienta) {
    banco.boton("Muro");
    const int vistas = banco.plataforma.vistas;
    abrir([&](const Colores& dialogo) {
        EXPECT_TRUE(banco.sesion().Ocupado);
        EXPECT_EQ(banco.modo(), Modo::Aspa);
        EXPECT_EQ(dialogo.optSchemaColor(), 0U);
    });
    EXPECT_EQ(banco.plataforma.dialogosDeColores, 1);
    EXPECT_FALSE(banco.sesion().Ocupado);
    EXPECT_EQ(banco.plataforma.vistas, vistas + 2)
        << "before the dialog, and after it: models have new colours";
}

TEST_F(ColoresBoton, CancelarNoCambiaNada) {
    abrir([](Colores& dialogo) {
        dialogo.elegirEsquema(1);
        dialogo.cmdLineCatColor(4, rojo);
        dialogo.cmdLineColor(0, rojo);
    });
    EXPECT_EQ(banco.dibujo().Pared.modelo().LineColor, colorTextoVentana);
    EXPECT_EQ(banco.dibujo().MblMesa.modelo().LineColor, colorTextoVentana);
    EXPECT_EQ(banco.dibujo().Esquema, "Blanco y Negro");
}

TEST_F(ColoresBoton, LosPerfilesEstanEnLaCarpetaDelPrograma) {
    banco.plataforma.textos = {"Playa"};
    abrir([](Colores& dialogo) {
        dialogo.elegirEsquema(2);
        dialogo.cmdGuardarPerfil();
    });
    EXPECT_EQ(banco.lineas("PerfilesColor.ini").at(2), "Perfil1=Playa");
}

TEST_F(ColoresBoton, AplicarRepintaLaHoja) {
    banco.plataforma.repintados.clear();
    colorear();
    ASSERT_FALSE(banco.plataforma.repintados.empty());
    EXPECT_TRUE(banco.plataforma.repintados.back().todo());
}

TEST_F(ColoresBoton, MurosPuertasYVentanasSeDibujanConElColorDeSuModelo) {
    Dibujo& dibujo = banco.dibujo();
    banco.ponMuro();
    for (Segmento& linea : dibujo.Ventana.crear(1).lineas)
        linea = {0, 0, 100, 0, true};
    for (Segmento& linea : dibujo.Puerta.crear(1).lineas)
        linea = {0, 0, 100, 0, true};
    EXPECT_EQ(colorDeTrazos(dibujo, Clase::Pared), "000000");
    colorear();
    EXPECT_EQ(colorDeTrazos(dibujo, Clase::Pared), "FF0000");
    EXPECT_EQ(colorDeTrazos(dibujo, Clase::Ventana), "00C000");
    EXPECT_EQ(colorDeTrazos(dibujo, Clase::Puerta), "00C000");
    dibujo.Pared.modelo().LineColor = 0xFF0000;
    EXPECT_EQ(colorDeTrazos(dibujo, Clase::Pared), "0000FF") << "a wall's own field says nothing";
}

TEST_F(ColoresBoton, ElDibujoGuardaLosColoresElEsquemaYElPerfil) {
    colorear();
    banco.guarda("casa.bqr");
    const auto lineas = banco.lineas("casa.bqr");
    for (const char* esperada : {"ColorParedes=255", "ColorCarpinteria=49152", "ColorTextos=16711680",
                                 "Esquema=Colores Personalizados", "Perfil="})
        EXPECT_EQ(std::count(lineas.begin(), lineas.end(), esperada), 1) << esperada;
    banco.plataforma.respuestas = {Respuesta::si};
    banco.boton("Nuevo");
    EXPECT_EQ(banco.dibujo().Esquema, "Blanco y Negro");
    banco.plataforma.respuestas = {Respuesta::si};
    banco.abre("casa.bqr");
    EXPECT_EQ(banco.dibujo().Pared.modelo().LineColor, rojo);
    EXPECT_EQ(banco.dibujo().Puerta.modelo().LineColor, 0x00C000);
    EXPECT_EQ(banco.dibujo().Ventana.modelo().LineColor, 0x00C000);
    EXPECT_EQ(banco.dibujo().TextoLibre.modelo().ForeColor, 0xFF0000);
    EXPECT_EQ(banco.dibujo().Esquema, "Colores Personalizados");
    abrir([](const Colores& dialogo) { EXPECT_EQ(dialogo.optSchemaColor(), 1U); });
}

TEST_F(ColoresBoton, ElPerfilDelDibujoVuelveAlAbrirloYAlVolverAlDialogo) {
    banco.plataforma.textos = {"Playa"};
    abrir([](Colores& dialogo) {
        dialogo.elegirEsquema(2);
        dialogo.cmdLineCatColor(4, rojo);
        dialogo.cmdGuardarPerfil();
        dialogo.AplicarColores();
    });
    banco.guarda("casa.bqr");
    banco.plataforma.respuestas = {Respuesta::si};
    banco.boton("Nuevo");
    abrir([](const Colores& dialogo) { EXPECT_EQ(dialogo.cboPerfil(), ""); });
    banco.plataforma.respuestas = {Respuesta::si};
    banco.abre("casa.bqr");
    abrir([](const Colores& dialogo) {
        EXPECT_EQ(dialogo.optSchemaColor(), 2U);
        EXPECT_EQ(dialogo.cboPerfil(), "Playa");
        EXPECT_EQ(dialogo.txtLineCatColor()[4], rojo);
        EXPECT_TRUE(dialogo.chkCatColor[4]);
    });
}
