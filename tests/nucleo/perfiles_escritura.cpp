#include "apoyo/perfil.h"

#include <gtest/gtest.h>

using namespace bosquel;

namespace {

class EscrituraPerfil : public apoyo::Perfil {};

}  // namespace

TEST_F(EscrituraPerfil, UnArchivoNuevoTieneLasSeccionesEnSuOrden) {
    guardar("General", "a", "1");
    guardar("Mesa(12)", "x", "2,5");
    guardar("General", "b", "3");
    EXPECT_EQ(bytes(), "[General]\r\na=1\r\nb=3\r\n\r\n[Mesa(12)]\r\nx=2,5\r\n");
    EXPECT_EQ(leer("general", "B"), "3");
}

TEST_F(EscrituraPerfil, EscribirDosVecesDejaUnaLineaEnSuSitio) {
    guardar("General", "NumBidet", "1");
    guardar("General", "NumMesa", "5");
    guardar("General", "NumBidet", "2");
    EXPECT_EQ(bytes(), "[General]\r\nNumBidet=2\r\nNumMesa=5\r\n");
}

TEST_F(EscrituraPerfil, LaEneEsUnSoloByte) {
    guardar("Bañera(3)", "NumBañera", "ñ€Ω");
    EXPECT_EQ(bytes(),
              "[Ba\xF1"
              "era(3)]\r\nNumBa\xF1"
              "era=\xF1\x80?\r\n");
    EXPECT_EQ(leer("BAÑERA(3)", "NUMBAÑERA"), "ñ€?");
}

TEST_F(EscrituraPerfil, LaClaveConservaComoEstaEscrita) {
    poner("[s]\n  NUMMESA = 1\nb=2\n");
    guardar("S", "NumMesa", "7");
    EXPECT_EQ(bytes(), "[s]\nNUMMESA=7\r\nb=2\n");
}

TEST_F(EscrituraPerfil, UnaClaveNuevaVaTrasLaUltimaLineaConTexto) {
    poner("[a]\r\nx=1\r\n\r\nsuelta\r\n \t\r\n\r\n[b]\r\n\r\n");
    guardar("a", "y", "2");
    guardar("b", "z", "3");
    EXPECT_EQ(bytes(), "[a]\r\nx=1\r\n\r\nsuelta\r\ny=2\r\n \t\r\n\r\n[b]\r\nz=3\r\n\r\n");
}

TEST_F(EscrituraPerfil, UnaUltimaLineaSinFinRecibeElSuyo) {
    poner("[a]\nx=1");
    guardar("a", "y", "2");
    EXPECT_EQ(bytes(), "[a]\nx=1\r\ny=2\r\n");
    poner("[a]");
    guardar("b", "y", "2");
    EXPECT_EQ(bytes(), "[a]\r\n\r\n[b]\r\ny=2\r\n");
    poner("suelta");
    guardar("b", "y", "2");
    EXPECT_EQ(bytes(), "suelta\r\n[b]\r\ny=2\r\n");
    poner("[a]\r\n  ");
    guardar("b", "y", "2");
    EXPECT_EQ(bytes(), "[a]\r\n  \r\n\r\n[b]\r\ny=2\r\n");
    poner("[a]\r\nx=1");
    guardar("a", "x", "2");
    EXPECT_EQ(bytes(), "[a]\r\nx=2\r\n");
}

TEST_F(EscrituraPerfil, LosBlancosDeLosNombresPedidosNoSeEscriben) {
    guardar(" s\t", "\vk ", " v ");
    EXPECT_EQ(bytes(), "[s]\r\nk= v \r\n");
    EXPECT_EQ(leer("s", "k"), "v");
}

TEST_F(EscrituraPerfil, LoQueSigueAUnSaltoEsOtraLinea) {
    guardar("s", "a", "uno\r\nb=dos\n[t]\rc=tres");
    EXPECT_EQ(leer("s", "a"), "uno");
    EXPECT_EQ(leer("s", "b"), "dos");
    EXPECT_EQ(leer("t", "c"), "tres");
    ArchivoPerfil archivo(ruta_);
    archivo.guardar("s", "a", "x\r\n[u]\r\nd=cuatro");
    EXPECT_EQ(archivo.leer("u", "d"), "cuatro");
    EXPECT_EQ(archivo.leer("s", "b", "-"), "-");
    EXPECT_EQ(archivo.leer("u", "b"), "dos");
}

TEST_F(EscrituraPerfil, UnaClaveQueHaceCabeceraAbreUnaSeccion) {
    ArchivoPerfil archivo(ruta_);
    archivo.guardar("s", "[k", "v]");
    EXPECT_FALSE(archivo.buscar("s", "[k"));
    archivo.guardar("k=v", "x", "1");
    archivo.volcar();
    EXPECT_EQ(bytes(), "[s]\r\n[k=v]\r\nx=1\r\n");
}

TEST_F(EscrituraPerfil, UnaTandaDaLosMismosBytesQueLlamadaALlamada) {
    const std::filesystem::path otra = carpeta_ / "otra.ini";
    ArchivoPerfil tanda(otra);
    for (int i = 0; i < 60; ++i) {
        const std::string seccion = "Mesa(" + std::to_string(i % 7) + ")";
        const std::string clave = "Clave" + std::to_string(i % 11);
        guardar(seccion, clave, std::to_string(i));
        tanda.guardar(seccion, clave, std::to_string(i));
        EXPECT_EQ(tanda.leer(seccion, clave), std::to_string(i));
    }
    EXPECT_FALSE(std::filesystem::exists(otra));
    tanda.volcar();
    EXPECT_EQ(apoyo::bytesDe(otra), bytes());
}

// In time that grew with the square of the keys this would take hours, and ctest ends it.
TEST_F(EscrituraPerfil, CincuentaMilClavesSeGuardanYSeLeen) {
    const auto seccion = [](int i) { return "Mesa(" + std::to_string(i / 50) + ")"; };
    const auto clave = [](int i) { return "UnaClaveLarga" + std::to_string(i % 50); };
    constexpr int cuantas = 50'000;
    for (int vuelta = 0; vuelta < 2; ++vuelta) {
        ArchivoPerfil archivo(ruta_);
        for (int i = 0; i < cuantas; ++i)
            archivo.guardar(seccion(i), clave(i), std::to_string(i * (vuelta + 1)));
        archivo.volcar();
    }
    const ArchivoPerfil archivo(ruta_);
    for (int i = 0; i < cuantas; ++i)
        ASSERT_EQ(archivo.leer(seccion(i), clave(i)), std::to_string(i * 2));
}
