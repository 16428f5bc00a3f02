#include "stairs_symbols/electrico_prop.h"

#include "apoyo/idioma.h"
#include "furnishing/recuadro.h"
#include "stairs_symbols/catalogo.h"

#include <gtest/gtest.h>
#include <vector>

using namespace bosquel;
using apoyo::Idioma;

namespace {

struct PruebaElectricoProp : testing::Test {
    Idioma idioma{Idioma::espanol};
    Dibujo dibujo;

    PruebaElectricoProp() {
        dibujo.Electrico.contador = 2;
        Electrico& uno = dibujo.Electrico.crear(1);
        ponerSimbolo(uno, "Enchufe");
        uno.RectX = 160;
        uno.RectY = 180;
        uno.Angle = 30;
        uno.LineColor = 0x00FF00;
        uno.Left = 500;
        uno.Top = 700;
        uno.Visible = true;
    }

    Electrico& electrico() { return *dibujo.Electrico.en(1); }
    ElectricoProp abrir() { return {dibujo, 1}; }
};

}  // namespace

using ElectricoPropAbrir = PruebaElectricoProp;
using ElectricoPropCambios = PruebaElectricoProp;
using ElectricoPropAplicar = PruebaElectricoProp;

TEST_F(ElectricoPropAbrir, CadaSimboloTieneSuTituloYSusOpciones) {
    struct Caso {
        std::string_view simbolo, titulo;
        std::vector<std::string_view> opciones;
        int opcion;
    };
    const std::vector<std::string_view> llaves{"Interruptor", "Conmutador"};
    const std::vector<std::string_view> enchufes{"Enchufe", "Enchufe de Fuerza", "Enchufe Trifásico"};
    const std::vector<std::string_view> senales{"Señal TV", "Señal Teléfono"};
    for (const auto& [simbolo, titulo, opciones, opcion] :
         {Caso{"Punto de Luz", "Propiedades Punto de Luz", {}, -1},
          Caso{"Pulsador", "Propiedades Pulsador", {}, -1},
          Caso{"Cuadro Eléctrico", "Propiedades Cuadro Eléctrico", {}, -1},
          Caso{"Interruptor", "Propiedades Llave Interruptor", llaves, 0},
          Caso{"Conmutador", "Propiedades Llave Interruptor", llaves, 1},
          Caso{"Enchufe", "Propiedades Toma de Corriente", enchufes, 0},
          Caso{"Enchufe de Fuerza", "Propiedades Toma de Corriente", enchufes, 1},
          Caso{"Enchufe Trifásico", "Propiedades Toma de Corriente", enchufes, 2},
          Caso{"Señal TV", "Propiedades Toma de Señal", senales, 0},
          Caso{"Señal Teléfono", "Propiedades Toma de Señal", senales, 1},
          Caso{"Desconocido", "Propiedades", {}, -1}}) {
        electrico().ObjectType = simbolo;
        const ElectricoProp dialogo = abrir();
        EXPECT_EQ(dialogo.Caption(), titulo);
        EXPECT_EQ(std::vector(dialogo.opt().begin(), dialogo.opt().end()), opciones);
        EXPECT_EQ(dialogo.opcion(), opcion) << simbolo;
    }
}

TEST_F(ElectricoPropAbrir, MuestraElAnguloYElColorYLaVistaPreviaEsIgual) {
    electrico().Angle = 22.5;
    for (const auto& [nombre, texto] : {std::pair{Idioma::espanol, "22,5"}, {Idioma::ingles, "22.5"}}) {
        const Idioma puesto(nombre);
        const ElectricoProp dialogo = abrir();
        EXPECT_EQ(dialogo.Angulo.TxtAngulo(), texto);
        EXPECT_EQ(dialogo.txtLineColor, 0x00FF00);
        const Electrico& vista = dialogo.preview();
        EXPECT_EQ(vista.ObjectType, "Enchufe");
        EXPECT_EQ(vista.Guion, DrawObjects("Enchufe"));
        EXPECT_EQ(vista.RectX, 160);
        EXPECT_EQ(vista.RectY, 180);
        EXPECT_EQ(vista.Angle, 22.5);
        EXPECT_EQ(vista.LineColor, 0x00FF00);
    }
}

TEST_F(ElectricoPropAbrir, SeVeConSuMarcoCentrado) {
    for (const double zoom : {0.5, 1.0, 1.5}) {
        dibujo.FactorZoomActual = zoom;
        const ElectricoProp dialogo = abrir();
        Dibujo marco;
        marco.FactorZoomActual = zoom;
        marco.Electrico.crear(1) = dialogo.preview();
        EXPECT_EQ(recuadroDe(marco, Clase::Electrico, 1),
                  (Recuadro{-80 * zoom, -90 * zoom, 160 * zoom, 180 * zoom}));
        EXPECT_EQ(dialogo.FactorZoomActual(), zoom);
    }
}

TEST_F(ElectricoPropAbrir, ElQueNoExisteYElModeloDanUnDialogoQueNoCambiaNada) {
    for (const int indice : {0, 7}) {
        ElectricoProp dialogo(dibujo, indice);
        EXPECT_EQ(dialogo.Angulo.TxtAngulo(), "");
        dialogo.Angulo.escribir("45");
        dialogo.refrescar();
        dialogo.Aplicar();
    }
    EXPECT_EQ(dibujo.Electrico.modelo().Angle, 0);
    EXPECT_FALSE(dibujo.Electrico.existe(7));
    EXPECT_TRUE(dibujo.cambiados.empty());
}

TEST_F(ElectricoPropCambios, UnaOpcionCambiaElSimboloConSuGuion) {
    ElectricoProp dialogo = abrir();
    for (const int opcion : {1, 2, 0}) {
        dialogo.elegir(opcion);
        const std::string simbolo(dialogo.opt()[static_cast<std::size_t>(opcion)]);
        EXPECT_EQ(dialogo.opcion(), opcion);
        EXPECT_EQ(dialogo.preview().ObjectType, simbolo);
        EXPECT_EQ(dialogo.preview().Guion, DrawObjects(simbolo));
        EXPECT_EQ(electrico().ObjectType, "Enchufe") << "nothing is written before it is applied";
    }
    for (const int ninguna : {-1, 3}) {
        dialogo.elegir(ninguna);
        EXPECT_EQ(dialogo.opcion(), 0);
    }
}

TEST_F(ElectricoPropCambios, ElAnguloSoloCambiaConUnNumero) {
    ElectricoProp dialogo = abrir();
    for (const auto& [texto, angulo] :
         {std::pair{"22,5", 22.5}, {",", 22.5}, {"0.25", 0.25}, {"400", 360.0}, {"", 0.0}}) {
        dialogo.Angulo.escribir(texto);
        dialogo.refrescar();
        EXPECT_EQ(dialogo.preview().Angle, angulo) << texto;
    }
}

TEST_F(ElectricoPropCambios, ElColorEsElDeLaMuestra) {
    ElectricoProp dialogo = abrir();
    dialogo.txtLineColor = rojo;
    dialogo.refrescar();
    EXPECT_EQ(dialogo.preview().LineColor, rojo);
}

TEST_F(ElectricoPropAplicar, LoElegidoLlegaAlSimboloEnSuSitio) {
    ElectricoProp dialogo = abrir();
    dialogo.elegir(2);
    dialogo.Angulo.cmd90Plus(0);
    dialogo.txtLineColor = rojo;
    dialogo.refrescar();
    dialogo.Aplicar();
    EXPECT_EQ(electrico().ObjectType, "Enchufe Trifásico");
    EXPECT_EQ(electrico().Guion, DrawObjects("Enchufe Trifásico"));
    EXPECT_EQ(electrico().RectX, 160);
    EXPECT_EQ(electrico().RectY, 180);
    EXPECT_EQ(electrico().Angle, 300);
    EXPECT_EQ(electrico().LineColor, rojo);
    EXPECT_EQ(electrico().Left, 500);
    EXPECT_EQ(electrico().Top, 700);
    EXPECT_EQ(dibujo.Electrico.modelo().ObjectType, "Punto de Luz");
    EXPECT_EQ(dibujo.cambiados, (std::vector<Referencia>{{Clase::Electrico, 1}}));
}

TEST_F(ElectricoPropAplicar, SinAplicarQuedaComoEstaba) {
    {
        ElectricoProp dialogo = abrir();
        dialogo.elegir(1);
        dialogo.Angulo.escribir("90");
        dialogo.refrescar();
    }
    EXPECT_EQ(electrico().ObjectType, "Enchufe");
    EXPECT_EQ(electrico().Angle, 30);
    EXPECT_TRUE(dibujo.cambiados.empty());
}
