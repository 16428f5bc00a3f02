#include "ui/ayuda_archivo.h"

#include "apoyo/carpeta_temporal.h"

#include <gtest/gtest.h>
#include <random>

using namespace bosquel;
using apoyo::CarpetaTemporal;

namespace {

const std::string& manual() {
    static const std::string bytes = apoyo::bytesDe(BOSQUEL_MANUAL);
    return bytes;
}

/// What is read of a file with these bytes.
ArchivoAyuda leer(std::string_view bytes) {
    const CarpetaTemporal carpeta;
    apoyo::ponerBytes(carpeta / "Bosquel.chm", bytes);
    return leerArchivoAyuda(carpeta / "Bosquel.chm");
}

}  // namespace

TEST(ArchivoAyuda, TraeLasPaginasYLasTablasEnteras) {
    const ArchivoAyuda archivo = leerArchivoAyuda(BOSQUEL_MANUAL);
    EXPECT_TRUE(archivo.value("paredes.html").trimmed().endsWith("</html>"));
    EXPECT_TRUE(archivo.value("estilo.css").contains("h1"));
    EXPECT_TRUE(archivo.value("Bosquel.hhc").contains("text/sitemap"));
    EXPECT_TRUE(archivo.value("Bosquel.hhk").contains("text/sitemap"));
}

TEST(ArchivoAyuda, UnFicheroQueFaltaNoTraeNada) {
    const CarpetaTemporal carpeta;
    EXPECT_TRUE(leerArchivoAyuda(carpeta / "Bosquel.chm").isEmpty());
}

TEST(ArchivoAyuda, UnaCarpetaNoTraeNada) {
    const CarpetaTemporal carpeta;
    EXPECT_TRUE(leerArchivoAyuda(carpeta.ruta()).isEmpty());
}

TEST(ArchivoAyuda, LoQueNoEsUnFicheroDeAyudaNoTraeNada) {
    EXPECT_TRUE(leer("").isEmpty());
    EXPECT_TRUE(leer("ITSF").isEmpty());
    EXPECT_TRUE(leer("[Cabecera]\r\nNumPared=3\r\n").isEmpty());
    std::mt19937 azar(7);
    std::string basura(20000, '\0');
    for (char& byte : basura)
        byte = static_cast<char>(azar());
    EXPECT_TRUE(leer(basura).isEmpty());
    EXPECT_TRUE(leer("ITSF" + basura).isEmpty());
}

TEST(ArchivoAyuda, UnFicheroCortadoNoTraeNada) {
    for (const double parte : {0.001, 0.05, 0.2, 0.4, 0.6, 0.8, 0.95}) {
        const auto largo = static_cast<std::size_t>(parte * static_cast<double>(manual().size()));
        EXPECT_TRUE(leer(std::string_view(manual()).substr(0, largo)).isEmpty()) << largo;
    }
}

TEST(ArchivoAyuda, UnFicheroConBytesCambiadosTraeTodoONadaSinCaerse) {
    const qsizetype cuantos = leer(manual()).size();
    ASSERT_GT(cuantos, 0);
    std::mt19937 azar(11);
    for (int vez = 0; vez < 60; ++vez) {
        std::string danado = manual();
        // The head and the directory, where one byte turns everything over; and anywhere.
        const std::size_t hasta = vez % 2 == 0 ? 4500 : danado.size();
        for (int i = 0; i < 4; ++i)
            danado[azar() % hasta] = static_cast<char>(azar());
        const qsizetype traidos = leer(danado).size();
        EXPECT_LE(traidos, cuantos) << vez;
    }
}

TEST(ArchivoAyuda, UnaCabeceraQueDivideEntreCeroNoSeLlevaElPrograma) {
    // The size of the window of the compression, in the block that begins so.
    std::string danado = manual();
    const std::size_t bloque = danado.find("LZXC");
    ASSERT_NE(bloque, std::string::npos);
    danado.replace(bloque + 12, 4, 4, '\0');
    EXPECT_TRUE(leer(danado).isEmpty());
}

TEST(ArchivoAyuda, UnDirectorioQueSeMuerdeLaColaNoDetieneElPrograma) {
    // The next block of the first one is itself.
    std::string danado = manual();
    const std::size_t bloque = danado.find("PMGL");
    ASSERT_NE(bloque, std::string::npos);
    danado.replace(bloque + 16, 4, 4, '\0');
    EXPECT_TRUE(leer(danado).isEmpty());
}

TEST(TextoAyuda, EsUTF8SiPuedeSerloYWindows1252SiNo) {
    EXPECT_EQ(textoAyuda("Bañera, ¿sí?"), QString("Bañera, ¿sí?"));
    EXPECT_EQ(textoAyuda("Ba\xF1"
                         "era \x80"),
              QString("Bañera €"));
    EXPECT_EQ(textoAyuda(""), QString());
}
