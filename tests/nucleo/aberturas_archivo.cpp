#include "apoyo/aberturas_de_referencia.h"
#include "apoyo/banco.h"
#include "apoyo/dibujo_guardado.h"
#include "apoyo/idioma.h"
#include "openings/puerta_prop.h"
#include "openings/ventana_prop.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

/// A house whose openings have no value that is the model's.
void poblar(Banco& banco) {
    banco.ponMuro({.inicio = {3000.5F, 3000}, .angulo = -30});
    Ventana& ventana = banco.dibujo().Ventana.crear(1);
    banco.dibujo().Ventana.contador = 2;
    ventana.Alineacion = "Derecha";
    ventana.AnchoMuro = 212.5;
    ventana.AnchoTabique = 90.25;
    ventana.Angulo = -30;
    ventana.Distancia = 333.75;
    ventana.Estado = estadoEdicion;
    ventana.GrupoInicialPared = 5;
    ventana.Longitud = 1234.5;
    ventana.NumeroPared = 1;
    ventana.Orientacion = "Abajo";
    ventana.Tipo = "Muro";
    Puerta& puerta = banco.dibujo().Puerta.crear(3);
    banco.dibujo().Puerta.contador = 4;
    static_cast<Abertura&>(puerta) = ventana;
    puerta.Orientacion = "Arriba";
    puerta.OrientacionLateral = "Doble";
    banco.dibujo().Puerta.modelo().OrientacionLateral = "Derecha";
    banco.dibujo().Ventana.modelo().Distancia = 77.5;
}

Lineas esperadas(const std::string& coma) {
    return {"Alineacion=Derecha",  "AnchoMuro=212" + coma + "5",  "AnchoTabique=90" + coma + "25",
            "Angulo=-30",          "Distancia=333" + coma + "75", "Estado=Edicion",
            "GrupoInicialPared=5", "Longitud=1234" + coma + "5",  "NumeroPared=1"};
}

}  // namespace

TEST(AberturasArchivo, CadaSeccionTieneSusClavesEnOrdenBajoCadaIdioma) {
    for (const auto& [nombre, coma] : {std::pair{Idioma::espanol, ","}, std::pair{Idioma::ingles, "."}}) {
        const Idioma idioma(nombre);
        Banco banco;
        poblar(banco);
        banco.guarda("casa.bqr");
        const Lineas lineas = banco.lineas("casa.bqr");
        Lineas ventana = esperadas(coma), puerta = esperadas(coma);
        ventana.insert(ventana.end(), {"Orientacion=Abajo", "Tipo=Muro"});
        puerta.insert(puerta.end(), {"Orientacion=Arriba", "OrientacionLateral=Doble"});
        EXPECT_EQ(seccion(lineas, "Ventana(1)"), ventana);
        EXPECT_EQ(seccion(lineas, "Puerta(3)"), puerta);
        EXPECT_EQ(seccion(lineas, "Ventana(0)").size(), 11U);
        EXPECT_TRUE(seccion(lineas, "Puerta(1)").empty());

        const Lineas todas = cabezas(lineas);
        const auto pared = std::find(todas.begin(), todas.end(), "[Pared(0)]");
        EXPECT_EQ(Lineas(pared, std::find(pared, todas.end(), "[TextoLibre(0)]")),
                  (Lineas{"[Pared(0)]", "[Pared(1)]", "[Ventana(0)]", "[Ventana(1)]", "[Puerta(0)]",
                          "[Puerta(3)]"}));
    }
}

TEST(AberturasArchivo, AbiertasYVueltasAGuardarSonLasMismas) {
    for (const char* nombre : {Idioma::espanol, Idioma::ingles}) {
        const Idioma idioma(nombre);
        Banco banco;
        poblar(banco);
        banco.guarda("uno.bqr");
        Banco otro;
        otro.pon("uno.bqr", banco.bytes("uno.bqr"));
        otro.abre("uno.bqr");
        const double factor = otro.dibujo().FactorZoomActual;
        const Ventana& ventana = *otro.dibujo().Ventana.en(1);
        const Puerta& puerta = *otro.dibujo().Puerta.en(3);
        EXPECT_EQ(ventana.lineas, referencia(ventana, otro.pared(1), factor).lineas);
        EXPECT_EQ(puerta.lineas, referencia(puerta, otro.pared(1), factor).lineas);
        EXPECT_EQ(ventana.VentanaPick.BackColor, blanco);
        EXPECT_EQ(puerta.PuertaPick.BackColor, blanco);
        EXPECT_EQ(otro.dibujo().ElementoActual, Clase::Puerta);
        EXPECT_EQ(otro.dibujo().IndiceActual, 3);
        EXPECT_FALSE(otro.dibujo().Puerta.existe(1));
        otro.guarda("dos.bqr");
        EXPECT_EQ(otro.bytes("dos.bqr"), enLineas(trasAbrir(banco.lineas("uno.bqr"))));
    }
}

TEST(AberturasArchivo, UnAnchoDeMenosMilEsUnaSeccionQueNoEsta) {
    const Idioma idioma(Idioma::espanol);
    Banco banco;
    banco.pon("a.bqr", enLineas({"[Cabecera]", "NumVentana=4", "NumPuerta=3", "[Ventana(1)]",
                                 "AnchoMuro=-1000", "[Ventana(2)]", "Longitud=500", "[Ventana(3)]",
                                 "AnchoMuro=nada", "[Puerta(2)]", "AnchoMuro=-1000,5"}));
    banco.abre("a.bqr");
    EXPECT_FALSE(banco.dibujo().Ventana.existe(1));
    EXPECT_FALSE(banco.dibujo().Ventana.existe(2));
    ASSERT_TRUE(banco.dibujo().Ventana.existe(3));
    EXPECT_EQ(banco.dibujo().Ventana.en(3)->AnchoMuro, 200);
    ASSERT_TRUE(banco.dibujo().Puerta.existe(2));
    EXPECT_EQ(banco.dibujo().Puerta.en(2)->AnchoMuro, -1000.5);
}

TEST(AberturasArchivo, SinParedOConUnNumeroSinSentidoNiDibujanNiCaen) {
    for (const char* numero : {"9", "0", "-3", "32767", "99999", "mil"}) {
        Banco banco;
        banco.pon("a.bqr",
                  enLineas({"[Cabecera]", "NumPared=2", "NumVentana=2", "NumPuerta=2", "[Ventana(1)]",
                            "AnchoMuro=200", std::string("NumeroPared=") + numero, "Orientacion=Dentro",
                            "Alineacion=Ninguna", "Estado=Edicion", "[Puerta(1)]", "AnchoMuro=200",
                            std::string("NumeroPared=") + numero, "OrientacionLateral=Giratoria"}));
        banco.abre("a.bqr");
        ASSERT_TRUE(banco.dibujo().Ventana.existe(1)) << numero;
        EXPECT_FALSE(banco.dibujo().Ventana.en(1)->lineas[0].Visible);
        EXPECT_FALSE(banco.dibujo().Puerta.en(1)->PuertaPick.Visible);
        banco.ponMuro();
        banco.boton("Zoom");
        banco.plataforma.alAbrirPuerta = [](PuertaProp& dialogo) { dialogo.Aplicar(); };
        banco.boton("Definir");
        banco.arrastra(banco.medio(2), {4000, 4000});
        banco.dibujo().ElementoActual = Clase::Ventana;
        banco.dibujo().IndiceActual = 1;
        banco.plataforma.alAbrirVentana = [](VentanaProp& dialogo) { dialogo.Aplicar(); };
        banco.boton("Definir");
        banco.boton("Eliminar");
        EXPECT_FALSE(banco.dibujo().Ventana.existe(1));
        banco.guarda("b.bqr");
        EXPECT_EQ(seccion(banco.lineas("b.bqr"), "Puerta(1)").size(), 11U);
    }
}

TEST(AberturasArchivo, LaCanceladaSeColocaAlAbrirElArchivo) {
    Banco banco;
    banco.ponMuro();
    banco.boton("Ventana");
    banco.clic(banco.final(1));
    EXPECT_FALSE(banco.dibujo().Ventana.en(1)->lineas[0].Visible);
    banco.guarda("a.bqr");
    banco.abre("a.bqr");
    EXPECT_EQ(banco.dibujo().Ventana.en(1)->Estado, estadoNuevo);
    EXPECT_TRUE(banco.dibujo().Ventana.en(1)->lineas[0].Visible);
}
