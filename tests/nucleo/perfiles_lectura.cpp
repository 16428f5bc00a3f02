#include "apoyo/perfil.h"
#include "persistence/lineas_perfil.h"

#include <gtest/gtest.h>
#include <vector>

using namespace bosquel;
using namespace std::string_view_literals;

namespace {

class LecturaPerfil : public apoyo::Perfil {};

}  // namespace

TEST_F(LecturaPerfil, UnArchivoQueNoExisteDaElPredeterminado) {
    EXPECT_EQ(leer("General", "Clave", "valor"), "valor");
    EXPECT_EQ(LeerIni(ruta_, "General", "Clave"), "");
    EXPECT_EQ(LeerIni("", "General", "Clave", "x"), "x");
    EXPECT_EQ(carpeta_.cuantos(), 0);
}

TEST_F(LecturaPerfil, UnaSeccionOUnaClaveQueFaltanDanElPredeterminado) {
    poner("[General]\r\nClave=1\r\n");
    EXPECT_EQ(leer("General", "Clave"), "1");
    EXPECT_EQ(leer("General", "Otra"), "-");
    EXPECT_EQ(leer("Otra", "Clave"), "-");
}

TEST_F(LecturaPerfil, UnaClaveVaciaDaElPredeterminado) {
    poner("[s]\r\na=\r\nb=  \t\r\nc=\"\"\r\nd=''\r\ne=\"  \"\r\n");
    for (const char* clave : {"a", "b", "c", "d"})
        EXPECT_EQ(leer("s", clave), "-") << clave;
    EXPECT_EQ(leer("s", "e"), "  ");
    EXPECT_FALSE(ArchivoPerfil(ruta_).buscar("s", "a"));
}

TEST_F(LecturaPerfil, ElPredeterminadoVuelveEnteroComoEs) {
    const std::string largo = " \"" + std::string(300, 'x') + "Ω\" ";
    EXPECT_EQ(leer("s", "k", largo), largo);
}

TEST_F(LecturaPerfil, UnValorSeCortaA254Caracteres) {
    const std::string largo = std::string(253, 'x') + std::string(47, 'y');
    poner("[s]\r\na=" + largo + "\r\nb=\"" + largo + "\"\r\nc=   " + largo + "\r\n");
    for (const char* clave : {"a", "b", "c"})
        EXPECT_EQ(leer("s", clave), largo.substr(0, 254)) << clave;
    std::string enes;
    for (int i = 0; i < 300; ++i)
        enes += "ñ";
    guardar("s", "d", enes);
    EXPECT_EQ(leer("s", "d"), enes.substr(0, 508));
}

TEST_F(LecturaPerfil, ElCorteVieneDespuesDeQuitarBlancos) {
    poner("[s]\r\na=" + std::string(253, 'x') + " yy\r\n");
    EXPECT_EQ(leer("s", "a"), std::string(253, 'x') + " ");
}

TEST_F(LecturaPerfil, LosBlancosDeAlrededorSeQuitan) {
    poner(
        "\t[ \v\f\x1A"
        "General \t] \r\n \x1A"
        "Clave\t = \v\f valor con blancos \x1A\t\r\n");
    EXPECT_EQ(leer("General", "Clave"), "valor con blancos");
    EXPECT_EQ(leer("\t General\x1A", " Clave\v"), "valor con blancos");
}

TEST_F(LecturaPerfil, SeQuitaUnaParejaDeComillas) {
    poner(
        "[s]\r\na=\"x\"\r\nb='x'\r\nc=\"x'\r\nd=\"\r\ne=''x''\r\nf= \" x \" \r\ng='\"x\"'\r\nh=\"x\" y\r\n");
    EXPECT_EQ(leer("s", "a"), "x");
    EXPECT_EQ(leer("s", "b"), "x");
    EXPECT_EQ(leer("s", "c"), "\"x'");
    EXPECT_EQ(leer("s", "d"), "\"");
    EXPECT_EQ(leer("s", "e"), "'x'");
    EXPECT_EQ(leer("s", "f"), " x ");
    EXPECT_EQ(leer("s", "g"), "\"x\"");
    EXPECT_EQ(leer("s", "h"), "\"x\" y");
}

TEST_F(LecturaPerfil, CualquierFinDeLineaVale) {
    poner("[a]\nx=1\r[b]\r\ny=2\n\rz=3");
    EXPECT_EQ(leer("a", "x"), "1");
    EXPECT_EQ(leer("b", "y"), "2");
    EXPECT_EQ(leer("b", "z"), "3");
}

TEST_F(LecturaPerfil, LaMarcaUtf8SeSalta) {
    poner("\xEF\xBB\xBF[a]\r\nx=1\r\n");
    EXPECT_EQ(leer("a", "x"), "1");
    guardar("a", "x", "2");
    EXPECT_EQ(bytes(), "\xEF\xBB\xBF[a]\r\nx=2\r\n");
    poner("\xEF\xBB\xBF");
    guardar("a", "x", "1");
    EXPECT_EQ(bytes(), "\xEF\xBB\xBF[a]\r\nx=1\r\n");
}

TEST_F(LecturaPerfil, NoHayComentarios) {
    poner("[s]\r\n;a=1\r\n#b=2\r\nc=3;4#5\r\n;[t]\r\nd=6\r\n");
    EXPECT_EQ(leer("s", ";a"), "1");
    EXPECT_EQ(leer("s", "#b"), "2");
    EXPECT_EQ(leer("s", "c"), "3;4#5");
    EXPECT_EQ(leer("s", "d"), "6");
}

TEST_F(LecturaPerfil, ElPrimerIgualAcabaLaClave) {
    poner("[s]\r\na=b=c\r\nd==e\r\n");
    EXPECT_EQ(leer("s", "a"), "b=c");
    EXPECT_EQ(leer("s", "d"), "=e");
}

TEST_F(LecturaPerfil, LoQueSigueAlCorcheteSePasaPorAlto) {
    poner("[a] x=1\r\nk=1\r\n[b]c]\r\nk=2\r\n[d\r\nk=3\r\n[=4\r\n[e=5]\r\nk=6\r\n");
    EXPECT_EQ(leer("a", "k"), "1");
    EXPECT_EQ(leer("b]c", "k"), "2");  // the second k of the section does not count
    EXPECT_EQ(leer("b]c", "["), "4");
    EXPECT_EQ(leer("e=5", "k"), "6");
}

TEST_F(LecturaPerfil, UnNombreVacioEsUnoComoOtro) {
    poner("=0\r\n[]\r\n=1\r\nk=2\r\n[  ]\r\nk=3\r\nj=4\r\n");
    EXPECT_EQ(leer("", ""), "1");
    EXPECT_EQ(leer("", "k"), "2");
    EXPECT_EQ(leer("", "j"), "-");
}

TEST_F(LecturaPerfil, LoDeEncimaDeLaPrimeraCabeceraNoEsDeNadie) {
    poner("k=1\r\n\r\n[s]\r\nj=2\r\n");
    EXPECT_EQ(leer("", "k"), "-");
    EXPECT_EQ(leer("s", "k"), "-");
    guardar("", "k", "3");
    EXPECT_EQ(bytes(), "k=1\r\n\r\n[s]\r\nj=2\r\n\r\n[]\r\nk=3\r\n");
}

TEST_F(LecturaPerfil, DeDosIgualesCuentaLaPrimera) {
    poner("[s]\r\nk=1\r\nK=2\r\n[S]\r\nj=3\r\n");
    EXPECT_EQ(leer("s", "K"), "1");
    EXPECT_EQ(leer("S", "j"), "-");
    guardar("S", "K", "9");
    guardar("S", "j", "8");
    EXPECT_EQ(bytes(), "[s]\r\nk=9\r\nK=2\r\nj=8\r\n[S]\r\nj=3\r\n");
}

TEST_F(LecturaPerfil, UnNuloAcabaUnNombreYUnValor) {
    poner("[s\0x]\r\nk\0y=v\0w\r\n"sv);
    EXPECT_EQ(leer("s", "k"), "v");
    EXPECT_EQ(leer("s\0z"sv, "k\0z"sv), "v");
    guardar("s", "k", "u");
    EXPECT_EQ(bytes(), "[s\0x]\r\nk\0y=u\r\n"sv);
}

TEST_F(LecturaPerfil, LosBlancosDeDelanteDelNuloTampocoCuentan) {
    poner("[s \0x]\r\nk \0y=v \0w\r\n"sv);
    EXPECT_EQ(leer("s", "k"), "v");
    EXPECT_EQ(leer("s \0"sv, "k \0"sv), "v");
}

TEST_F(LecturaPerfil, LosNombresNoDistinguenMayusculas) {
    poner(
        "[ba\xD1"
        "era(3)]\r\nNUMBA\xD1"
        "ERA=4\r\n");
    EXPECT_EQ(leer("Bañera(3)", "NumBañera"), "4");
    EXPECT_EQ(leer("BAÑERA(3)", "numbañera"), "4");
    EXPECT_EQ(leer("Bañera(3)", "NumBanera"), "-");
}

TEST(LineasPerfil, LlanasSonLasClavesQueSeEscribenComoSePiden) {
    using Claves = std::vector<std::string_view>;
    EXPECT_TRUE(sonLlanas(Claves{}));
    EXPECT_TRUE(sonLlanas(Claves{"Left", "Top", "X.1", "a]"}));
    for (const char* impropia : {"Dos palabras", "a=b", "[a", "a\tb", "Año", "a\rb"})
        EXPECT_FALSE(sonLlanas(Claves{"Left", impropia})) << impropia;
    EXPECT_FALSE(sonLlanas(Claves{"Left", "Top", "LEFT"})) << "one key in two spellings";
}
