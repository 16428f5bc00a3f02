#include "ui/ayuda_busqueda.h"

#include <gtest/gtest.h>

using namespace bosquel;

namespace {

QByteArray pagina(const char* titulo, const char* texto) {
    return QString("<html><head><title>%1</title></head><body><h1>%1</h1><p>%2</p></body></html>")
        .arg(titulo, texto)
        .toUtf8();
}

struct BusquedaAyuda : testing::Test {
    ArchivoAyuda archivo{{"bano.html", pagina("Baño", "La bañera y el lavabo. Árbol.")},
                         {"pared.html", pagina("Paredes", "Un muro junto al baño.")},
                         {"otra.html", pagina("Otra", "<b>Supr</b>ime.")}};
    BuscadorAyuda buscador{archivo, {"pared.html", "bano.html", "otra.html"}};

    QStringList paginas(const QString& busqueda) const {
        QStringList halladas;
        for (const HallazgoAyuda& hallazgo : buscador.buscar(busqueda))
            halladas += hallazgo.pagina;
        return halladas;
    }
};

}  // namespace

TEST_F(BusquedaAyuda, NoDistingueAcentosNiMayusculas) {
    EXPECT_EQ(paginas("BAÑERA"), QStringList({"bano.html"}));
    EXPECT_EQ(paginas("banera"), QStringList({"bano.html"}));
    EXPECT_EQ(paginas("arbol"), QStringList({"bano.html"}));
}

TEST_F(BusquedaAyuda, LasPaginasConLaPalabraEnElTituloVanDelante) {
    EXPECT_EQ(paginas("baño"), QStringList({"bano.html", "pared.html"}));
}

TEST_F(BusquedaAyuda, BuscaPrincipiosDePalabra) {
    EXPECT_EQ(paginas("lav"), QStringList({"bano.html"}));
    EXPECT_TRUE(paginas("vabo").isEmpty());
}

TEST_F(BusquedaAyuda, TodasLasPalabrasHanDeEstarEnTituloOTexto) {
    EXPECT_EQ(paginas("muro paredes"), QStringList({"pared.html"}));
    EXPECT_TRUE(paginas("muro lavabo").isEmpty());
}

TEST_F(BusquedaAyuda, SinPalabrasNoHallaNada) {
    EXPECT_TRUE(paginas("").isEmpty());
    EXPECT_TRUE(paginas("  a  ").isEmpty());
}

TEST_F(BusquedaAyuda, LasMarcasDeLaPaginaNoSonTexto) {
    EXPECT_EQ(paginas("suprime"), QStringList({"otra.html"}));
    EXPECT_TRUE(paginas("body").isEmpty());
}

TEST_F(BusquedaAyuda, ElFragmentoEsElTextoQueRodeaALaPalabraSinElTitulo) {
    EXPECT_EQ(buscador.buscar("lavabo").front().fragmento, "La bañera y el lavabo. Árbol.");
    const QString relleno = QString("palabra ").repeated(40);
    const BuscadorAyuda largo({{"a.html", (relleno + "ventana " + relleno).toUtf8()}}, {"a.html"});
    const QString fragmento = largo.buscar("ventana").front().fragmento;
    EXPECT_TRUE(fragmento.startsWith("… palabra")) << fragmento.toStdString();
    EXPECT_TRUE(fragmento.endsWith("palabra …")) << fragmento.toStdString();
    EXPECT_TRUE(fragmento.contains(" ventana "));
    EXPECT_LT(fragmento.size(), 100);
}

TEST(PlegarAyuda, ElTextoConservaSuLargo) {
    EXPECT_EQ(plegarAyuda("Ángulo de -90º, Ñ"), "angulo de -90º, n");
}

TEST(SitiosAyuda, SonLosPrincipiosDePalabra) {
    EXPECT_EQ(sitiosAyuda("muro, muros y sotomuro", "muro"), QList<qsizetype>({0, 6}));
    EXPECT_TRUE(sitiosAyuda("muro", "x").isEmpty());
}
