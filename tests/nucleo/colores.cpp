#include "appearance/colores.h"

#include "apoyo/prueba_colores.h"

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

/// Two profiles: one whole, and one of three colours.
constexpr const char* dosPerfiles =
    "[Carga]\r\nNumeroPerfiles=2\r\nPerfil1=Mío\r\nPerfil2=Corto\r\n"
    "\r\n[PerfilesVarios]\r\nMío=1#2#3#4#5\r\nCorto=10#20#30\r\n"
    "\r\n[PerfilesLineas]\r\nMío=100#101#102#103#104#105#106#107#108#109#110#111#112#113#114#115#116#117\r\n"
    "\r\n[PerfilesFondos]\r\nMío=200#201#202#203#204#205#206#207#208#209#210#211\r\n";

/// In the bytes of the file.
std::string enDisco(std::string texto) {
    for (auto i = texto.find("í"); i != std::string::npos; i = texto.find("í"))
        texto.replace(i, 2, "\xED");
    return texto;
}

struct ColoresConPerfiles : PruebaColores {
    ColoresConPerfiles() { ponFichero(enDisco(dosPerfiles)); }
};

struct Contados {
    std::ptrdiff_t tipos, categorias;
    bool operator==(const Contados&) const = default;
};

Contados marcadas(const Colores& dialogo) {
    return {std::count(dialogo.chkColores.begin(), dialogo.chkColores.end(), true),
            std::count(dialogo.chkCatColor.begin(), dialogo.chkCatColor.end(), true)};
}

/// The boxes of exactly these are ticked.
template <class Grupo>
void esperarMarcadas(const Grupo& casillas, std::size_t desde, std::size_t hasta) {
    for (std::size_t i = 0; i < casillas.size(); ++i)
        EXPECT_EQ(casillas[i], i >= desde && i < hasta) << i;
}

void esperarConstantes(const Colores& dialogo) {
    EXPECT_TRUE(todos(dialogo.txtLineColor(), colorTextoVentana));
    EXPECT_TRUE(todos(dialogo.txtBackColor(), colorFondoVentana));
    EXPECT_TRUE(todos(dialogo.txtLineCatColor(), colorTextoVentana, 3));
}

void esperarMio(const Colores& dialogo) {
    for (std::size_t i = 0; i < 18; ++i)
        EXPECT_EQ(dialogo.txtLineColor()[i], static_cast<Color>(100 + i));
    for (std::size_t i = 0; i < 12; ++i)
        EXPECT_EQ(dialogo.txtBackColor()[i], static_cast<Color>(200 + i));
    for (std::size_t i = 3; i < 8; ++i)
        EXPECT_EQ(dialogo.txtLineCatColor()[i], static_cast<Color>(i - 2));
    esperarMarcadas(dialogo.chkColores, 0, 18);
    esperarMarcadas(dialogo.chkCatColor, 3, 8);
}

}  // namespace

using ColoresEsquemas = ColoresConPerfiles;
using ColoresPerfil = ColoresConPerfiles;
using ColoresMuestras = ColoresConPerfiles;
using ColoresControl = PruebaColores;

TEST_F(ColoresEsquemas, SeAbreConElDelDibujo) {
    struct Fila {
        const char* Esquema;
        std::size_t opcion;
        bool perfil, solapas;
        Contados marcadas;
    };
    for (const auto& [Esquema, opcion, perfil, solapas, contadas] :
         {Fila{"Blanco y Negro", 0, false, false, {18, 5}},
          {"Colores Personalizados", 1, false, true, {0, 0}},
          {"Perfil Predefinido", 2, true, true, {0, 0}},
          {"Sepia", 0, false, false, {18, 5}}}) {
        dibujo.Esquema = Esquema;
        const Colores dialogo = abrir();
        EXPECT_EQ(dialogo.optSchemaColor(), opcion) << Esquema;
        EXPECT_EQ(dialogo.perfilHabilitado(), perfil) << Esquema;
        EXPECT_EQ(dialogo.solapasHabilitadas(), solapas) << Esquema;
        EXPECT_EQ(marcadas(dialogo), contadas) << Esquema;
        EXPECT_EQ(dialogo.cboPerfil(), "") << Esquema;
        esperarConstantes(dialogo);
    }
}

TEST_F(ColoresEsquemas, ConElPerfilDelDibujoEnsenaSusColores) {
    dibujo.Esquema = "Perfil Predefinido";
    dibujo.Perfil = "Mío";
    const Colores dialogo = abrir();
    EXPECT_EQ(dialogo.cboPerfil(), "Mío");
    esperarMio(dialogo);
}

TEST_F(ColoresEsquemas, ElPerfilDelDibujoSoloCuentaConSuEsquema) {
    dibujo.Esquema = "Colores Personalizados";
    dibujo.Perfil = "Mío";
    const Colores dialogo = abrir();
    EXPECT_EQ(dialogo.cboPerfil(), "");
    esperarConstantes(dialogo);
}

TEST_F(ColoresEsquemas, UnPerfilQueYaNoEstaDejaLasConstantes) {
    dibujo.Esquema = "Perfil Predefinido";
    dibujo.Perfil = "Otro";
    const Colores dialogo = abrir();
    EXPECT_EQ(dialogo.cboPerfil(), "");
    EXPECT_EQ(marcadas(dialogo), (Contados{0, 0}));
    esperarConstantes(dialogo);
}

TEST_F(ColoresEsquemas, NoMiraLosColoresDelDibujo) {
    dibujo.MblMesa.modelo().LineColor = rojo;
    dibujo.Pared.modelo().LineColor = verde;
    dibujo.Esquema = "Colores Personalizados";
    esperarConstantes(abrir());
}

TEST_F(ColoresEsquemas, BlancoYNegroMarcaTodasLasCasillasConSusConstantes) {
    dibujo.Esquema = "Perfil Predefinido";
    dibujo.Perfil = "Mío";
    Colores dialogo = abrir();
    dialogo.elegirEsquema(0);
    esperarConstantes(dialogo);
    esperarMarcadas(dialogo.chkColores, 0, 18);
    esperarMarcadas(dialogo.chkCatColor, 3, 8);
    EXPECT_EQ(dialogo.cboPerfil(), "");
    EXPECT_FALSE(dialogo.perfilHabilitado());
    EXPECT_FALSE(dialogo.solapasHabilitadas());
}

TEST_F(ColoresEsquemas, PersonalizadosNoMarcaNinguna) {
    Colores dialogo = abrir();
    dialogo.elegirEsquema(2);
    dialogo.SeleccionarPerfil("Mío");
    dialogo.elegirEsquema(1);
    esperarConstantes(dialogo);
    EXPECT_EQ(marcadas(dialogo), (Contados{0, 0}));
    EXPECT_EQ(dialogo.cboPerfil(), "");
    EXPECT_FALSE(dialogo.perfilHabilitado());
    EXPECT_TRUE(dialogo.solapasHabilitadas());
}

TEST_F(ColoresEsquemas, PerfilesGuardadosEmpiezaSinNinguno) {
    Colores dialogo = abrir();
    dialogo.elegirEsquema(2);
    esperarConstantes(dialogo);
    EXPECT_EQ(marcadas(dialogo), (Contados{0, 0}));
    EXPECT_EQ(dialogo.cboPerfil(), "");
    EXPECT_TRUE(dialogo.perfilHabilitado());
    EXPECT_TRUE(dialogo.solapasHabilitadas());
}

TEST_F(ColoresEsquemas, LasCategoriasDeMueblesNoSonDeNingunEsquema) {
    dibujo.Esquema = "Colores Personalizados";
    Colores dialogo = abrir();
    dialogo.cmdLineCatColor(0, rojo);
    dialogo.cmdBackCatColor(1, azul);
    dialogo.elegirEsquema(2);
    EXPECT_EQ(dialogo.txtLineCatColor()[0], rojo);
    EXPECT_EQ(dialogo.txtBackCatColor()[1], azul);
    esperarMarcadas(dialogo.chkCatColor, 0, 2);
    EXPECT_TRUE(todos(dialogo.chkColores, false));
}

TEST_F(ColoresPerfil, LaListaLosTieneEnOrdenDeCreacion) {
    EXPECT_EQ(abrir().perfiles(), (std::vector<std::string>{"Mío", "Corto"}));
}

TEST_F(ColoresPerfil, AbrirloMarcaTodasSusCasillas) {
    Colores dialogo = abrir();
    dialogo.elegirEsquema(2);
    dialogo.AbrirPerfil("Mío");
    esperarMio(dialogo);
}

TEST_F(ColoresPerfil, UnNombreVacioNoAbreNada) {
    ponFichero("[PerfilesVarios]\r\n=1#2#3#4#5\r\n");
    Colores dialogo = abrir();
    dialogo.elegirEsquema(2);
    dialogo.AbrirPerfil("");
    esperarConstantes(dialogo);
    EXPECT_EQ(marcadas(dialogo), (Contados{0, 0}));
}

TEST_F(ColoresPerfil, UnoDeTresColoresDejaEscalerasYElectricidadComoEstan) {
    dibujo.Esquema = "Colores Personalizados";
    Colores dialogo = abrir();
    dialogo.cmdLineCatColor(6, rojo);
    dialogo.cmdLineCatColor(7, verde);
    dialogo.chkCatColor[7] = false;
    dialogo.elegirEsquema(2);
    dialogo.cmdLineCatColor(6, rojo);
    dialogo.cmdLineCatColor(7, verde);
    dialogo.chkCatColor[7] = false;
    dialogo.AbrirPerfil("Corto");
    EXPECT_EQ(dialogo.txtLineCatColor()[3], 10);
    EXPECT_EQ(dialogo.txtLineCatColor()[4], 20);
    EXPECT_EQ(dialogo.txtLineCatColor()[5], 30);
    EXPECT_EQ(dialogo.txtLineCatColor()[6], rojo);
    EXPECT_EQ(dialogo.txtLineCatColor()[7], verde);
    esperarMarcadas(dialogo.chkCatColor, 3, 7);
}

TEST_F(ColoresPerfil, SinUnaListaDejaSusMuestrasYCasillas) {
    Colores dialogo = abrir();
    dialogo.elegirEsquema(2);
    dialogo.cmdLineColor(2, rojo);
    dialogo.AbrirPerfil("Corto");
    EXPECT_EQ(dialogo.txtLineColor()[2], rojo);
    EXPECT_EQ(dialogo.txtLineColor()[3], colorTextoVentana);
    EXPECT_TRUE(todos(dialogo.txtBackColor(), colorFondoVentana));
    esperarMarcadas(dialogo.chkColores, 2, 3);
}

TEST_F(ColoresPerfil, SeleccionarUnoLoEnsena) {
    Colores dialogo = abrir();
    dialogo.elegirEsquema(2);
    dialogo.SeleccionarPerfil("Mío");
    EXPECT_EQ(dialogo.cboPerfil(), "Mío");
    esperarMio(dialogo);
}

TEST_F(ColoresPerfil, SeleccionarNingunoDejaLosColores) {
    Colores dialogo = abrir();
    dialogo.elegirEsquema(2);
    dialogo.SeleccionarPerfil("Mío");
    dialogo.SeleccionarPerfil("");
    EXPECT_EQ(dialogo.cboPerfil(), "");
    esperarMio(dialogo);
}

TEST_F(ColoresPerfil, SeleccionarUnNombreQueNoEsExactoNoCambiaNada) {
    Colores dialogo = abrir();
    dialogo.elegirEsquema(2);
    dialogo.SeleccionarPerfil("Mío");
    for (const char* nombre : {"mío", "Mío ", "Mí", "Nadie"}) {
        dialogo.SeleccionarPerfil(nombre);
        EXPECT_EQ(dialogo.cboPerfil(), "Mío") << nombre;
    }
    esperarMio(dialogo);
}

TEST_F(ColoresPerfil, LoTecleadoAbreElPerfilQueNombra) {
    Colores dialogo = abrir();
    dialogo.elegirEsquema(2);
    for (const char* texto : {"M", "Mí"}) {
        dialogo.escribirPerfil(texto);
        esperarConstantes(dialogo);
    }
    dialogo.escribirPerfil("mío");
    EXPECT_EQ(dialogo.cboPerfil(), "mío");
    esperarMio(dialogo);
}

TEST_F(ColoresMuestras, ElegirUnColorMarcaSuTipoYDejaElPerfil) {
    for (std::size_t tipo = 0; tipo < 18; ++tipo) {
        Colores dialogo = abrir();
        dialogo.elegirEsquema(2);
        dialogo.escribirPerfil("Corto");
        dialogo.cmdLineColor(tipo, rojo);
        for (std::size_t i = 0; i < 18; ++i)
            EXPECT_EQ(dialogo.txtLineColor()[i], i == tipo ? rojo : colorTextoVentana);
        EXPECT_TRUE(todos(dialogo.txtBackColor(), colorFondoVentana));
        esperarMarcadas(dialogo.chkColores, tipo, tipo + 1);
        esperarMarcadas(dialogo.chkCatColor, 3, 6);
        EXPECT_EQ(dialogo.cboPerfil(), "");
    }
}

TEST_F(ColoresMuestras, ElegirUnFondoMarcaSuTipoYDejaElPerfil) {
    for (std::size_t tipo = 0; tipo < 12; ++tipo) {
        Colores dialogo = abrir();
        dialogo.elegirEsquema(2);
        dialogo.escribirPerfil("Corto");
        dialogo.cmdBackColor(tipo, azul);
        for (std::size_t i = 0; i < 12; ++i)
            EXPECT_EQ(dialogo.txtBackColor()[i], i == tipo ? azul : colorFondoVentana);
        EXPECT_TRUE(todos(dialogo.txtLineColor(), colorTextoVentana));
        esperarMarcadas(dialogo.chkColores, tipo, tipo + 1);
        EXPECT_EQ(dialogo.cboPerfil(), "");
    }
}

TEST_F(ColoresMuestras, SinColorLaCasillaSeMarcaIgual) {
    Colores dialogo = abrir();
    dialogo.elegirEsquema(2);
    dialogo.escribirPerfil("Nadie");
    dialogo.cmdLineColor(4, std::nullopt);
    dialogo.cmdBackColor(9, std::nullopt);
    dialogo.cmdLineCatColor(5, std::nullopt);
    esperarConstantes(dialogo);
    EXPECT_EQ(marcadas(dialogo), (Contados{2, 1}));
    EXPECT_TRUE(dialogo.chkColores[4]);
    EXPECT_TRUE(dialogo.chkColores[9]);
    EXPECT_TRUE(dialogo.chkCatColor[5]);
    EXPECT_EQ(dialogo.cboPerfil(), "");
}

TEST_F(ColoresMuestras, LasTresPrimerasCategoriasPasanSuLineaASusTipos) {
    for (std::size_t categoria = 0; categoria < 3; ++categoria) {
        Colores dialogo = abrir();
        dialogo.elegirEsquema(2);
        dialogo.escribirPerfil("Nadie");
        dialogo.cmdLineCatColor(categoria, rojo);
        for (std::size_t i = 0; i < 18; ++i)
            EXPECT_EQ(dialogo.txtLineColor()[i], i / 6 == categoria ? rojo : colorTextoVentana) << i;
        EXPECT_TRUE(todos(dialogo.txtBackColor(), colorFondoVentana));
        esperarMarcadas(dialogo.chkColores, 6 * categoria, 6 * categoria + 6);
        esperarMarcadas(dialogo.chkCatColor, categoria, categoria + 1);
        EXPECT_EQ(dialogo.txtLineCatColor()[categoria], rojo);
        EXPECT_EQ(dialogo.cboPerfil(), "");
    }
}

TEST_F(ColoresMuestras, LasDosPrimerasCategoriasPasanSuFondoASusTipos) {
    for (std::size_t categoria = 0; categoria < 2; ++categoria) {
        Colores dialogo = abrir();
        dialogo.elegirEsquema(2);
        dialogo.escribirPerfil("Nadie");
        dialogo.cmdBackCatColor(categoria, azul);
        for (std::size_t i = 0; i < 12; ++i)
            EXPECT_EQ(dialogo.txtBackColor()[i], i / 6 == categoria ? azul : colorFondoVentana) << i;
        EXPECT_TRUE(todos(dialogo.txtLineColor(), colorTextoVentana));
        esperarMarcadas(dialogo.chkColores, 6 * categoria, 6 * categoria + 6);
        esperarMarcadas(dialogo.chkCatColor, categoria, categoria + 1);
        EXPECT_EQ(dialogo.txtBackCatColor()[categoria], azul);
        EXPECT_EQ(dialogo.cboPerfil(), "");
    }
}

TEST_F(ColoresMuestras, LasOtrasCategoriasSonSoloSuyas) {
    for (std::size_t categoria = 3; categoria < 8; ++categoria) {
        Colores dialogo = abrir();
        dialogo.elegirEsquema(1);
        dialogo.cmdLineCatColor(categoria, verde);
        for (std::size_t i = 3; i < 8; ++i)
            EXPECT_EQ(dialogo.txtLineCatColor()[i], i == categoria ? verde : colorTextoVentana);
        EXPECT_TRUE(todos(dialogo.txtLineColor(), colorTextoVentana));
        EXPECT_TRUE(todos(dialogo.chkColores, false));
        esperarMarcadas(dialogo.chkCatColor, categoria, categoria + 1);
    }
}

TEST_F(ColoresMuestras, UnaCategoriaSinColorMarcaLosTiposYNoLosCambia) {
    Colores dialogo = abrir();
    dialogo.elegirEsquema(1);
    dialogo.cmdLineColor(7, rojo);
    dialogo.chkColores[7] = false;
    dialogo.cmdLineCatColor(1, std::nullopt);
    EXPECT_EQ(dialogo.txtLineColor()[7], rojo);
    EXPECT_EQ(dialogo.txtLineColor()[8], colorTextoVentana);
    esperarMarcadas(dialogo.chkColores, 6, 12);
    esperarMarcadas(dialogo.chkCatColor, 1, 2);
}

TEST_F(ColoresControl, LasOtrasDiecisieteTomanElValorDeLaSoltada) {
    for (const bool valor : {true, false})
        for (std::size_t soltada = 0; soltada < 18; ++soltada) {
            Colores dialogo = abrir();
            for (std::size_t i = 0; i < 18; ++i)
                dialogo.chkColores[i] = (i % 2 == 0) != valor;
            dialogo.chkColores[soltada] = valor;
            dialogo.chkCatColor.fill(!valor);
            dialogo.soltarConControl(soltada);
            EXPECT_TRUE(todos(dialogo.chkColores, valor)) << soltada;
            EXPECT_TRUE(todos(dialogo.chkCatColor, !valor)) << "the categories are no types";
        }
}
