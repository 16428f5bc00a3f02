#include "apoyo/idioma.h"
#include "apoyo/mensajes.h"
#include "apoyo/prueba_colores.h"
#include "appearance/colores.h"

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

const Mensaje guardado{"Aviso", "Perfil Guardado con éxito", Icono::informacion, Botones::aceptar};
const Mensaje yaExiste{"Aviso", "Ya existe un perfil con ese nombre. ¿Desea sobreescribirlo?",
                       Icono::pregunta, Botones::siNo};

const std::string lineas = repetir("-2147483640", 18), fondos = repetir("-2147483643", 12);

struct PruebaPerfiles : PruebaColores {
    PruebaPerfiles() { dibujo.Esquema = "Perfil Predefinido"; }

    /// What the profile's list of types reads, shown by a dialog that has just been opened.
    Colores conPerfil(const std::string& nombre) {
        Colores dialogo = abrir();
        dialogo.escribirPerfil(nombre);
        return dialogo;
    }
};

}  // namespace

using ColoresGuardar = PruebaPerfiles;
using ColoresFichero = PruebaPerfiles;

TEST_F(ColoresGuardar, UnPerfilNuevoSeEscribeEnteroYQuedaElegido) {
    Colores dialogo = abrir();
    dialogo.cmdLineColor(0, rojo);
    dialogo.cmdLineColor(17, verde);
    dialogo.cmdBackColor(11, azul);
    dialogo.cmdLineCatColor(3, 1);
    dialogo.cmdLineCatColor(7, 7);
    guarda(dialogo, "Playa");
    EXPECT_EQ(fichero(),
              "[Carga]\r\nNumeroPerfiles=1\r\nPerfil1=Playa\r\n\r\n"
              "[PerfilesVarios]\r\nPlaya=1#-2147483640#-2147483640#-2147483640#7\r\n\r\n"
              "[PerfilesLineas]\r\nPlaya=255#" +
                  repetir("-2147483640", 16) +
                  "#65280\r\n\r\n"
                  "[PerfilesFondos]\r\nPlaya=" +
                  repetir("-2147483643", 11) + "#16711680\r\n");
    EXPECT_EQ(dialogo.perfiles(), std::vector<std::string>{"Playa"});
    EXPECT_EQ(dialogo.cboPerfil(), "Playa");
    EXPECT_TRUE(todos(dialogo.chkColores, true)) << "a profile that is selected is shown";
    EXPECT_EQ(dialogo.txtLineColor()[0], rojo);
    esperarMensaje(plataforma.mensajes, guardado);
    ASSERT_EQ(plataforma.preguntasDeTexto.size(), 1U);
    EXPECT_EQ(plataforma.preguntasDeTexto[0].titulo, "Guardar Perfil");
    EXPECT_EQ(plataforma.preguntasDeTexto[0].texto, "Establezca el nombre para el nuevo perfil");
}

TEST_F(ColoresGuardar, ConNombreVacioAvisaYNoGuardaNada) {
    Colores dialogo = abrir();
    guarda(dialogo, "Playa");
    const std::string antes = fichero();
    for (const bool cancelado : {false, true}) {
        dialogo.SeleccionarPerfil("Playa");
        if (cancelado) {
            plataforma.mensajes.clear();
            dialogo.cmdGuardarPerfil();
        } else {
            guarda(dialogo, "");
        }
        esperarMensaje(plataforma.mensajes, guardado);
        EXPECT_EQ(fichero(), antes);
        EXPECT_EQ(dialogo.cboPerfil(), "");
        EXPECT_EQ(dialogo.perfiles(), std::vector<std::string>{"Playa"});
    }
}

TEST_F(ColoresGuardar, ConNombreVacioNoNaceElFichero) {
    Colores dialogo = abrir();
    guarda(dialogo, "");
    EXPECT_FALSE(std::filesystem::exists(carpeta / "PerfilesColor.ini"));
}

TEST_F(ColoresGuardar, DosVecesConUnNombreDaUnaEntrada) {
    Colores dialogo = abrir();
    guarda(dialogo, "Playa");
    dialogo.cmdLineColor(0, rojo);
    plataforma.respuestas = {Respuesta::si};
    guarda(dialogo, "Playa");
    ASSERT_EQ(plataforma.mensajes.size(), 2U);
    EXPECT_EQ(plataforma.mensajes[0].titulo, yaExiste.titulo);
    EXPECT_EQ(plataforma.mensajes[0].texto, yaExiste.texto);
    EXPECT_EQ(plataforma.mensajes[0].icono, yaExiste.icono);
    EXPECT_EQ(plataforma.mensajes[0].botones, yaExiste.botones);
    EXPECT_EQ(plataforma.mensajes[1].texto, guardado.texto);
    EXPECT_TRUE(fichero().starts_with("[Carga]\r\nNumeroPerfiles=1\r\nPerfil1=Playa\r\n\r\n[")) << fichero();
    EXPECT_EQ(dialogo.perfiles(), std::vector<std::string>{"Playa"});
    EXPECT_EQ(conPerfil("Playa").txtLineColor()[0], rojo);
}

TEST_F(ColoresGuardar, ContestadoQueNoSeQuedaTodoComoEsta) {
    Colores dialogo = abrir();
    guarda(dialogo, "Playa");
    const std::string antes = fichero();
    dialogo.cmdLineColor(0, rojo);
    plataforma.respuestas = {Respuesta::no};
    guarda(dialogo, "Playa");
    esperarMensaje(plataforma.mensajes, yaExiste);
    EXPECT_EQ(fichero(), antes);
    EXPECT_EQ(dialogo.cboPerfil(), "");
    EXPECT_EQ(dialogo.txtLineColor()[0], rojo);
}

TEST_F(ColoresGuardar, LosPerfilesSeNumeranEnOrdenDeCreacion) {
    Colores dialogo = abrir();
    for (const char* nombre : {"Playa", "Año nuevo", "Ático"})
        guarda(dialogo, nombre);
    EXPECT_EQ(dialogo.perfiles(), (std::vector<std::string>{"Playa", "Año nuevo", "Ático"}));
    EXPECT_EQ(dialogo.cboPerfil(), "Ático");
    EXPECT_TRUE(fichero().starts_with(
        "[Carga]\r\nNumeroPerfiles=3\r\nPerfil1=Playa\r\nPerfil2=A\xF1o nuevo\r\nPerfil3=\xC1tico\r\n"))
        << fichero();
}

TEST_F(ColoresGuardar, ElNombreSeBuscaSinMirarMayusculas) {
    Colores dialogo = abrir();
    guarda(dialogo, "Playa");
    plataforma.respuestas = {Respuesta::si};
    guarda(dialogo, "PLAYA");
    EXPECT_EQ(dialogo.perfiles(), std::vector<std::string>{"Playa"});
    EXPECT_EQ(dialogo.cboPerfil(), "") << "the list has no such name to the letter";
}

TEST_F(ColoresGuardar, LosColoresSeLeenComoSeEscribieron) {
    for (const char* nombre : {Idioma::espanol, Idioma::ingles}) {
        const Idioma idioma(nombre);
        Colores dialogo = abrir();
        for (std::size_t i = 0; i < 18; ++i)
            dialogo.cmdLineColor(i, static_cast<Color>(0xFFFFFF - i));
        for (std::size_t i = 0; i < 12; ++i)
            dialogo.cmdBackColor(i, static_cast<Color>(i));
        guarda(dialogo, nombre);
        const Colores otra = conPerfil(nombre);
        EXPECT_EQ(otra.txtLineColor(), dialogo.txtLineColor());
        EXPECT_EQ(otra.txtBackColor(), dialogo.txtBackColor());
        EXPECT_EQ(otra.txtLineCatColor(), dialogo.txtLineCatColor());
    }
}

TEST_F(ColoresGuardar, EnUnaCarpetaSinEscrituraAvisaIgual) {
    dibujo.Esquema = "Perfil Predefinido";
    Colores dialogo(dibujo, plataforma, carpeta / "no_hay");
    guarda(dialogo, "Playa");
    esperarMensaje(plataforma.mensajes, guardado);
    EXPECT_TRUE(dialogo.perfiles().empty());
    EXPECT_EQ(dialogo.cboPerfil(), "");
}

TEST_F(ColoresFichero, SiFaltaNoHayPerfilesNiMensajes) {
    EXPECT_TRUE(abrir().perfiles().empty());
    EXPECT_TRUE(plataforma.mensajes.empty());
}

TEST_F(ColoresFichero, UnNumeroQueNoSeEntiendeEsNinguno) {
    for (const char* numero : {"", "abc", "-3", "99999", "1e9", "0"}) {
        ponFichero(std::string("[Carga]\r\nNumeroPerfiles=") + numero + "\r\nPerfil1=Playa\r\n");
        EXPECT_TRUE(abrir().perfiles().empty()) << numero;
    }
}

TEST_F(ColoresFichero, UnNombrePerdidoQuedaEnBlanco) {
    ponFichero("[Carga]\r\nNumeroPerfiles=3\r\nPerfil1=Playa\r\nPerfil3=Campo\r\nPerfil4=Nadie\r\n");
    EXPECT_EQ(abrir().perfiles(), (std::vector<std::string>{"Playa", "", "Campo"}));
}

TEST_F(ColoresFichero, SinCuentaElSiguienteEsElPrimero) {
    ponFichero("[Carga]\r\nNumeroPerfiles=muchos\r\nPerfil1=Playa\r\n");
    Colores dialogo = abrir();
    guarda(dialogo, "Campo");
    EXPECT_EQ(dialogo.perfiles(), std::vector<std::string>{"Campo"});
}

TEST_F(ColoresFichero, UnPerfilDelQueSoloQuedaElNombreSeVuelveAAnotar) {
    ponFichero("[Carga]\r\nNumeroPerfiles=1\r\nPerfil1=Playa\r\n[PerfilesVarios]\r\nPlaya=***\r\n");
    Colores dialogo = abrir();
    guarda(dialogo, "Playa");
    esperarMensaje(plataforma.mensajes, guardado);
    EXPECT_EQ(dialogo.perfiles(), (std::vector<std::string>{"Playa", "Playa"}));
}

TEST_F(ColoresFichero, UnaListaCortaDejaElRestoYMarcaTodo) {
    ponFichero(
        "[PerfilesVarios]\r\nRoto=5\r\n[PerfilesLineas]\r\nRoto=1#2\r\n[PerfilesFondos]\r\nRoto=9\r\n");
    const Colores dialogo = conPerfil("Roto");
    EXPECT_EQ(dialogo.txtLineColor()[0], 1);
    EXPECT_EQ(dialogo.txtLineColor()[1], 2);
    EXPECT_TRUE(todos(dialogo.txtLineColor(), colorTextoVentana, 2));
    EXPECT_EQ(dialogo.txtBackColor()[0], 9);
    EXPECT_TRUE(todos(dialogo.txtBackColor(), colorFondoVentana, 1));
    EXPECT_EQ(dialogo.txtLineCatColor()[3], 5);
    EXPECT_TRUE(todos(dialogo.txtLineCatColor(), colorTextoVentana, 4));
    EXPECT_TRUE(todos(dialogo.chkColores, true));
    EXPECT_EQ(dialogo.chkCatColor, (std::array{false, false, false, true, true, true, false, false}));
}

TEST_F(ColoresFichero, UnaListaLargaSobra) {
    ponFichero("[PerfilesVarios]\r\nRoto=" + repetir("6", 40) + "\r\n[PerfilesLineas]\r\nRoto=" +
               repetir("7", 40) + "\r\n[PerfilesFondos]\r\nRoto=" + repetir("8", 40) + "\r\n");
    const Colores dialogo = conPerfil("Roto");
    EXPECT_TRUE(todos(dialogo.txtLineCatColor(), 6, 3));
    EXPECT_TRUE(todos(dialogo.txtLineColor(), 7));
    EXPECT_TRUE(todos(dialogo.txtBackColor(), 8));
}

TEST_F(ColoresFichero, LoQueNoEsUnColorDejaSuMuestra) {
    for (const char* malo : {"rojo", "", "4294967296", "&HFF", "1 2", "***"}) {
        ponFichero(std::string("[PerfilesVarios]\r\nRoto=1#2#3#") + malo +
                   "#5\r\n[PerfilesLineas]\r\nRoto=1#" + malo + "#3\r\n");
        const Colores dialogo = conPerfil("Roto");
        EXPECT_EQ(dialogo.txtLineColor()[0], 1) << malo;
        EXPECT_EQ(dialogo.txtLineColor()[1], colorTextoVentana) << malo;
        EXPECT_EQ(dialogo.txtLineColor()[2], 3) << malo;
        EXPECT_EQ(dialogo.txtLineCatColor()[6], colorTextoVentana) << malo;
        EXPECT_EQ(dialogo.txtLineCatColor()[7], 5) << malo;
        EXPECT_TRUE(dialogo.chkColores[1]) << malo;
    }
}

TEST_F(ColoresFichero, UnaFraccionSeRedondeaSegunElIdioma) {
    ponFichero("[PerfilesLineas]\r\nRaro= 7 #2,5#3.6#1.000\r\n");
    const auto leidos = [&] {
        const auto colores = conPerfil("Raro").txtLineColor();
        return std::array{colores[0], colores[1], colores[2], colores[3]};
    };
    {
        const Idioma idioma(Idioma::espanol);
        EXPECT_EQ(leidos(), (std::array<Color, 4>{7, 2, 36, 1000}));
    }
    const Idioma idioma(Idioma::ingles);
    EXPECT_EQ(leidos(), (std::array<Color, 4>{7, 25, 4, 1}));
}

TEST_F(ColoresFichero, LoQueNoEsUnPerfilNoAvisaNiCambiaNada) {
    ponFichero(std::string(1, '\0') + "\xFF[Carga\r\n=\r\n[PerfilesLineas]\r\nsin signo\r\n[");
    const Colores dialogo = conPerfil("Playa");
    EXPECT_TRUE(dialogo.perfiles().empty());
    EXPECT_TRUE(todos(dialogo.txtLineColor(), colorTextoVentana));
    EXPECT_TRUE(todos(dialogo.chkColores, false));
    EXPECT_TRUE(plataforma.mensajes.empty());
}

TEST_F(ColoresFichero, LoQueTieneDeMasSeConserva) {
    ponFichero("[Notas]\r\nDe=la casa\r\n");
    Colores dialogo = abrir();
    guarda(dialogo, "Playa");
    EXPECT_EQ(fichero(),
              "[Notas]\r\nDe=la casa\r\n\r\n[Carga]\r\nNumeroPerfiles=1\r\nPerfil1=Playa\r\n\r\n"
              "[PerfilesVarios]\r\nPlaya=" +
                  repetir("-2147483640", 5) + "\r\n\r\n[PerfilesLineas]\r\nPlaya=" + lineas +
                  "\r\n\r\n[PerfilesFondos]\r\nPlaya=" + fondos + "\r\n");
}
