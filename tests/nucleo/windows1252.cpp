#include "model/windows1252.h"

#include <gtest/gtest.h>
#include <random>

using namespace bosquel;

TEST(Windows1252, UnaLetraEspanolaEsUnSoloByte) {
    EXPECT_EQ(aWindows1252("NumBañera"),
              "NumBa\xF1"
              "era");
    EXPECT_EQ(aUtf8("Ba\xF1"
                    "era(3)"),
              "Bañera(3)");
    EXPECT_EQ(aWindows1252("€Š”"), "\x80\x8A\x94");
    EXPECT_EQ(aUtf8("\x80\x8A\x94\xFF"), "€Š”ÿ");
}

TEST(Windows1252, TodosLosBytesVanYVuelven) {
    std::string todos;
    for (int i = 0; i < 256; ++i)
        todos += static_cast<char>(i);
    EXPECT_EQ(aWindows1252(aUtf8(todos)), todos);
    EXPECT_EQ(aUtf8("\x81\x8D\x8F\x90\x9D"), "\u0081\u008D\u008F\u0090\u009D");
}

TEST(Windows1252, UnCaracterSinByteEsUnInterrogante) {
    EXPECT_EQ(aWindows1252("Ω"), "?");
    EXPECT_EQ(aWindows1252("a漢b"), "a?b");
    EXPECT_EQ(aWindows1252("😀"), "?");
    EXPECT_EQ(aWindows1252("\uFFFD"), "?");
    EXPECT_EQ(aWindows1252("\u0080\u0092"), "??");
}

TEST(Windows1252, CadaByteMalFormadoEsUnInterrogante) {
    EXPECT_EQ(aWindows1252("a\xF1"), "a?");
    EXPECT_EQ(aWindows1252("\xC3"), "?");
    EXPECT_EQ(aWindows1252("\xC3"
                           "a"),
              "?a");
    EXPECT_EQ(aWindows1252("\xE2\x82"), "??");
    EXPECT_EQ(aWindows1252("\xC0\x80"), "??");            // an overlong form
    EXPECT_EQ(aWindows1252("\xED\xA0\x80"), "???");       // half of a surrogate pair
    EXPECT_EQ(aWindows1252("\xF4\x90\x80\x80"), "????");  // above the last character
    EXPECT_EQ(aWindows1252("\xFF\x80"), "??");
}

TEST(Windows1252, BytesAlAzarNuncaRompenNada) {
    std::mt19937 azar(1252);
    std::uniform_int_distribution<int> byte(0, 255);
    for (int i = 0; i < 2000; ++i) {
        std::string texto(static_cast<std::size_t>(azar() % 20), '\0');
        for (char& c : texto)
            c = static_cast<char>(byte(azar));
        EXPECT_LE(aWindows1252(texto).size(), texto.size());
        EXPECT_EQ(aWindows1252(aUtf8(texto)), texto);
    }
}

TEST(Windows1252, LoQueEsIgualEnAmbosNoSeCopia) {
    std::string sitio = "como estaba";
    const std::string_view llano = "Mesa(1)\r\n";
    EXPECT_EQ(aWindows1252(llano, sitio).data(), llano.data());
    EXPECT_EQ(aUtf8(llano, sitio).data(), llano.data());
    EXPECT_EQ(aUtf8("", sitio), "");
    EXPECT_EQ(sitio, "como estaba");
    EXPECT_EQ(aWindows1252("ñ", sitio), "\xF1");
    EXPECT_EQ(aUtf8("a\xF1", sitio), "añ");
    EXPECT_EQ(sitio, "añ");
}

TEST(MismoNombre, IgualaMayusculasYMinusculasEnTodaLaPagina) {
    EXPECT_TRUE(mismoNombre("AZaz09_[]", "azaz09_[]"));
    for (const auto& [mayuscula, minuscula] : {std::pair{"Ñ", "ñ"},
                                               {"Á", "á"},
                                               {"Ü", "ü"},
                                               {"Š", "š"},
                                               {"Œ", "œ"},
                                               {"Ž", "ž"},
                                               {"Ÿ", "ÿ"},
                                               {"Þ", "þ"}}) {
        EXPECT_TRUE(mismoNombre(aWindows1252(mayuscula), aWindows1252(minuscula))) << mayuscula;
        EXPECT_EQ(enMinuscula(aWindows1252(mayuscula)[0]), aWindows1252(minuscula)[0]) << mayuscula;
        EXPECT_EQ(enMinuscula(aWindows1252(minuscula)[0]), aWindows1252(minuscula)[0]) << mayuscula;
    }
}

TEST(MismoNombre, LosSignosYLaEszettNoTienenPareja) {
    for (const char* signo : {"×", "÷", "ß", "¿", "ª", "µ", "ƒ", "@", "[", "{"})
        EXPECT_EQ(enMinuscula(aWindows1252(signo)[0]), aWindows1252(signo)[0]) << signo;
    EXPECT_FALSE(mismoNombre(aWindows1252("×"), aWindows1252("÷")));
    EXPECT_FALSE(mismoNombre(aWindows1252("ß"), aWindows1252("ÿ")));
}

TEST(MismoNombre, ElMasLargoEsOtro) {
    EXPECT_FALSE(mismoNombre("mesa", "mesas"));
    EXPECT_FALSE(mismoNombre("mesa", ""));
    EXPECT_TRUE(mismoNombre("", ""));
}
