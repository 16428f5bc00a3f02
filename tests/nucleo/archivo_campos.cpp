#include "apoyo/banco.h"
#include "apoyo/dibujo_guardado.h"
#include "apoyo/idioma.h"
#include "stairs_symbols/catalogo.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace bosquel;
using apoyo::Banco;
using apoyo::cabezas;
using apoyo::enLineas;
using apoyo::Idioma;
using apoyo::Lineas;
using apoyo::seccion;
using apoyo::valor;

// What the keys mean: which field each one reaches, and what the file does beside them.

namespace {

/// Opens a drawing that is given as its lines.
void abrir(Banco& banco, const Lineas& lineas) {
    banco.pon("leido.bqr", enLineas(lineas));
    banco.abre("leido.bqr");
}

template <class T>
const T& elementoUno(const Coleccion<T>& coleccion) {
    const T* elemento = coleccion.en(1);
    if (!elemento) throw std::out_of_range("no element 1");
    return *elemento;
}

Lineas guardar(Banco& banco) {
    banco.guarda("guardado.bqr");
    return banco.lineas("guardado.bqr");
}

}  // namespace

TEST(ArchivoCampos, LasClavesComunesLleganASuCampo) {
    Banco banco;
    abrir(banco, {"[Cabecera]", "NumSilla=2", "[Silla(1)]", "Left=10", "Top=20", "FactorZOOM=1.5",
                  "Orientacion=Norte", "Visible=Verdadero", "LineColor=3", "BackColor=4"});
    const MblSilla& silla = elementoUno(banco.dibujo().MblSilla);
    EXPECT_EQ(silla.Left, 10.0F);
    EXPECT_EQ(silla.Top, 20.0F);
    EXPECT_EQ(silla.FactorZOOM, 1.5);
    EXPECT_EQ(silla.Orientacion, "Norte");
    EXPECT_TRUE(silla.Visible);
    EXPECT_EQ(silla.LineColor, 3);
    EXPECT_EQ(silla.BackColor, 4);
}

TEST(ArchivoCampos, LasPropiasDeLosMueblesLleganASuCampo) {
    Banco banco;
    abrir(banco, {"[Cabecera]",
                  "NumMesa=2",
                  "NumSilla=2",
                  "NumArmario=2",
                  "NumAsiento=2",
                  "NumBa\xF1"
                  "era=2",
                  "NumFregadero=2",
                  "[Mesa(1)]",
                  "AltoSilla=11",
                  "AnchoSilla=12",
                  "MesaDimX=13",
                  "MesaDimY=14",
                  "ColocacionSillas=2UD",
                  "[Silla(1)]",
                  "AnchoSilla=15",
                  "[Armario(1)]",
                  "DimX=16",
                  "DimY=17",
                  "[Asiento(1)]",
                  "AnchoAsiento=18",
                  "FondoAsiento=19",
                  "NumeroAsientos=20",
                  "[Ba\xF1"
                  "era(1)]",
                  "Longitud=21",
                  "[Fregadero(1)]",
                  "Escurridor=Falso",
                  "NumeroSenos=22"});
    const Dibujo& dibujo = banco.dibujo();
    const MblMesa& mesa = elementoUno(dibujo.MblMesa);
    EXPECT_EQ(mesa.AltoSilla, 11);
    EXPECT_EQ(mesa.AnchoSilla, 12);
    EXPECT_EQ(mesa.MesaDimX, 13);
    EXPECT_EQ(mesa.MesaDimY, 14);
    EXPECT_EQ(mesa.ColocacionSillas, "2UD");
    EXPECT_EQ(elementoUno(dibujo.MblSilla).AnchoSilla, 15);
    EXPECT_EQ(elementoUno(dibujo.MblArmario).DimX, 16);
    EXPECT_EQ(elementoUno(dibujo.MblArmario).DimY, 17);
    const MblAsiento& asiento = elementoUno(dibujo.MblAsiento);
    EXPECT_EQ(asiento.AnchoAsiento, 18);
    EXPECT_EQ(asiento.FondoAsiento, 19);
    EXPECT_EQ(asiento.NumeroAsientos, 20);
    EXPECT_EQ(elementoUno(dibujo.MblBañera).Longitud, 21);
    EXPECT_EQ(elementoUno(dibujo.MblFregadero).Escurridor, 0);
    EXPECT_EQ(elementoUno(dibujo.MblFregadero).NumeroSenos, 22);
}

TEST(ArchivoCampos, LasDeParedesYAberturasLleganASuCampo) {
    Banco banco;
    abrir(banco, {"[Cabecera]",
                  "NumPared=2",
                  "NumVentana=2",
                  "NumPuerta=2",
                  "[Pared(1)]",
                  "AnchoMuro=11",
                  "AnchoTabique=12",
                  "Angulo=0",
                  "InicialX=14",
                  "InicialY=15",
                  "Longitud=16",
                  "NumeroGrupo=17",
                  "Tipo=Muro",
                  "Estado=Edicion",
                  "Linea1X1=21",
                  "Linea1Y1=22",
                  "Linea1X2=23",
                  "Linea1Y2=24",
                  "Linea3X1=25",
                  "Linea3Y1=26",
                  "Linea3X2=27",
                  "Linea3Y2=28",
                  "Visible1=Falso",
                  "[Ventana(1)]",
                  "Alineacion=Derecha",
                  "AnchoMuro=31",
                  "AnchoTabique=32",
                  "Angulo=33",
                  "Distancia=34",
                  "Estado=Edicion",
                  "GrupoInicialPared=35",
                  "Longitud=36",
                  "NumeroPared=37",
                  "Orientacion=Abajo",
                  "Tipo=Muro",
                  "[Puerta(1)]",
                  "AnchoMuro=41",
                  "OrientacionLateral=Doble"});
    const Pared& pared = banco.pared(1);
    EXPECT_EQ(pared.AnchoMuro, 11);
    EXPECT_EQ(pared.AnchoTabique, 12);
    EXPECT_EQ(pared.Longitud, 16);
    EXPECT_EQ(pared.NumeroGrupo, 17);
    EXPECT_EQ(pared.lineas[0], (Segmento{21, 22, 23, 24, true}));
    EXPECT_EQ(pared.lineas[2], (Segmento{25, 26, 27, 28, true}));
    EXPECT_EQ(pared.lineas[1], (Segmento{21, 22, 25, 26, false}));
    EXPECT_EQ(pared.lineas[3], (Segmento{23, 24, 27, 28, true}));
    const Ventana& ventana = elementoUno(banco.dibujo().Ventana);
    EXPECT_EQ(ventana.Alineacion, "Derecha");
    EXPECT_EQ(ventana.AnchoMuro, 31);
    EXPECT_EQ(ventana.AnchoTabique, 32);
    EXPECT_EQ(ventana.Angulo, 33);
    EXPECT_EQ(ventana.Distancia, 34);
    EXPECT_EQ(ventana.Estado, "Edicion");
    EXPECT_EQ(ventana.GrupoInicialPared, 35);
    EXPECT_EQ(ventana.Longitud, 36);
    EXPECT_EQ(ventana.NumeroPared, 37);
    EXPECT_EQ(ventana.Orientacion, "Abajo");
    EXPECT_EQ(ventana.Tipo, "Muro");
    EXPECT_EQ(elementoUno(banco.dibujo().Puerta).OrientacionLateral, "Doble");
}

TEST(ArchivoCampos, LasDeEscalerasLleganASuCampo) {
    Banco banco;
    abrir(banco,
          {"[Cabecera]", "NumEscalera=1", "[Escalera(1)]", "Angle=11", "Stairs=3", "StairEye=13",
           "WidthSteps=14", "WidthStair1=15", "WidthStair2=16", "WidthStair3=17", "StepsStair1=18",
           "StepsStair2=19", "StepsStair3=20", "RailingSide1=True", "RailingSide2=False", "RailingSide3=1"});
    const Escalera& escalera = elementoUno(banco.dibujo().Escalera);
    EXPECT_EQ(escalera.Angle, 11);
    EXPECT_EQ(escalera.Stairs, 3);
    EXPECT_EQ(escalera.StairEye, 13);
    EXPECT_EQ(escalera.WidthSteps, 14);
    EXPECT_EQ(escalera.WidthStair, (std::array{15, 16, 17}));
    EXPECT_EQ(escalera.StepsStair, (std::array{18, 19, 20}));
    EXPECT_EQ(escalera.RailingSide, (std::array{true, false, true}));
}

TEST(ArchivoCampos, UnSimboloRecibeElGuionDeSuNombre) {
    Banco banco;
    abrir(banco, {"[Cabecera]", "NumElectrico=3", "[Electrico(0)]", "ObjectType=Pulsador", "[Electrico(1)]",
                  "ObjectType=Enchufe", "RectX=160", "RectY=180", "Angle=90", "[Electrico(2)]",
                  "ObjectType=Lo que sea"});
    const Electrico& enchufe = elementoUno(banco.dibujo().Electrico);
    EXPECT_EQ(enchufe.ObjectType, "Enchufe");
    EXPECT_EQ(enchufe.Guion, DrawObjects("Enchufe"));
    EXPECT_EQ(enchufe.RectX, 160);
    EXPECT_EQ(enchufe.RectY, 180);
    EXPECT_EQ(enchufe.Angle, 90);
    EXPECT_EQ(banco.dibujo().Electrico.modelo().Guion, DrawObjects("Pulsador"));
    EXPECT_EQ(banco.dibujo().Electrico.en(2)->Guion, "");
    EXPECT_EQ(banco.dibujo().Electrico.en(3)->Guion, DrawObjects("Pulsador"));
}

TEST(ArchivoCampos, UnTextoTieneElCuerpoDelZoomSuCajaYSeVe) {
    Banco banco;
    abrir(banco, {"[Cabecera]", "FactorZoomActual=1.5", "NumTexto=3", "ColorTextos=255", "[TextoLibre(0)]",
                  "Left=7", "Text=modelo", "[TextoLibre(1)]", "Left=100", "Top=200", "Text=Sal\xF3n"});
    const TextoLibre& texto = elementoUno(banco.dibujo().TextoLibre);
    EXPECT_EQ(texto.Left, 100.0F);
    EXPECT_EQ(texto.Top, 200.0F);
    EXPECT_EQ(texto.Text, "Salón");
    EXPECT_EQ(texto.FontSize, 18);
    EXPECT_EQ(texto.ForeColor, 255);
    EXPECT_EQ(texto.Width, 760.0F) << "seven bytes of a hundred units, and sixty";
    EXPECT_EQ(texto.Height, 180.0F);
    EXPECT_TRUE(texto.Visible);
    EXPECT_FALSE(banco.dibujo().TextoLibre.existe(2));
    EXPECT_FALSE(banco.dibujo().TextoLibre.modelo().Visible);
    EXPECT_EQ(banco.dibujo().TextoLibre.modelo().Text, "modelo");
}

TEST(ArchivoCampos, UnModeloVisibleNoDescubreLoOculto) {
    Banco banco;
    abrir(banco, {"[Cabecera]", "NumMesa=2", "NumElectrico=1", "[Mesa(0)]", "Visible=Verdadero",
                  "[Electrico(0)]", "Visible=Verdadero", "[Escalera(0)]", "Visible=Verdadero"});
    EXPECT_FALSE(elementoUno(banco.dibujo().MblMesa).Visible);
    EXPECT_FALSE(elementoUno(banco.dibujo().Electrico).Visible);
    EXPECT_FALSE(elementoUno(banco.dibujo().Escalera).Visible);
    EXPECT_EQ(valor(guardar(banco), "Mesa(0)", "Visible"), "Verdadero");
}

TEST(ArchivoCampos, UnaMesaOcultaTieneSuLugarYSusMedidasFijas) {
    Banco banco;
    abrir(banco, {"[Cabecera]", "FactorZoomActual=1.5", "NumMesa=3", "NumSilla=3", "[Mesa(0)]", "Left=70",
                  "MesaDimX=50", "FactorZOOM=1", "[Mesa(1)]", "Visible=Verdadero", "[Silla(0)]", "Left=70",
                  "AnchoSilla=50"});
    const MblMesa& mesa = *banco.dibujo().MblMesa.en(2);
    EXPECT_EQ(mesa.Left, 0.0F);
    EXPECT_EQ(mesa.Top, 0.0F);
    EXPECT_EQ(mesa.MesaDimX, 1000);
    EXPECT_EQ(mesa.MesaDimY, 1000);
    EXPECT_EQ(mesa.FactorZOOM, 1.5);
    EXPECT_FALSE(mesa.Visible);
    EXPECT_TRUE(elementoUno(banco.dibujo().MblMesa).Visible);
    const MblSilla& silla = *banco.dibujo().MblSilla.en(2);
    EXPECT_EQ(silla.Left, 70.0F);
    EXPECT_EQ(silla.AnchoSilla, 50);
    EXPECT_EQ(silla.LineColor, negro);
    EXPECT_FALSE(silla.Visible);
}

TEST(ArchivoCampos, ElEscurridorEsUnoOCero) {
    for (const auto& [texto, numero] :
         {std::pair{"Verdadero", 1}, {"Falso", 0}, {"verdadero", 0}, {"1", 0}, {"", 1}}) {
        Banco banco;
        abrir(banco, {"[Cabecera]", "NumFregadero=2", "[Fregadero(0)]", "Escurridor=Falso", "[Fregadero(1)]",
                      std::string("Escurridor=") + texto});
        EXPECT_EQ(elementoUno(banco.dibujo().MblFregadero).Escurridor, numero) << texto;
    }
    Banco banco;
    banco.dibujo().MblFregadero.crear(1).Escurridor = 7;
    banco.dibujo().MblFregadero.contador = 2;
    EXPECT_EQ(valor(guardar(banco), "Fregadero(1)", "Escurridor"), "Falso");
}

TEST(ArchivoCampos, LasBarandasSeLeenEnCualquieraDeLosDosIdiomas) {
    for (const char* nombre : {Idioma::espanol, Idioma::ingles}) {
        const Idioma idioma(nombre);
        for (const auto& [texto, baranda] : {std::pair{"Verdadero", true},
                                             {"VERDADERO", true},
                                             {"True", true},
                                             {"tRUE", true},
                                             {"1", true},
                                             {"-1", true},
                                             {"0", false},
                                             {"Falso", false},
                                             {"falso", false},
                                             {"False", false},
                                             {"FALSE", false},
                                             {"otra", true}}) {
            Banco banco;
            abrir(banco, {"[Cabecera]", "[Escalera(0)]", "RailingSide1=Verdadero", "[Escalera(1)]",
                          std::string("RailingSide1=") + texto});
            EXPECT_EQ(elementoUno(banco.dibujo().Escalera).RailingSide[0], baranda) << nombre << texto;
        }
    }
}

TEST(ArchivoCampos, ElAnguloDeUnSimboloSePierdeDondeElPuntoAgrupa) {
    for (const auto& [nombre, vuelve] : {std::pair{Idioma::espanol, 225.0}, {Idioma::ingles, 22.5}}) {
        const Idioma idioma(nombre);
        Banco banco;
        banco.dibujo().Electrico.crear(1).Angle = 22.5;
        banco.dibujo().Electrico.contador = 2;
        EXPECT_EQ(valor(guardar(banco), "Electrico(1)", "Angle"), "22.5");
        banco.abre("guardado.bqr");
        EXPECT_EQ(elementoUno(banco.dibujo().Electrico).Angle, vuelve);
    }
}

TEST(ArchivoCampos, UnAnguloQueFaltaEsElDelModeloEnteroYConSuFraccion) {
    const Idioma idioma(Idioma::espanol);
    Banco banco;
    abrir(banco, {"[Cabecera]", "NumElectrico=1", "[Electrico(0)]", "Angle=22,5"});
    EXPECT_EQ(elementoUno(banco.dibujo().Electrico).Angle, 22.5);
}

TEST(ArchivoCampos, UnaComaEnElZoomDeUnMuebleAgrupaDondeElIdiomaPonePunto) {
    for (const auto& [nombre, factor] : {std::pair{Idioma::espanol, 1.5}, {Idioma::ingles, 15.0}}) {
        const Idioma idioma(nombre);
        Banco banco;
        abrir(banco, {"[Cabecera]", "NumCama90=2", "[Cama90(1)]", "FactorZOOM=1,5"});
        EXPECT_EQ(elementoUno(banco.dibujo().MblCama90).FactorZOOM, factor);
    }
}

TEST(ArchivoCampos, LosEnterosSeRedondeanAlParYLosQueNoCabenNoCuentan) {
    const Idioma idioma(Idioma::espanol);
    Banco banco;
    abrir(banco, {"[Cabecera]", "NumEscalera=1", "[Escalera(0)]", "Angle=7", "Stairs=2", "[Escalera(1)]",
                  "Angle=32768", "Stairs=2147483648", "StairEye=2,5", "WidthSteps=3,5", "WidthStair1=-0,5",
                  "LineColor=4294967296"});
    const Escalera& escalera = elementoUno(banco.dibujo().Escalera);
    EXPECT_EQ(escalera.Angle, 7);
    EXPECT_EQ(escalera.Stairs, 2);
    EXPECT_EQ(escalera.StairEye, 2);
    EXPECT_EQ(escalera.WidthSteps, 4);
    EXPECT_EQ(escalera.WidthStair[0], 0);
}

TEST(ArchivoCampos, UnTextoSeCortaA254LetrasYEnSuPrimeraLinea) {
    Banco banco;
    TextoLibre& largo = banco.dibujo().TextoLibre.crear(1);
    for (int i = 0; i < 300; ++i)
        largo.Text += "ñ";
    banco.dibujo().TextoLibre.crear(2).Text = "primera\r\nsegunda";
    banco.dibujo().TextoLibre.crear(3).Text = "tercera";
    banco.dibujo().TextoLibre.contador = 4;
    banco.guarda("textos.bqr");
    banco.abre("textos.bqr");
    EXPECT_EQ(banco.dibujo().TextoLibre.en(1)->Text.size(), 2 * 254U);
    EXPECT_EQ(banco.dibujo().TextoLibre.en(2)->Text, "primera");
    EXPECT_EQ(banco.dibujo().TextoLibre.en(3)->Text, "tercera");
}

TEST(ArchivoCampos, UnTextoAMenosMilDelBordeCuentaComoAusente) {
    for (const char* Left : {"-1000", "-1E+03", ""}) {
        Banco banco;
        abrir(banco,
              {"[Cabecera]", "NumTexto=2", "[TextoLibre(1)]", std::string("Left=") + Left, "Text=hola"});
        EXPECT_FALSE(banco.dibujo().TextoLibre.existe(1)) << Left;
        EXPECT_EQ(banco.dibujo().TextoLibre.contador, 2);
    }
}

TEST(ArchivoCampos, UnMuebleAMenosMilDelBordeEsUnoMas) {
    Banco banco;
    abrir(banco, {"[Cabecera]", "NumDucha=2", "[Ducha(1)]", "Left=-1000", "Visible=Verdadero"});
    EXPECT_EQ(elementoUno(banco.dibujo().MblDucha).Left, -1000.0F);
    EXPECT_TRUE(elementoUno(banco.dibujo().MblDucha).Visible);
}

TEST(ArchivoCampos, UnDibujoNuevoTieneElModeloDeCadaClaseEnSuOrden) {
    Banco banco;
    Lineas esperadas{"[Cabecera]", "[Colores]"};
    for (const char* clase : {"Mesa",
                              "Silla",
                              "Cama90",
                              "Cama130",
                              "Armario",
                              "Asiento",
                              "Inodoro",
                              "Lavabo",
                              "Bidet",
                              "Ba\xF1"
                              "era",
                              "Ducha",
                              "Urinario",
                              "Cocina",
                              "Nevera",
                              "Fregadero",
                              "Lavadora",
                              "Lavadero",
                              "Vertedero",
                              "Pared",
                              "Ventana",
                              "Puerta",
                              "TextoLibre",
                              "Escalera",
                              "Electrico"})
        esperadas.push_back("[" + std::string(clase) + "(0)]");
    EXPECT_EQ(cabezas(guardar(banco)), esperadas);
}

TEST(ArchivoCampos, SinVentanasSeEscribeElModeloDeLaVentana) {
    Banco banco;
    const Lineas lineas = guardar(banco);
    EXPECT_EQ(valor(lineas, "Cabecera", "NumVentana"), "1");
    EXPECT_EQ(seccion(lineas, "Ventana(0)").size(), 11U);
    EXPECT_TRUE(seccion(lineas, "Ventana(1)").empty());
}

TEST(ArchivoCampos, LaEscaleraDelContadorSeEscribeSiExiste) {
    Banco banco;
    banco.dibujo().Escalera.crear(1);
    Lineas lineas = guardar(banco);
    EXPECT_EQ(seccion(lineas, "Escalera(1)").size(), 19U);
    EXPECT_EQ(valor(lineas, "Cabecera", "NumEscalera"), "1");
    banco.dibujo().Escalera.crear(2).Visible = true;
    EXPECT_TRUE(seccion(guardar(banco), "Escalera(2)").empty());
    banco.dibujo().Escalera.contador = 2;
    banco.guarda("a.bqr");
    banco.abre("a.bqr");
    EXPECT_TRUE(banco.dibujo().Escalera.en(2)->Visible);
    EXPECT_EQ(banco.dibujo().Escalera.contador, 2);
}

TEST(ArchivoCampos, AbrirAnadeUnaEscaleraYUnSimboloOcultos) {
    Banco banco;
    banco.guarda("a.bqr");
    EXPECT_EQ(valor(banco.lineas("a.bqr"), "Cabecera", "NumElectrico"), "1");
    for (int vuelta = 1; vuelta <= 3; ++vuelta) {
        banco.abre("a.bqr");
        EXPECT_EQ(banco.dibujo().Electrico.contador, vuelta + 1);
        EXPECT_EQ(banco.dibujo().Electrico.ultimo(), vuelta);
        for (int i = 1; i <= vuelta; ++i)
            EXPECT_FALSE(banco.dibujo().Electrico.en(i)->Visible);
        EXPECT_EQ(banco.dibujo().Escalera.ultimo(), 1);
        EXPECT_EQ(banco.dibujo().Escalera.contador, 1);
        EXPECT_FALSE(elementoUno(banco.dibujo().Escalera).Visible);
        banco.guarda("a.bqr");
        EXPECT_EQ(valor(banco.lineas("a.bqr"), "Electrico(" + std::to_string(vuelta) + ")", "Visible"),
                  "Falso");
        EXPECT_EQ(valor(banco.lineas("a.bqr"), "Escalera(1)", "Visible"), "Falso");
    }
}

TEST(ArchivoCampos, ElNumBidetRepetidoEsUnaSolaLinea) {
    Banco banco;
    banco.dibujo().MblBidet.contador = 4;
    const Lineas cabecera = seccion(guardar(banco), "Cabecera");
    EXPECT_EQ(std::count(cabecera.begin(), cabecera.end(), "NumBidet=4"), 1);
    EXPECT_EQ(cabecera[15], "NumBidet=4");
    EXPECT_EQ(cabecera[16], "NumLavabo=1");
}

TEST(ArchivoCampos, ElSiguienteMuebleSigueAlContador) {
    Banco banco;
    abrir(banco, {"[Cabecera]", "NumMesa=3", "[Mesa(2)]", "Visible=Verdadero"});
    EXPECT_EQ(banco.dibujo().MblMesa.contador, 3);
    banco.dibujo().MblMesa.quitar(1);
    const Lineas lineas = guardar(banco);
    EXPECT_TRUE(seccion(lineas, "Mesa(1)").empty());
    EXPECT_FALSE(seccion(lineas, "Mesa(2)").empty());
    EXPECT_EQ(valor(lineas, "Cabecera", "NumMesa"), "3");
}
