#include "model/textos_numero.h"

#include "apoyo/idioma.h"
#include "model/cifras.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <random>

using namespace bosquel;
using apoyo::Idioma;

namespace {

constexpr double infinito = std::numeric_limits<double>::infinity();
constexpr double ninguno = std::numeric_limits<double>::quiet_NaN();

}  // namespace

TEST(SeparadorDecimal, SeLeeDelIdiomaEnCadaLlamada) {
    const Idioma fuera(Idioma::ingles);
    EXPECT_EQ(separadorDecimal(), '.');
    EXPECT_FALSE(idiomaEspanol());
    {
        const Idioma dentro(Idioma::espanol);
        EXPECT_EQ(separadorDecimal(), ',');
        EXPECT_TRUE(idiomaEspanol());
    }
    EXPECT_EQ(separadorDecimal(), '.');
    EXPECT_FALSE(idiomaEspanol());
}

TEST(TextoReal, LlevaElSeparadorDelIdioma) {
    const Idioma idioma(Idioma::espanol);
    EXPECT_EQ(textoReal(1234.5), "1234,5");
    EXPECT_EQ(textoReal(-0.25), "-0,25");
    EXPECT_EQ(textoReal(4.846634E-12F), "4,846634E-12");
    const Idioma otro(Idioma::ingles);
    EXPECT_EQ(textoReal(1234.5), "1234.5");
    EXPECT_EQ(textoReal(4.846634E-12F), "4.846634E-12");
}

TEST(TextoReal, TieneQuinceCifrasOSieteSinCerosFinales) {
    const Idioma idioma(Idioma::ingles);
    EXPECT_EQ(textoReal(0.1), "0.1");
    EXPECT_EQ(textoReal(0.1 + 0.2), "0.3");
    EXPECT_EQ(textoReal(0.1F), "0.1");
    EXPECT_EQ(textoReal(static_cast<double>(0.1F)), "0.100000001490116");
    EXPECT_EQ(textoReal(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(textoReal(1.0F / 3), "0.3333333");
    EXPECT_EQ(textoReal(2.0 / 3), "0.666666666666667");
    EXPECT_EQ(textoReal(1500.0), "1500");
    EXPECT_EQ(textoReal(3402.0F), "3402");
}

TEST(TextoReal, UnaMitadExactaSeAlejaDelCero) {
    const Idioma idioma(Idioma::ingles);
    EXPECT_EQ(textoReal(12345.625F), "12345.63");
    EXPECT_EQ(textoReal(-12345.625F), "-12345.63");
    EXPECT_EQ(textoReal(12345.375F), "12345.38");
    EXPECT_EQ(textoReal(100000000000000.5), "100000000000001");
}

TEST(TextoReal, FueraDelIntervaloLlanoLlevaExponente) {
    const Idioma idioma(Idioma::ingles);
    EXPECT_EQ(textoReal(1E-5), "0.00001");
    EXPECT_EQ(textoReal(1.25E-5), "0.0000125");
    EXPECT_EQ(textoReal(9.99E-6), "9.99E-06");
    EXPECT_EQ(textoReal(999999999999999.0), "999999999999999");
    EXPECT_EQ(textoReal(1E+15), "1E+15");
    EXPECT_EQ(textoReal(-1.5E+100), "-1.5E+100");
    EXPECT_EQ(textoReal(9999999.0F), "9999999");
    EXPECT_EQ(textoReal(1E+7F), "1E+07");
    EXPECT_EQ(textoReal(16777216.0F), "1.677722E+07");
    EXPECT_EQ(textoReal(std::numeric_limits<double>::max()), "1.79769313486232E+308");
    EXPECT_EQ(textoReal(std::numeric_limits<double>::denorm_min()), "4.94065645841247E-324");
    EXPECT_EQ(textoReal(std::numeric_limits<float>::denorm_min()), "1.401298E-45");
}

TEST(TextoReal, ElExponenteEsElDeDespuesDeRedondear) {
    const Idioma idioma(Idioma::ingles);
    EXPECT_EQ(textoReal(999999999999999.75), "1E+15");
    EXPECT_EQ(textoReal(9.9999999999999999E-6), "0.00001");
    EXPECT_EQ(textoReal(static_cast<float>(9.99999999E-6)), "0.00001");
}

TEST(TextoReal, ElCeroNoTieneSignoYLoNoFinitoEsCero) {
    for (const double valor : {0.0, -0.0, infinito, -infinito, ninguno}) {
        EXPECT_EQ(textoReal(valor), "0");
        EXPECT_EQ(textoReal(static_cast<float>(valor)), "0");
    }
}

TEST(TextoReal, LoEscritoSeLeeConLaMismaRegla) {
    for (const char* nombre : {Idioma::espanol, Idioma::ingles}) {
        const Idioma idioma(nombre);
        std::mt19937_64 azar(15);
        std::uniform_real_distribution<double> mantisa(-10, 10);
        std::uniform_int_distribution<int> exponente(-300, 300);
        for (int i = 0; i < 2000; ++i) {
            const double valor = mantisa(azar) * std::pow(10, exponente(azar));
            const std::string texto = textoReal(valor);
            const std::optional<double> leido = realDeTexto(texto);
            ASSERT_TRUE(leido) << texto;
            EXPECT_NEAR(*leido / valor, 1, 1e-14) << texto;
            EXPECT_EQ(textoReal(*leido), texto);
        }
    }
}

TEST(TextoEntero, AlcanzaLosExtremos) {
    EXPECT_EQ(textoEntero(0), "0");
    EXPECT_EQ(textoEntero(2147483647), "2147483647");
    EXPECT_EQ(textoEntero(std::numeric_limits<std::int32_t>::min()), "-2147483648");
    EXPECT_EQ(textoEntero(-2147483640), "-2147483640");
}

TEST(FormatoMetros, AgrupaLosMillaresSegunElIdioma) {
    {
        const Idioma idioma(Idioma::espanol);
        EXPECT_EQ(formatoMetros(1234567.891), "1.234.567,89");
        EXPECT_EQ(formatoMetros(999.994), "999,99");
        EXPECT_EQ(formatoMetros(999.996), "1.000,00");
        EXPECT_EQ(formatoMetros(-1234.5), "-1.234,50");
        EXPECT_EQ(formatoMetros(0.006), "0,01");
        EXPECT_EQ(formatoMetros(0.07), "0,07");
        EXPECT_EQ(formatoEntero(29700), "29.700");
    }
    const Idioma idioma(Idioma::ingles);
    EXPECT_EQ(formatoMetros(1234567.891), "1,234,567.89");
    EXPECT_EQ(formatoEntero(29700), "29,700");
    EXPECT_EQ(formatoEntero(123456), "123,456");
    EXPECT_EQ(formatoEntero(999), "999");
}

TEST(FormatoSinGrupos, TieneDosDecimalesYNoAgrupa) {
    for (const auto& [nombre, texto] :
         {std::pair{Idioma::espanol, "-1234567,89"}, {Idioma::ingles, "-1234567.89"}}) {
        const Idioma idioma(nombre);
        EXPECT_EQ(formatoSinGrupos(-1234567.891), texto);
    }
    const Idioma idioma(Idioma::espanol);
    EXPECT_EQ(formatoSinGrupos(0), "0,00");
    EXPECT_EQ(formatoSinGrupos(0.125), "0,13");
}

TEST(FormatoMetros, SoloUnaMitadExactaSeAlejaDelCero) {
    const Idioma idioma(Idioma::espanol);
    EXPECT_EQ(formatoMetros(0.125), "0,13");
    EXPECT_EQ(formatoMetros(-0.125), "-0,13");
    EXPECT_EQ(formatoMetros(0.375), "0,38");
    EXPECT_EQ(formatoMetros(1.005), "1,00");  // its binary value lies below the half
    EXPECT_EQ(formatoMetros(std::nextafter(0.125, 0)), "0,12");
    EXPECT_EQ(formatoEntero(0.5), "1");
    EXPECT_EQ(formatoEntero(2.5), "3");
    EXPECT_EQ(formatoEntero(-2.5), "-3");
    EXPECT_EQ(formatoEntero(std::nextafter(0.5, 0)), "0");
    EXPECT_EQ(formatoEntero(999.5), "1.000");
}

TEST(FormatoMetros, ElCeroNoTieneSignoYLoNoFinitoEsCero) {
    const Idioma idioma(Idioma::espanol);
    for (const double valor : {0.0, -0.0, 0.004, -0.004, 1e-300, infinito, -infinito, ninguno}) {
        EXPECT_EQ(formatoMetros(valor), "0,00");
        EXPECT_EQ(formatoEntero(valor), "0");
    }
}

TEST(FormatoMetros, ValeParaCualquierMagnitud) {
    const Idioma idioma(Idioma::espanol);
    EXPECT_EQ(formatoEntero(9007199254740993.0), "9.007.199.254.740.992");
    for (const double valor : {1e300, 1e15, 123456789012345678.0, std::numeric_limits<double>::max()}) {
        std::string texto = formatoMetros(valor);
        EXPECT_TRUE(texto.ends_with(",00"));
        EXPECT_EQ(enteroTecleado(texto.substr(0, texto.size() - 3)), valor);
    }
}

TEST(Cifras, LasExactasSonTodasLasQueTieneElValor) {
    const auto comparar = [](double valor) {
        std::array<char, 800> sitio{};
        const auto fin =
            std::to_chars(sitio.begin(), sitio.end(), std::abs(valor), std::chars_format::scientific, 766);
        std::string todas(sitio.data(), fin.ptr);
        todas.resize(todas.find('e'));
        todas.erase(1, 1);
        todas.resize(todas.find_last_not_of('0') + 1);
        ASSERT_EQ(cifrasExactas(valor).cifras, todas) << valor;
    };
    using Limites = std::numeric_limits<double>;
    for (const double valor :
         {Limites::denorm_min(), Limites::min(), Limites::max(), 0.1, 0.5, 1.0, 8.0, 9.5, 1e22, 1e23})
        comparar(valor);
    std::mt19937_64 azar(3);
    for (int i = 0; i < 5000; ++i) {
        const auto valor = std::bit_cast<double>(azar());
        if (std::isfinite(valor)) comparar(valor);
        comparar(static_cast<float>(azar() % 200000000) / 1000);
    }
}

TEST(TextoReal, SusCifrasSonSiempreLasDelValorExactoRedondeado) {
    const auto comparar = [](double valor) {
        for (const int cuantas : {7, 15}) {
            const Cifras exactas = recortar(cifrasExactas(valor), cuantas);
            const Cifras primeras = primerasCifras(valor, cuantas);
            ASSERT_EQ(primeras.cifras, exactas.cifras) << valor;
            ASSERT_EQ(primeras.punto, exactas.punto) << valor;
            ASSERT_EQ(primeras.negativo, exactas.negativo) << valor;
        }
    };
    std::mt19937_64 azar(11);
    for (int i = 0; i < 3000; ++i) {
        comparar(std::bit_cast<double>(azar()));
        comparar(std::bit_cast<float>(static_cast<std::uint32_t>(azar())));
        const int exponente = static_cast<int>(azar() % 330) - 330;
        comparar(static_cast<double>(azar() % 1000000000000000) * std::pow(10.0, exponente / 2.0));
        comparar(static_cast<double>(azar() % 100000) / 64);
        comparar(std::nextafter(std::ldexp(1.0, exponente), azar() % 2 == 0 ? infinito : -infinito));
        comparar(std::ldexp(static_cast<double>(azar() % 1000), -1074));
    }
    for (const double valor : {0.0, -0.0, infinito, -infinito, ninguno, std::numeric_limits<double>::max(),
                               std::numeric_limits<double>::min(), std::numeric_limits<double>::denorm_min()})
        comparar(valor);
}

TEST(TextoReal, ElCaminoCortoDaLasMismasCifrasQueElLargo) {
    const auto comparar = [](double valor, int cuantas) {
        const auto corto = decimalCorto(valor, cuantas);
        if (!corto) return 0;
        const Cifras largo = recortar(cifrasExactas(valor), cuantas);
        std::string cifras = corto->numero == 0 ? "" : std::to_string(corto->numero);
        const int punto = static_cast<int>(cifras.size()) - corto->decimales;
        while (cifras.ends_with('0'))
            cifras.pop_back();
        EXPECT_EQ(cifras, largo.cifras) << valor;
        EXPECT_EQ(cifras.empty() ? 0 : punto, largo.punto) << valor;
        return 1;
    };
    std::mt19937_64 azar(29);
    int dobles = 0;
    int simples = 0;
    for (int i = 0; i < 20000; ++i) {
        const double escala = std::pow(10.0, static_cast<double>(azar() % 20) - 4);
        const auto suelto = static_cast<double>(azar() % 100000000) / 1e8 * escala;
        comparar(suelto, 15);
        dobles += comparar(std::round(suelto * 100) / 100, 15);
        simples += comparar(static_cast<float>(suelto), 7);
        comparar(std::ldexp(static_cast<double>(azar() % 20000000), -static_cast<int>(azar() % 30)), 7);
    }
    EXPECT_GT(dobles, 10000);
    EXPECT_GT(simples, 10000);
    for (const double valor : {0.0, 0.5, 1e-5, 9999998.5, 9999999.0, 9999999.5, 99999.995, 1e7,
                               999999999999999.0, 999999999999998.5, 1e15, infinito, ninguno}) {
        comparar(valor, 7);
        comparar(valor, 15);
        comparar(static_cast<float>(valor), 7);
    }
}

TEST(Formatos, UnificarPoneSiemprePunto) {
    for (const char* nombre : {Idioma::espanol, Idioma::ingles}) {
        const Idioma idioma(nombre);
        EXPECT_EQ(UnificarFormato("1,5"), "1.5");
        EXPECT_EQ(UnificarFormato("1.5"), "1.5");
        EXPECT_EQ(UnificarFormato("a,b,,c"), "a.b..c");
        EXPECT_EQ(UnificarFormato(""), "");
    }
}

TEST(Formatos, AplicarPoneElSeparadorDelIdioma) {
    {
        const Idioma idioma(Idioma::espanol);
        EXPECT_EQ(AplicarFormato("1.5"), "1,5");
        EXPECT_EQ(AplicarFormato("1,5"), "1,5");
    }
    const Idioma idioma(Idioma::ingles);
    EXPECT_EQ(AplicarFormato("1.5"), "1.5");
    EXPECT_EQ(AplicarFormato("1,5"), "1,5");
}

TEST(Formatos, UnRealNormalizadoSobreviveAUnCambioDeIdioma) {
    std::string texto;
    {
        const Idioma idioma(Idioma::espanol);
        texto = UnificarFormato(textoReal(1234.5));
        EXPECT_EQ(texto, "1234.5");
        EXPECT_EQ(realDeTexto(AplicarFormato(texto)), 1234.5);
    }
    const Idioma idioma(Idioma::ingles);
    EXPECT_EQ(realDeTexto(AplicarFormato(texto)), 1234.5);
}
