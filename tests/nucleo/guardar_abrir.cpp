#include "apoyo/banco.h"
#include "apoyo/dibujo_guardado.h"
#include "apoyo/disco_dificil.h"
#include "apoyo/idioma.h"
#include "apoyo/mensajes.h"
#include "apoyo/poca_memoria.h"
#include "drawing/archivo.h"

#include <gtest/gtest.h>
#include <optional>
#include <stdexcept>

using namespace bosquel;
using apoyo::Banco;
using apoyo::DiscoLleno;
using apoyo::enLineas;
using apoyo::Idioma;
using apoyo::SinPrivilegios;
using apoyo::trasAbrir;

namespace {

/// Walls of all kinds with a gap, a joint and a group.
void dibujar(Banco& banco) {
    banco.ponMuro({.inicio = {1000.1F, 1000.7F}, .angulo = -33, .longitud = "3,217"});
    banco.ponMuro({.inicio = {5000, 3000}, .angulo = 71, .longitud = "1,005", .boton = "Tabique"});
    banco.ponMuro({.inicio = {6000.123F, 6000}, .angulo = 0, .longitud = "0,3", .boton = "Pilar"});
    banco.ponMuro({.inicio = {7000, 8000}, .angulo = 120});
    banco.boton("Zoom");
    banco.boton("Zoom");
    banco.boton("Zoom");
    banco.clic(banco.inicial(2));
    banco.boton("Eliminar");
    banco.pared(3).Visible1 = false;
    banco.pared(3).NumeroGrupo = banco.pared(4).NumeroGrupo = 2;
    banco.dibujo().TotalGrupos = 2;
}

}  // namespace

TEST(Guardar, PideUnArchivoYLoAnuncia) {
    Banco banco;
    banco.plataforma.titulos.clear();
    banco.guarda("plano.bqr");
    ASSERT_EQ(banco.plataforma.peticiones.size(), 1U);
    const PeticionArchivo& peticion = banco.plataforma.peticiones[0];
    EXPECT_EQ(peticion.modo, PeticionArchivo::Modo::guardar);
    EXPECT_EQ(peticion.filtro, "Dibujos Bosquel Rapiz(*.bqr)");
    EXPECT_EQ(peticion.carpeta, banco.ruta("Bosquel"));
    apoyo::esperarMensaje(banco.plataforma.mensajes,
                          {"Aviso", "Dibujo guardado con éxito", Icono::informacion, Botones::aceptar});
    EXPECT_EQ(banco.plataforma.titulos, std::vector<std::string>{"plano.bqr - Bosquel Rapiz"});
    EXPECT_EQ(banco.plataforma.relojesDeArena, (std::vector{true, false}));
    EXPECT_FALSE(banco.sesion().Ocupado);
}

TEST(Guardar, UnNombreSinPuntoTomaSuExtension) {
    Banco banco;
    banco.guarda("plano");
    EXPECT_TRUE(std::filesystem::exists(banco.ruta("plano.bqr")));
    banco.guarda("plano.otro");
    EXPECT_TRUE(std::filesystem::exists(banco.ruta("plano.otro")));
    EXPECT_EQ(banco.plataforma.titulo(), "plano.otro - Bosquel Rapiz");
}

TEST(Guardar, CanceladoDejaElArchivoAnteriorEntero) {
    Banco banco;
    banco.guarda("plano.bqr");
    const std::string antes = banco.bytes("plano.bqr");
    banco.ponMuro();
    banco.plataforma.mensajes.clear();
    banco.plataforma.relojesDeArena.clear();
    banco.plataforma.archivos = {{}};
    banco.boton("Guardar");
    EXPECT_EQ(banco.bytes("plano.bqr"), antes);
    EXPECT_TRUE(banco.plataforma.mensajes.empty());
    EXPECT_TRUE(banco.plataforma.relojesDeArena.empty());
}

TEST(Guardar, ElArchivoAnteriorSeVaSinPreguntar) {
    Banco banco;
    banco.pon("plano.bqr", "[Viejo]\r\nclave=1\r\n");
    banco.plataforma.alCederEventos = [&] { EXPECT_FALSE(std::filesystem::exists(banco.ruta("plano.bqr"))); };
    banco.guarda("plano.bqr");
    EXPECT_EQ(banco.bytes("plano.bqr").find("Viejo"), std::string::npos);
    EXPECT_EQ(banco.plataforma.turnos, 1);
    EXPECT_EQ(banco.plataforma.mensajes.size(), 1U);
}

TEST(Guardar, UnNombreDeSalvadoAutomaticoNoSeAnuncia) {
    for (const char* nombre : {"AutoSave.bqr", "autosave.BQR", "miAUTOsave.bqr.copia"}) {
        Banco banco;
        banco.plataforma.titulos.clear();
        banco.guarda(nombre);
        EXPECT_TRUE(std::filesystem::exists(banco.ruta(nombre)));
        EXPECT_TRUE(banco.plataforma.titulos.empty()) << nombre;
        EXPECT_TRUE(banco.plataforma.mensajes.empty()) << nombre;
        EXPECT_EQ(banco.plataforma.relojesDeArena, (std::vector{true, false})) << nombre;
    }
    Banco banco;
    banco.guarda("AutoSave.bkr");
    EXPECT_EQ(banco.plataforma.mensajes.size(), 1U);
}

TEST(Guardar, EnUnaCarpetaQueNoExisteDiceQueFueUnExito) {
    Banco banco;
    banco.guarda("no/existe.bqr");
    EXPECT_EQ(banco.plataforma.titulo(), " - Bosquel Rapiz");
    EXPECT_EQ(banco.plataforma.mensajes.size(), 1U);
    EXPECT_FALSE(banco.plataforma.relojDeArena());
    EXPECT_EQ(banco.carpeta.cuantos(), 0);
}

TEST(Guardar, EnUnaCarpetaDeSoloLecturaAcabaComoSiempreSinArchivo) {
    Banco banco;
    std::filesystem::permissions(banco.carpeta.ruta(), std::filesystem::perms{0555});
    {
        const SinPrivilegios nadie;
        banco.guarda("plano.bqr");
    }
    std::filesystem::permissions(banco.carpeta.ruta(), std::filesystem::perms::owner_all);
    EXPECT_EQ(banco.carpeta.cuantos(), 0);
    EXPECT_EQ(banco.plataforma.titulo(), " - Bosquel Rapiz");
    EXPECT_EQ(banco.plataforma.mensajes.size(), 1U);
    EXPECT_FALSE(banco.plataforma.relojDeArena());
}

TEST(Guardar, UnArchivoQueNoSeDejaBorrarSeIntentaHastaQueSeDeja) {
    Banco banco;
    banco.pon("plano.bqr", "[Viejo]\r\n");
    std::filesystem::permissions(banco.carpeta.ruta(), std::filesystem::perms{0555});
    std::optional<SinPrivilegios> nadie(std::in_place);
    banco.plataforma.alCederEventos = [&] {
        EXPECT_FALSE(banco.plataforma.relojDeArena());
        if (banco.plataforma.turnos < 9) return;
        nadie.reset();
        std::filesystem::permissions(banco.carpeta.ruta(), std::filesystem::perms::owner_all);
    };
    banco.guarda("plano.bqr");
    EXPECT_EQ(banco.plataforma.turnos, 10);
    EXPECT_TRUE(banco.bytes("plano.bqr").starts_with("[Cabecera]"));
    EXPECT_EQ(banco.plataforma.mensajes.size(), 1U);
}

TEST(Guardar, EnUnDiscoLlenoSePierdeElArchivoAnterior) {
    Banco banco;
    banco.guarda("plano.bqr");
    banco.plataforma.mensajes.clear();
    {
        const DiscoLleno lleno(100);
        banco.guarda("plano.bqr");
    }
    EXPECT_EQ(banco.carpeta.cuantos(), 0);
    EXPECT_EQ(banco.plataforma.titulo(), " - Bosquel Rapiz");
    EXPECT_EQ(banco.plataforma.mensajes.size(), 1U);
    EXPECT_FALSE(banco.plataforma.relojDeArena());
    banco.guarda("plano.bqr");
    EXPECT_EQ(banco.plataforma.titulo(), "plano.bqr - Bosquel Rapiz");
}

TEST(Guardar, EnUnSistemaDeArchivosSinSitioSePierdeElAnteriorYNadaMasSeNota) {
    constexpr int todoBien = 0;
    constexpr int sinPermiso = 2;
    Banco banco;
    const auto guardarSinSitio = [&] {
        constexpr int sitio = 16 * 1024;
        if (!apoyo::montarDiscoPequeno(banco.carpeta.ruta(), sitio)) return sinPermiso;
        banco.guarda("plano.bqr");
        if (banco.plataforma.titulo() != "plano.bqr - Bosquel Rapiz") return 1;
        // Somebody takes the room that the old file leaves.
        banco.plataforma.alCederEventos = [&] { banco.pon("relleno", std::string(sitio, 'x')); };
        banco.guarda("plano.bqr");
        const bool comoSiempre = banco.plataforma.titulo() == " - Bosquel Rapiz" &&
                                 banco.plataforma.mensajes.size() == 2 && !banco.plataforma.relojDeArena() &&
                                 banco.carpeta.cuantos() == 1;
        return comoSiempre ? todoBien : 1;
    };
    const int fin = apoyo::enOtroProceso(guardarSinSitio);
    if (fin == sinPermiso) GTEST_SKIP() << "only the superuser mounts file systems";
    EXPECT_EQ(fin, todoBien);
}

TEST(Guardar, EnUnDispositivoLlenoAcabaComoSiempreSinTocarlo) {
    Banco banco;
    banco.ponMuro();
    banco.plataforma.mensajes.clear();
    banco.plataforma.relojesDeArena.clear();
    GuardarDibujo(banco.sesion(), "/dev/full");
    EXPECT_EQ(banco.plataforma.titulo(), " - Bosquel Rapiz");
    EXPECT_EQ(banco.plataforma.mensajes.size(), 1U);
    EXPECT_EQ(banco.plataforma.relojesDeArena, (std::vector{true, false}));
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
    EXPECT_TRUE(banco.dibujo().Pared.existe(1));
}

TEST(Guardar, SinMemoriaParaEscribirAcabaComoSiempreSinArchivo) {
    if (apoyo::memoriaSinLimite) GTEST_SKIP() << "the sanitizer takes room of its own";
    GTEST_FLAG_SET(death_test_style, "threadsafe");  // a new process, with no room left by other tests
    Banco banco;
    banco.pon("enorme.bqr", "[Cabecera]\r\nNumDucha=32767\r\n");
    banco.abre("enorme.bqr");
    const auto guardarSinMemoria = [&] {
        apoyo::limitarMemoria(1'000'000);
        banco.guarda("enorme.bqr");
        const bool comoSiempre = banco.plataforma.titulo() == " - Bosquel Rapiz" &&
                                 banco.plataforma.mensajes.size() == 1 && !banco.plataforma.relojDeArena() &&
                                 !banco.sesion().Ocupado && banco.carpeta.cuantos() == 0;
        apoyo::terminar(comoSiempre);
    };
    EXPECT_EXIT(guardarSinMemoria(), testing::ExitedWithCode(0), "");
}

TEST(Guardar, ElRelojDeArenaSeQuitaAunqueAlgoSeRompa) {
    Banco banco;
    banco.plataforma.alPonerTitulo = [] { throw std::runtime_error("no title"); };
    EXPECT_THROW(GuardarDibujo(banco.sesion(), banco.ruta("plano.bqr")), std::runtime_error);
    EXPECT_EQ(banco.plataforma.relojesDeArena, (std::vector{true, false}));
}

TEST(Guardar, EnElNombreDeUnaCarpetaODeUnDispositivoNoSeEscribe) {
    Banco banco;
    std::filesystem::create_directory(banco.ruta("carpeta.bqr"));
    std::filesystem::create_symlink("/dev/full", banco.ruta("dispositivo.bqr"));
    for (const char* nombre : {"carpeta.bqr", "dispositivo.bqr"}) {
        banco.guarda(nombre);
        EXPECT_EQ(banco.plataforma.titulo(), " - Bosquel Rapiz");
    }
    EXPECT_EQ(banco.carpeta.cuantos(), 2);
    EXPECT_TRUE(std::filesystem::is_directory(banco.ruta("carpeta.bqr")));
}

TEST(Abrir, LoGuardadoVuelveYSeGuardaIgual) {
    for (const char* idioma : {Idioma::espanol, Idioma::ingles}) {
        const Idioma puesto(idioma);
        Banco banco;
        dibujar(banco);
        banco.guarda("uno.bqr");
        banco.abre("uno.bqr");
        banco.guarda("dos.bqr");
        EXPECT_EQ(banco.bytes("dos.bqr"), enLineas(trasAbrir(banco.lineas("uno.bqr"))));
        Banco otro;
        otro.pon("uno.bqr", banco.bytes("uno.bqr"));
        otro.abre("uno.bqr");
        otro.guarda("tres.bqr");
        EXPECT_EQ(otro.bytes("tres.bqr"), banco.bytes("dos.bqr"));
        EXPECT_FALSE(otro.pared(3).lineas[1].Visible);
        EXPECT_FALSE(otro.dibujo().Pared.existe(2));
    }
}

TEST(Abrir, NoPreguntaNiAnunciaYPoneElTitulo) {
    Banco banco;
    banco.guarda("plano.bqr");
    banco.plataforma.mensajes.clear();
    banco.plataforma.relojesDeArena.clear();
    banco.ponMuro();
    banco.abre("plano.bqr");
    EXPECT_EQ(banco.plataforma.peticiones.back().modo, PeticionArchivo::Modo::abrir);
    EXPECT_EQ(banco.plataforma.peticiones.back().filtro, "Dibujos Bosquel Rapiz(*.bqr)");
    EXPECT_EQ(banco.plataforma.peticiones.back().carpeta, banco.ruta("Bosquel"));
    EXPECT_EQ(banco.plataforma.titulo(), "plano.bqr - Bosquel Rapiz");
    EXPECT_TRUE(banco.plataforma.mensajes.empty());
    EXPECT_TRUE(banco.plataforma.relojesDeArena.empty());
    EXPECT_EQ(banco.dibujo().Pared.ultimo(), 0);
}

TEST(Abrir, CanceladoDejaElDibujo) {
    Banco banco;
    const int muro = banco.ponMuro();
    banco.plataforma.titulos.clear();
    banco.plataforma.archivos = {{}};
    banco.boton("Abrir");
    EXPECT_TRUE(banco.dibujo().Pared.existe(muro));
    EXPECT_TRUE(banco.plataforma.titulos.empty());
}

TEST(Abrir, UnNombreSinPuntoTomaLaExtensionDeAbrir) {
    Banco banco;
    banco.ponMuro();
    banco.guarda("plano");
    banco.abre("plano");
    EXPECT_EQ(banco.dibujo().Pared.contador, 1) << "plano.bkr does not exist";
    EXPECT_EQ(banco.plataforma.titulo(), " - Bosquel Rapiz");
    banco.pon("plano.bkr", banco.bytes("plano.bqr"));
    banco.abre("plano");
    EXPECT_EQ(banco.dibujo().Pared.contador, 2);
    EXPECT_EQ(banco.plataforma.titulo(), "plano.bkr - Bosquel Rapiz");
}

TEST(Abrir, UnArchivoQueNoExisteDaUnDibujoVacio) {
    Banco banco;
    banco.ponMuro();
    banco.abre("nada.bqr");
    EXPECT_EQ(banco.dibujo().Pared.contador, 1);
    EXPECT_EQ(banco.dibujo().Pared.ultimo(), 0);
    EXPECT_EQ(banco.hoja().Width, 10000.0F);
    EXPECT_EQ(banco.plataforma.titulo(), " - Bosquel Rapiz");
    EXPECT_FALSE(std::filesystem::exists(banco.ruta("nada.bqr")));
}

TEST(Abrir, SinCabeceraDaUnDibujoVacioConSuTitulo) {
    Banco banco;
    banco.ponMuro();
    banco.pon("otro.ini", "hola\r\n[Otra]\r\nNumPared=9\r\n");
    banco.abre("otro.ini");
    EXPECT_EQ(banco.hoja().Width, 10000.0F);
    EXPECT_EQ(banco.hoja().Height, 10000.0F);
    for (const DatosClase& fila : todasLasClases())
        conColeccion(banco.dibujo(), fila.clase, [&](const auto& coleccion) {
            const bool suContador = fila.clase == Clase::Escalera || fila.clase == Clase::Electrico;
            EXPECT_EQ(coleccion.contador, fila.clase == Clase::Electrico ? 2 : 1) << fila.nombre;
            EXPECT_EQ(coleccion.ultimo(), suContador ? 1 : 0) << fila.nombre;
        });
    EXPECT_EQ(banco.plataforma.titulo(), "otro.ini - Bosquel Rapiz");
}

TEST(Abrir, DosSeguidosNoSeMezclan) {
    Banco banco;
    for (const float y : {2000.0F, 4000.0F, 6000.0F})
        banco.ponMuro({.inicio = {3000, y}});
    banco.guarda("tres.bqr");
    banco.plataforma.respuestas = {Respuesta::si};
    banco.boton("Nuevo");
    banco.ponMuro({.angulo = 45});
    banco.guarda("uno.bqr");
    Banco otro;
    otro.pon("uno.bqr", banco.bytes("uno.bqr"));
    otro.abre("uno.bqr");
    otro.guarda("solo.bqr");
    for (int vez = 0; vez < 3; ++vez) {
        banco.abre("tres.bqr");
        EXPECT_EQ(banco.dibujo().Pared.ultimo(), 3);
    }
    banco.abre("uno.bqr");
    EXPECT_EQ(banco.dibujo().Pared.ultimo(), 1);
    EXPECT_EQ(banco.dibujo().Electrico.ultimo(), 1);
    banco.guarda("otra.bqr");
    EXPECT_EQ(banco.bytes("otra.bqr"), otro.bytes("solo.bqr"));
}

TEST(Abrir, UnaCarpetaEsUnDibujoVacio) {
    Banco banco;
    banco.ponMuro();
    std::filesystem::create_directory(banco.ruta("carpeta.bqr"));
    banco.abre("carpeta.bqr");
    EXPECT_EQ(banco.dibujo().Pared.ultimo(), 0);
    EXPECT_EQ(banco.hoja().Width, 10000.0F);
    EXPECT_EQ(banco.plataforma.titulo(), " - Bosquel Rapiz");
}
