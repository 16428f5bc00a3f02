#include "apoyo/idioma.h"
#include "model/textos_numero.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>

using namespace bosquel;
using apoyo::Idioma;

TEST(RealDeTexto, LeeLasDosFormas) {
    const Idioma idioma(Idioma::espanol);
    EXPECT_EQ(realDeTexto("1234,5"), 1234.5);
    EXPECT_EQ(realDeTexto("4,846634E-12"), 4.846634E-12);
    EXPECT_EQ(realDeTexto("1e3"), 1000.0);
    EXPECT_EQ(realDeTexto("1E+07"), 1E+7);
    EXPECT_EQ(realDeTexto("+2"), 2.0);
    EXPECT_EQ(realDeTexto("-2,5"), -2.5);
    EXPECT_EQ(realDeTexto(",5"), 0.5);
    EXPECT_EQ(realDeTexto("5,"), 5.0);
}

TEST(RealDeTexto, ElSeparadorDecimalEsElDelIdiomaYElOtroAgrupa) {
    {
        const Idioma idioma(Idioma::espanol);
        EXPECT_EQ(realDeTexto("1.5"), 15.0);
        EXPECT_EQ(realDeTexto("1.2.34.567,25"), 1234567.25);
        EXPECT_EQ(realDeTexto("1,5,"), std::nullopt);
        EXPECT_EQ(realDeTexto("1,5.0"), std::nullopt);
    }
    const Idioma idioma(Idioma::ingles);
    EXPECT_EQ(realDeTexto("1,5"), 15.0);
    EXPECT_EQ(realDeTexto("1,234,567.25"), 1234567.25);
    EXPECT_EQ(realDeTexto("1.5.5"), std::nullopt);
}

TEST(RealDeTexto, LosBlancosDeAlrededorNoCuentan) {
    EXPECT_EQ(realDeTexto(" \t\v\f\x1A"
                          "7\x1A\f\v\t "),
              7.0);
    EXPECT_EQ(realDeTexto("7\n"), std::nullopt);
    EXPECT_EQ(realDeTexto("- 7"), std::nullopt);
    EXPECT_EQ(realDeTexto("7 7"), std::nullopt);
}

TEST(RealDeTexto, LoQueNoEsUnNumeroNoDaNada) {
    const Idioma idioma(Idioma::ingles);
    for (const char* texto :
         {"",    " ",   "abc", "inf", "nan", "-inf", "infinity",  "0x10",  "1p3",     ".",
          ",",   "-",   "+",   "e5",  ".e5", "1e",   "1e+",       "1e5.0", "1e5,0",   "1e1e1",
          "--1", "+-1", "1-",  "(1)", "1d5", "1_0",  "Verdadero", "1e.5",  "\xC3\xB1"}) {
        EXPECT_EQ(realDeTexto(texto), std::nullopt) << texto;
    }
    EXPECT_EQ(realDeTexto(std::string_view("1\0", 2)), std::nullopt);
}

TEST(RealDeTexto, LoDemasiadoGrandeNoDaNadaYLoDemasiadoPequenoDaCero) {
    const Idioma idioma(Idioma::ingles);
    const std::string ceros(500, '0');
    EXPECT_EQ(realDeTexto("1e400"), std::nullopt);
    EXPECT_EQ(realDeTexto("-1e309"), std::nullopt);
    EXPECT_EQ(realDeTexto("1e99999999999999999999"), std::nullopt);
    EXPECT_EQ(realDeTexto("1" + ceros), std::nullopt);
    EXPECT_EQ(realDeTexto("1" + ceros + "e-1"), std::nullopt);
    EXPECT_EQ(realDeTexto("1e-400"), 0.0);
    EXPECT_EQ(realDeTexto("-1e-400"), 0.0);
    EXPECT_EQ(realDeTexto("1e-99999999999999999999"), 0.0);
    EXPECT_EQ(realDeTexto("0." + ceros + "1"), 0.0);
    EXPECT_EQ(realDeTexto("0." + ceros + "1e100"), 0.0);
    EXPECT_EQ(realDeTexto("0e99999999999"), 0.0);
    EXPECT_EQ(realDeTexto("0." + ceros + "1e501"), 1.0);
    EXPECT_EQ(realDeTexto("1" + ceros + "e-500"), 1.0);
    EXPECT_EQ(realDeTexto("1.7976931348623157E308"), std::numeric_limits<double>::max());
    EXPECT_EQ(realDeTexto("4.94065645841247E-324"), std::numeric_limits<double>::denorm_min());
}

TEST(EnteroDeTexto, RedondeaLaMitadAlPar) {
    const Idioma idioma(Idioma::espanol);
    EXPECT_EQ(entero16DeTexto("2,5"), std::int16_t{2});
    EXPECT_EQ(entero16DeTexto("3,5"), std::int16_t{4});
    EXPECT_EQ(entero32DeTexto("-2,5"), -2);
    EXPECT_EQ(entero32DeTexto("-2147483640"), -2147483640);
    EXPECT_EQ(entero16DeTexto(" 17 "), std::int16_t{17});
}

TEST(EnteroDeTexto, LoQueNoCabeNoDaNada) {
    const Idioma idioma(Idioma::espanol);
    EXPECT_EQ(entero16DeTexto("32767,4"), std::int16_t{32767});
    EXPECT_EQ(entero16DeTexto("32767,5"), std::nullopt);
    EXPECT_EQ(entero16DeTexto("-32768"), std::int16_t{-32768});
    EXPECT_EQ(entero16DeTexto("-32769"), std::nullopt);
    EXPECT_EQ(entero32DeTexto("2147483648"), std::nullopt);
    EXPECT_EQ(entero32DeTexto("1e300"), std::nullopt);
    EXPECT_EQ(entero32DeTexto("abc"), std::nullopt);
}

TEST(RealTecleado, ElUltimoSeparadorEsElDecimalEnCualquierIdioma) {
    for (const char* nombre : {Idioma::espanol, Idioma::ingles}) {
        const Idioma idioma(nombre);
        EXPECT_EQ(realTecleado("1,5"), 1.5);
        EXPECT_EQ(realTecleado("1.5"), 1.5);
        EXPECT_EQ(realTecleado(" 1.234,5 "), 1234.5);
        EXPECT_EQ(realTecleado("1,234.5"), 1234.5);
        EXPECT_EQ(realTecleado("1.234.5"), 1234.5);
        EXPECT_EQ(realTecleado("12"), 12.0);
        EXPECT_EQ(realTecleado(","), std::nullopt);
        EXPECT_EQ(realTecleado(""), std::nullopt);
        EXPECT_EQ(realTecleado("1m"), std::nullopt);
    }
}

TEST(EnteroTecleado, TodosLosSeparadoresAgrupan) {
    for (const char* nombre : {Idioma::espanol, Idioma::ingles}) {
        const Idioma idioma(nombre);
        EXPECT_EQ(enteroTecleado("29.700"), 29700.0);
        EXPECT_EQ(enteroTecleado("29,700"), 29700.0);
        EXPECT_EQ(enteroTecleado("1.234,5"), 12345.0);
        EXPECT_EQ(enteroTecleado(" 7 "), 7.0);
        for (const std::string& malo : {std::string("."), std::string(), std::string("1e,5"),
                                        std::string(",-5"), std::string("\0009", 2)})
            EXPECT_EQ(enteroTecleado(malo), std::nullopt) << malo;
    }
}
