#include "surface/escritor_svg.h"

#include <gtest/gtest.h>
#include <numbers>

using namespace bosquel;

namespace {

constexpr double pi = std::numbers::pi;

bool contiene(const EscritorSvg& hoja, std::string_view texto) {
    return hoja.documento().find(texto) != std::string::npos;
}

}  // namespace

TEST(EscritorSvg, CadaTrazoEsUnElementoYElDocumentoEstaEntero) {
    EscritorSvg hoja({0, 0, 200, 100}, 2, 400);
    hoja.Line(1, 2, 3, 4.125, rojo);
    hoja.Caja(50, 40, 10, 20, negro);
    hoja.FillStyle(Relleno::solido);
    hoja.FillColor(verdeAzulado);
    hoja.Circle({5, 6, 7}, negro);
    hoja.Circle({5, 6, 10, {}, 2}, negro);
    EXPECT_EQ(
        hoja.documento(),
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"400\" height=\"200\" viewBox=\"0 0 200 100\" "
        "stroke-width=\"2\" stroke-linecap=\"round\" font-family=\"sans-serif\">\n"
        "<line x1=\"1\" y1=\"2\" x2=\"3\" y2=\"4.13\" stroke=\"#FF0000\" fill=\"none\"/>\n"
        "<rect x=\"10\" y=\"20\" width=\"40\" height=\"20\" stroke=\"#000000\" fill=\"none\"/>\n"
        "<ellipse cx=\"5\" cy=\"6\" rx=\"7\" ry=\"7\" stroke=\"#000000\" fill=\"#00C0C0\"/>\n"
        "<ellipse cx=\"5\" cy=\"6\" rx=\"5\" ry=\"10\" stroke=\"#000000\" fill=\"#00C0C0\"/>\n"
        "</svg>\n");
}

TEST(EscritorSvg, LosArcosVanContraElRelojYNuncaSeRellenan) {
    EscritorSvg hoja({0, 0, 100, 100}, 1, 100);
    hoja.FillStyle(Relleno::solido);
    hoja.Circle({0, 0, 10, Arco{0, pi / 2}}, negro);
    EXPECT_TRUE(contiene(hoja, "M 10 0 A 10 10 0 0 0 0 -10\" stroke=\"#000000\" fill=\"none\""));
    hoja.Circle({0, 0, 10, Arco{pi / 2, 0}}, negro);
    EXPECT_TRUE(contiene(hoja, "M 0 -10 A 10 10 0 1 0 10 0\""));
    hoja.Circle({3, 4, 10, Arco{1, 1}}, negro);
    EXPECT_TRUE(
        contiene(hoja, "<ellipse cx=\"3\" cy=\"4\" rx=\"10\" ry=\"10\" stroke=\"#000000\" fill=\"none\""));
}

TEST(EscritorSvg, UnTextoSeEscribeConSusSignosProtegidos) {
    EscritorSvg hoja({0, 0, 100, 100}, 1, 100);
    hoja.FontSize(5);
    hoja.CurrentX(10);
    hoja.CurrentY(0);
    hoja.ForeColor(rojo);
    hoja.Print("a<b & c");
    EXPECT_TRUE(
        contiene(hoja, "<text x=\"10\" y=\"93\" font-size=\"100\" fill=\"#FF0000\">a&lt;b &amp; c</text>"));
}
