#include "ui/ayuda_sumario.h"

#include <gtest/gtest.h>

using namespace bosquel;

namespace {

QByteArray objeto(const char* parametros) {
    return QByteArray("<li><object type=\"text/sitemap\">") + parametros + "</object>";
}

}  // namespace

TEST(SumarioAyuda, LasListasDanElNivelDeCadaEntrada) {
    const QByteArray mapa = "<ul>" + objeto(R"(<param name="Name" value="Paredes">)") + "<ul>" +
                            objeto(R"(<param name="Name" value="Mover">
                                      <param name="Local" value="paredes.html#mover">)") +
                            "</ul>" + objeto(R"(<param name="Name" value="Cocina">)") + "</ul>";
    const auto entradas = leerSumario(mapa);
    ASSERT_EQ(entradas.size(), 3);
    EXPECT_EQ(entradas[0].nivel, 0);
    EXPECT_EQ(entradas[0].nombre, "Paredes");
    EXPECT_EQ(entradas[0].destino, "");
    EXPECT_EQ(entradas[1].nivel, 1);
    EXPECT_EQ(entradas[1].nombre, "Mover");
    EXPECT_EQ(entradas[1].destino, "paredes.html#mover");
    EXPECT_EQ(entradas[2].nivel, 0);
}

TEST(SumarioAyuda, LosNombresTraenAcentosDirectosOPorEntidades) {
    const auto entradas = leerSumario(objeto(R"(<param name="Name" value="Bañera &amp; ba&ntilde;o">)"));
    ASSERT_EQ(entradas.size(), 1);
    EXPECT_EQ(entradas[0].nombre, "Bañera & baño");
}

TEST(SumarioAyuda, DaIgualElTamanoDeLasLetrasYElOrdenDeLosAtributos) {
    const auto entradas = leerSumario(
        "<UL><LI><OBJECT TYPE='x'><PARAM VALUE=\"a.html\" NAME=\"local\"><Param Name=\"NAME\" Value=\"A > "
        "B\"></OBJECT></UL>");
    ASSERT_EQ(entradas.size(), 1);
    EXPECT_EQ(entradas[0].nombre, "A > B");
    EXPECT_EQ(entradas[0].destino, "a.html");
}

TEST(SumarioAyuda, DeVariosDestinosValeElPrimero) {
    const auto entradas =
        leerSumario(objeto(R"(<param name="Name" value="A"><param name="Local" value="1.html">
                                                <param name="Name" value="B"><param name="Local" value="2.html">)"));
    ASSERT_EQ(entradas.size(), 1);
    EXPECT_EQ(entradas[0].nombre, "A");
    EXPECT_EQ(entradas[0].destino, "1.html");
}

TEST(SumarioAyuda, LoQueNoSeEntiendeSePasaPorAlto) {
    EXPECT_TRUE(leerSumario("").isEmpty());
    EXPECT_TRUE(leerSumario("<ul><li><object><param name=").isEmpty());
    EXPECT_TRUE(leerSumario(objeto(R"(<param name="Local" value="sin-nombre.html">)")).isEmpty());
    EXPECT_TRUE(leerSumario("</ul></ul></object></object>\xFF\xFE").isEmpty());
}

TEST(SumarioAyuda, NingunaEntradaEstaMasDeUnNivelPorDebajoDeLaAnterior) {
    const QByteArray nombre = R"(<param name="Name" value="A">)";
    const auto hondas = leerSumario(QByteArray("<ul>").repeated(5000) + objeto(nombre) + objeto(nombre));
    ASSERT_EQ(hondas.size(), 2);
    EXPECT_EQ(hondas[0].nivel, 0);
    EXPECT_EQ(hondas[1].nivel, 1);
    const auto cerradas =
        leerSumario(QByteArray("</ul>").repeated(10) + objeto(nombre) + "<ul>" + objeto(nombre));
    ASSERT_EQ(cerradas.size(), 2);
    EXPECT_EQ(cerradas[1].nivel, 0);
}

TEST(SumarioAyuda, LasPaginasVanEnElOrdenDelContenidoYLasOtrasDetras) {
    const ArchivoAyuda archivo{
        {"a.html", ""},
        {"b.htm", ""},
        {"c.html", ""},
        {"estilo.css", ""},
        {"x.hhc", objeto(R"(<param name="Name" value="C"><param name="Local" value="c.html#uno">)") +
                      objeto(R"(<param name="Name" value="D"><param name="Local" value="falta.html">)") +
                      objeto(R"(<param name="Name" value="C2"><param name="Local" value="c.html">)")}};
    EXPECT_EQ(paginasAyuda(archivo), QStringList({"c.html", "a.html", "b.htm"}));
    EXPECT_TRUE(paginasAyuda({}).isEmpty());
    EXPECT_TRUE(contenidoAyuda({}).isEmpty());
    EXPECT_TRUE(indiceAyuda({}).isEmpty());
}
