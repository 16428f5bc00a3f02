#include "apoyo/banco.h"
#include "stairs_symbols/catalogo.h"

#include <cmath>
#include <gtest/gtest.h>

namespace bosquel::apoyo {
namespace {

bool esMueble(Clase clase) {
    return clase <= Clase::MblVertedero;
}

TEST(Creacion, CadaBotonDePaletaHaceElMuebleDeSuClase) {
    for (const DatosClase& fila : todasLasClases()) {
        if (!esMueble(fila.clase)) continue;
        SCOPED_TRACE(fila.nombre);
        Banco banco;
        EXPECT_EQ(banco.crea(fila.clase), 1);
        const Situado* mueble = situado(banco.dibujo(), {fila.clase, 1});
        ASSERT_TRUE(mueble);
        EXPECT_TRUE(mueble->Visible);
        EXPECT_EQ(banco.dibujo().ElementoActual, fila.clase);
        EXPECT_EQ(banco.dibujo().IndiceActual, 1);
        EXPECT_TRUE(banco.marco().Visible);
        EXPECT_FALSE(banco.sesion().Ocupado);
    }
}

TEST(Creacion, UnBotonQueNoExisteNoHaceNada) {
    Banco banco;
    for (const int indice : {-1, 6, 100}) {
        banco.bosquel.pulsarMueble(indice);
        banco.bosquel.pulsarBaño(indice);
        banco.bosquel.pulsarCocina(indice);
        banco.bosquel.pulsarElectrico(indice);
    }
    for (const DatosClase& fila : todasLasClases())
        EXPECT_EQ(conColeccion(banco.dibujo(), fila.clase, [](const auto& una) { return una.contador; }), 1);
}

struct Simbolo {
    const char* ObjectType;
    double RectX, RectY;
};

TEST(Creacion, CadaBotonElectricoHaceSuSimbolo) {
    constexpr std::array<Simbolo, 6> simbolos{{{"Punto de Luz", 250, 250},
                                               {"Interruptor", 200, 200},
                                               {"Enchufe", 160, 180},
                                               {"Pulsador", 150, 150},
                                               {"Señal TV", 200, 200},
                                               {"Cuadro Eléctrico", 325, 165}}};
    Banco banco;
    for (int i = 0; const Simbolo& simbolo : simbolos) {
        SCOPED_TRACE(simbolo.ObjectType);
        banco.bosquel.pulsarElectrico(i++);
        const Electrico* hecho = banco.dibujo().Electrico.en(i);
        ASSERT_TRUE(hecho);
        EXPECT_EQ(hecho->ObjectType, simbolo.ObjectType);
        EXPECT_EQ(hecho->Guion, DrawObjects(simbolo.ObjectType));
        EXPECT_EQ(hecho->RectX, simbolo.RectX);
        EXPECT_EQ(hecho->RectY, simbolo.RectY);
        EXPECT_TRUE(hecho->Visible);
        EXPECT_TRUE(hecho->Resaltado);
        EXPECT_EQ(banco.dibujo().ElementoActual, Clase::Electrico);
        EXPECT_EQ(banco.dibujo().IndiceActual, i);
    }
    EXPECT_FALSE(banco.dibujo().Electrico.en(1)->Resaltado) << "another one is selected";
}

TEST(Creacion, UnSimboloQuitaElFocoAlMueble) {
    Banco banco;
    banco.crea(Clase::MblMesa);
    banco.bosquel.pulsarElectrico(0);
    EXPECT_FALSE(banco.marco().Visible);
    EXPECT_FALSE(banco.sesion().foco);
}

TEST(Creacion, LosMueblesYSimbolosSoloNacenSinHerramientaEnLaMano) {
    Banco banco;
    banco.boton("Esquina");
    EXPECT_EQ(banco.crea(Clase::MblSilla), 0);
    banco.bosquel.pulsarElectrico(0);
    EXPECT_EQ(banco.dibujo().Electrico.contador, 1);
    EXPECT_EQ(banco.crea(Clase::MblInodoro), 1);
    EXPECT_EQ(banco.crea(Clase::MblCocina), 1);
    EXPECT_EQ(banco.modo(), Modo::PrimeraPared);
}

TEST(Creacion, AparecenEnLaEsquinaDeLaParteALaVista) {
    Banco banco;
    banco.boton("Zoom");
    banco.bosquel.cambiarHScroll1(50);
    banco.bosquel.cambiarVScroll1(100);
    banco.crea(Clase::MblMesa);
    const MblMesa* mesa = banco.dibujo().MblMesa.en(1);
    EXPECT_FLOAT_EQ(mesa->Left, static_cast<float>((20000 - Banco::visorAncho) * 50 / 100));
    EXPECT_FLOAT_EQ(mesa->Top, static_cast<float>(20000 - Banco::visorAlto));
}

TEST(Creacion, EnUnaHojaMenorQueElVisorAparecenEnSuEsquina) {
    Banco banco;
    banco.sesion().HScroll1 = {.activa = false, .valor = 50};
    banco.sesion().VScroll1 = {.activa = false, .valor = 100};
    banco.crea(Clase::MblMesa);
    EXPECT_EQ(banco.dibujo().MblMesa.en(1)->Left, 0);
    EXPECT_EQ(banco.dibujo().MblMesa.en(1)->Top, 0);
}

TEST(Creacion, SonCopiasDelModelo) {
    Banco banco;
    banco.dibujo().MblSilla.modelo().AnchoSilla = 555;
    banco.dibujo().MblSilla.modelo().LineColor = rojo;
    banco.crea(Clase::MblSilla);
    EXPECT_EQ(banco.dibujo().MblSilla.en(1)->AnchoSilla, 555);
    EXPECT_EQ(banco.dibujo().MblSilla.en(1)->LineColor, rojo);
}

TEST(Creacion, QuitarElUltimoNoDevuelveSuIndice) {
    Banco banco;
    banco.crea(Clase::MblMesa);
    EXPECT_EQ(banco.crea(Clase::MblMesa), 2);
    banco.boton("Eliminar");
    EXPECT_EQ(banco.dibujo().MblMesa.en(2), nullptr);
    EXPECT_EQ(banco.crea(Clase::MblMesa), 3);
}

TEST(Creacion, ElContadorEnElUltimoIndiceNoCreaNada) {
    Banco banco;
    banco.dibujo().MblMesa.contador = 32767;
    banco.dibujo().Electrico.contador = 32767;
    banco.dibujo().TextoLibre.contador = 32767;
    banco.crea(Clase::MblMesa);
    banco.bosquel.pulsarElectrico(0);
    banco.crea(Clase::TextoLibre);
    EXPECT_EQ(banco.dibujo().MblMesa.ultimo(), 0);
    EXPECT_EQ(banco.dibujo().Electrico.ultimo(), 0);
    EXPECT_EQ(banco.dibujo().TextoLibre.ultimo(), 0);
}

TEST(Creacion, UnTextoNaceConElTamanoDelZoomYElFoco) {
    Banco banco;
    banco.boton("Zoom");
    banco.boton("Texto");
    const TextoLibre* texto = banco.dibujo().TextoLibre.en(1);
    ASSERT_TRUE(texto);
    EXPECT_EQ(texto->FontSize, 12);
    EXPECT_TRUE(texto->Visible);
    EXPECT_FLOAT_EQ(texto->Width, 100 + 60) << "an X and the air around it";
    EXPECT_FLOAT_EQ(texto->Height, 120);
    EXPECT_EQ(banco.sesion().foco, (Referencia{Clase::TextoLibre, 1}));
    EXPECT_TRUE(banco.marco().Visible);
}

TEST(Creacion, UnTextoNaceConUnTamanoFinitoAunqueElZoomSeaDesmedido) {
    Banco banco;
    banco.dibujo().FactorZoomActual = 1e308;
    const int indice = banco.crea(Clase::TextoLibre);
    EXPECT_TRUE(std::isfinite(banco.dibujo().TextoLibre.en(indice)->FontSize));
}

TEST(Creacion, UnTextoNaceTambienConUnaHerramientaEnLaMano) {
    Banco banco;
    banco.boton("Esquina");
    banco.boton("Texto");
    EXPECT_TRUE(banco.dibujo().TextoLibre.existe(1));
    EXPECT_EQ(banco.modo(), Modo::PrimeraPared);
}

}  // namespace
}  // namespace bosquel::apoyo
