#include "apoyo/disco_dificil.h"
#include "apoyo/perfil.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace bosquel;
using apoyo::DiscoLleno;
using apoyo::SinPrivilegios;
namespace fs = std::filesystem;

namespace {

class DiscoPerfil : public apoyo::Perfil {
  protected:
    static fs::perms permisos(const fs::path& ruta) { return fs::status(ruta).permissions(); }
};

}  // namespace

TEST_F(DiscoPerfil, VolcarNoDejaNadaAlLado) {
    guardar("s", "k", "1");
    guardar("s", "k", "2");
    EXPECT_EQ(carpeta_.cuantos(), 1);
    EXPECT_EQ(leer("s", "k"), "2");
}

TEST_F(DiscoPerfil, SinCambiosNoSeEscribe) {
    ArchivoPerfil(ruta_).volcar();
    EXPECT_EQ(carpeta_.cuantos(), 0);
    poner("[s]\r\nk=1\r\n");
    ArchivoPerfil archivo(ruta_);
    archivo.guardar("s", "k", "1");
    fs::remove(ruta_);
    archivo.volcar();
    EXPECT_EQ(carpeta_.cuantos(), 0);
}

TEST_F(DiscoPerfil, VolcarDosVecesEscribeUnaSola) {
    ArchivoPerfil archivo(ruta_);
    archivo.guardar("s", "k", "1");
    archivo.volcar();
    fs::remove(ruta_);
    archivo.volcar();
    EXPECT_EQ(carpeta_.cuantos(), 0);
}

TEST_F(DiscoPerfil, UnaCarpetaEnSuLugarSeLeeVaciaYNoSeToca) {
    fs::create_directory(ruta_);
    EXPECT_EQ(leer("s", "k"), "-");
    guardar("s", "k", "1");
    EXPECT_TRUE(fs::is_directory(ruta_));
    EXPECT_EQ(carpeta_.cuantos(), 1);
}

TEST_F(DiscoPerfil, UnaCarpetaQueFaltaNoSeHace) {
    GuardarIni(carpeta_ / "no" / "Bqr.ini", "s", "k", "1");
    GuardarIni(carpeta_ / "no" / "", "s", "k", "1");
    EXPECT_EQ(carpeta_.cuantos(), 0);
    poner("");
    GuardarIni(ruta_ / "Bqr.ini", "s", "k", "1");
    EXPECT_EQ(bytes(), "");
    EXPECT_EQ(LeerIni(ruta_ / "Bqr.ini", "s", "k", "-"), "-");
}

TEST_F(DiscoPerfil, EnUnaCarpetaDeSoloLecturaNoPasaNada) {
    poner("[s]\r\nk=1\r\n");
    fs::permissions(carpeta_.ruta(), fs::perms{0555});
    {
        const SinPrivilegios nadie;
        EXPECT_EQ(leer("s", "k"), "1");
        guardar("s", "k", "2");
        GuardarIni(carpeta_ / "otro.ini", "s", "k", "2");
    }
    fs::permissions(carpeta_.ruta(), fs::perms::owner_all);
    EXPECT_EQ(bytes(), "[s]\r\nk=1\r\n");
    EXPECT_EQ(carpeta_.cuantos(), 1);
}

TEST_F(DiscoPerfil, UnDiscoLlenoDejaLoQueHabiaYSePuedeVolverAVolcar) {
    poner("[s]\r\nk=1\r\n");
    ArchivoPerfil archivo(ruta_);
    archivo.guardar("s", "k", std::string(200, 'x'));
    {
        const DiscoLleno lleno(100);
        archivo.volcar();
    }
    EXPECT_EQ(bytes(), "[s]\r\nk=1\r\n");
    EXPECT_EQ(carpeta_.cuantos(), 1);
    archivo.volcar();
    EXPECT_EQ(leer("s", "k"), std::string(200, 'x'));
}

TEST_F(DiscoPerfil, UnArchivoDeSoloLecturaOIlegibleSeConserva) {
    fs::permissions(carpeta_.ruta(), fs::perms{0777});
    for (const fs::perms modo : {fs::perms{0444}, fs::perms{0222}, fs::perms{0000}}) {
        poner("[s]\r\nk=1\r\n");
        fs::permissions(ruta_, modo);
        {
            const SinPrivilegios nadie;
            guardar("s", "j", "2");
        }
        fs::permissions(ruta_, fs::perms{0777});
        EXPECT_EQ(bytes(), "[s]\r\nk=1\r\n");
    }
    EXPECT_EQ(carpeta_.cuantos(), 1);
}

TEST_F(DiscoPerfil, LosPermisosSeConservan) {
    poner("[s]\r\nk=1\r\n");
    fs::permissions(ruta_, fs::perms{0610});
    guardar("s", "k", "2");
    EXPECT_EQ(permisos(ruta_), fs::perms{0610});
}

TEST_F(DiscoPerfil, UnArchivoNuevoSigueLaMascaraDelProceso) {
    const mode_t anterior = ::umask(027);
    guardar("s", "k", "1");
    ::umask(anterior);
    EXPECT_EQ(permisos(ruta_), fs::perms{0640});
}

TEST_F(DiscoPerfil, UnEnlaceSeSigue) {
    fs::create_directory(carpeta_ / "lejos");
    const fs::path destino = carpeta_ / "lejos" / "real.ini";
    fs::create_symlink("lejos/real.ini", carpeta_ / "medio.ini");
    fs::create_symlink(carpeta_ / "medio.ini", ruta_);
    guardar("s", "k", "1");  // the target does not exist yet
    guardar("s", "j", "2");
    EXPECT_TRUE(fs::is_symlink(ruta_));
    EXPECT_TRUE(fs::is_symlink(carpeta_ / "medio.ini"));
    EXPECT_EQ(apoyo::bytesDe(destino), "[s]\r\nk=1\r\nj=2\r\n");
}

TEST_F(DiscoPerfil, UnEnlaceQueDaVueltasSeQuedaComoEsta) {
    fs::create_symlink(ruta_, ruta_);
    guardar("s", "k", "1");
    EXPECT_EQ(leer("s", "k"), "-");
    EXPECT_TRUE(fs::is_symlink(ruta_));
    EXPECT_EQ(carpeta_.cuantos(), 1);
}

TEST_F(DiscoPerfil, LoQueNoEsUnArchivoNiSeLeeNiSeEscribe) {
    ASSERT_EQ(::mkfifo(ruta_.c_str(), 0600), 0);
    EXPECT_EQ(leer("s", "k"), "-");
    guardar("s", "k", "1");
    EXPECT_TRUE(fs::is_fifo(ruta_));
    EXPECT_EQ(LeerIni("/dev/zero", "s", "k", "-"), "-");
}

TEST_F(DiscoPerfil, UnNombreTanLargoComoCabeSeEscribe) {
    const fs::path ruta = carpeta_ / (std::string(251, 'n') + ".bqr");
    GuardarIni(ruta, "s", "k", "1");
    EXPECT_EQ(LeerIni(ruta, "s", "k"), "1");
    GuardarIni(carpeta_ / std::string(300, 'n'), "s", "k", "1");
    EXPECT_EQ(carpeta_.cuantos(), 1);
}

TEST_F(DiscoPerfil, UnNombreProvisionalAbandonadoNoEstorba) {
    const fs::path abandonado = carpeta_ / (".bqr-" + std::to_string(::getpid()) + "-0.tmp");
    apoyo::ponerBytes(abandonado, "de otro");
    guardar("s", "k", "1");
    EXPECT_EQ(leer("s", "k"), "1");
    EXPECT_EQ(apoyo::bytesDe(abandonado), "de otro");
}

TEST_F(DiscoPerfil, UnArchivoSePuedeMover) {
    ArchivoPerfil uno(ruta_);
    uno.guardar("s", "k", "1");
    ArchivoPerfil otro(std::move(uno));
    otro.volcar();
    EXPECT_EQ(leer("s", "k"), "1");

    ArchivoPerfil tercero(carpeta_ / "tercero.ini");
    tercero = std::move(otro);
    tercero.guardar("s", "k", "2");
    tercero.volcar();
    EXPECT_EQ(leer("s", "k"), "2");
}
