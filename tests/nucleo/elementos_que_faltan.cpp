#include "apoyo/banco.h"
#include "drawing/aberturas.h"
#include "drawing/elementos.h"
#include "drawing/foco.h"
#include "drawing/pinza_abertura.h"
#include "drawing/pinza_pared.h"
#include "drawing/propiedades.h"
#include "drawing/seleccion.h"
#include "drawing/texto_libre.h"
#include "furnishing/ficha_mueble.h"
#include "openings/abertura.h"
#include "openings/puerta.h"
#include "openings/ventana.h"
#include "persistence/archivo_dibujo.h"
#include "walls/cortes.h"
#include "walls/esquina.h"
#include "walls/pared.h"
#include "walls/union.h"

#include <gtest/gtest.h>

namespace bosquel::apoyo {

namespace {

/// All that a command may do: to the drawing, to the selection, to the outside.
struct Rastro {
    std::string archivo;
    std::optional<Clase> ElementoActual;
    int IndiceActual = 0;
    std::optional<Referencia> foco;
    Recuadro marco;
    int dialogos = 0;
    std::size_t mensajes = 0, cursores = 0;

    bool operator==(const Rastro&) const = default;
};

Rastro rastroDe(Banco& banco) {
    const std::filesystem::path ruta = banco.ruta("rastro.bqr");
    std::filesystem::remove(ruta);
    ArchivoPerfil archivo(ruta);
    escribirDibujo(archivo, banco.dibujo());
    archivo.volcar();
    const PlataformaFalsa& fuera = banco.plataforma;
    return {.archivo = bytesDe(ruta),
            .ElementoActual = banco.dibujo().ElementoActual,
            .IndiceActual = banco.dibujo().IndiceActual,
            .foco = banco.sesion().foco,
            .marco = banco.marco().recuadro,
            .dialogos = fuera.dialogosDePared + fuera.dialogosDeVentana + fuera.dialogosDePuerta +
                        fuera.dialogosDeMesa + fuera.dialogosDeMueble + fuera.dialogosDeEscalera +
                        fuera.dialogosDeElectrico,
            .mensajes = fuera.mensajes.size(),
            .cursores = fuera.cursores.size()};
}

/// A command, and the element that it is given.
struct Orden {
    const char* nombre;
    void (*dar)(Sesion&, int indice);
};

// clang-format off
const Orden ordenes[]{
    {"CapturarMovimientoPared", [](Sesion& s, int i) { CapturarMovimientoPared(s, i); }},
    {"MoverPared",              [](Sesion& s, int i) { MoverPared(s, i); }},
    {"AlinearPared",            [](Sesion& s, int i) { AlinearPared(s, i); }},
    {"MostrarNodos",            [](Sesion& s, int i) { MostrarNodos(s.dibujo, i); }},
    {"pulsarPinzaPared",        [](Sesion& s, int i) { pulsarPinzaPared(s, i, PinzaDePared::centro, 1, 1); }},
    {"RedibujaPared",           [](Sesion& s, int i) { RedibujaPared(s.dibujo, i, true); }},
    {"RecuperaLineasPared",     [](Sesion& s, int i) { RecuperaLineasPared(s.dibujo, i); }},
    {"PintaPinzasPared",        [](Sesion& s, int i) { PintaPinzasPared(s.dibujo, i, rojo); }},
    {"AbreParedProp",           [](Sesion& s, int i) { AbreParedProp(s, i); }},
    {"pulsarPinza, ventana",    [](Sesion& s, int i) { pulsarPinzaAbertura(s, Clase::Ventana, i); }},
    {"pulsarPinza, puerta",     [](Sesion& s, int i) { pulsarPinzaAbertura(s, Clase::Puerta, i); }},
    {"seleccionar, ventana",    [](Sesion& s, int i) { seleccionar<Ventana>(s.dibujo, i); }},
    {"seleccionar, puerta",     [](Sesion& s, int i) { seleccionar<Puerta>(s.dibujo, i); }},
    {"RedibujaVentana",         [](Sesion& s, int i) { RedibujaVentana(s.dibujo, i); }},
    {"RedibujaPuerta",          [](Sesion& s, int i) { RedibujaPuerta(s.dibujo, i); }},
    {"situarVentana",           [](Sesion& s, int i) { situarVentana(s, i); }},
    {"situarPuerta",            [](Sesion& s, int i) { situarPuerta(s, i); }},
    {"AbreVentanaProp",         [](Sesion& s, int i) { AbreVentanaProp(s, i); }},
    {"AbrePuertaProp",          [](Sesion& s, int i) { AbrePuertaProp(s, i); }},
    {"terminarTexto",           [](Sesion& s, int i) { terminarTexto(s, i); }},
    {"Une1331",                 [](Sesion& s, int i) { s.dibujo.ParedDos = static_cast<std::int16_t>(i); Une1331(s.dibujo); }},
    {"UnionParedes",            [](Sesion& s, int i) { s.dibujo.ParedDos = static_cast<std::int16_t>(i); UnionParedes(s.dibujo); }},
    {"CortarParedes",           [](Sesion& s, int i) { s.dibujo.ParedDos = static_cast<std::int16_t>(i); CortarParedes(s.dibujo, Corte::XPP); }},
};

/// Those that any kind with a place of its own is given.
struct OrdenSituada {
    const char* nombre;
    void (*dar)(Sesion&, Referencia cual);
};

const OrdenSituada ordenesSituadas[]{
    {"senalarElemento",    [](Sesion& s, Referencia cual) { senalarElemento(s, cual); }},
    {"moverElemento",      [](Sesion& s, Referencia cual) { moverElemento(s, cual, true, 1, 1); }},
    {"enmarcar",           [](Sesion& s, Referencia cual) { enmarcar(s, cual); }},
    {"abrirPropiedades",   [](Sesion& s, Referencia cual) { abrirPropiedades(s, cual); }},
    {"apagar",             [](Sesion& s, Referencia cual) { apagar(s.dibujo, cual); }},
    {"pulsarElemento",     [](Sesion& s, Referencia cual) { pulsarElemento(s, cual, 1, 1); }},
};
// clang-format on

constexpr std::int16_t hueco = 7;

}  // namespace

TEST(ElementosQueFaltan, UnaOrdenQueRecibeUnHuecoNoHaceNada) {
    Banco banco;
    banco.ponMuro();
    banco.dibujo().ParedUno = 1;
    const Rastro antes = rastroDe(banco);
    for (const Orden& orden : ordenes) {
        orden.dar(banco.sesion(), hueco);
        EXPECT_EQ(rastroDe(banco), antes) << orden.nombre;
    }
}

TEST(ElementosQueFaltan, UnHuecoNiSeEligeNiSeMueveNiSeEnmarcaNiSeAbre) {
    for (const Clase clase :
         {Clase::MblSilla, Clase::MblMesa, Clase::TextoLibre, Clase::Escalera, Clase::Electrico})
        for (const OrdenSituada& orden : ordenesSituadas) {
            Banco banco;
            banco.ponMuro();
            const Rastro antes = rastroDe(banco);
            orden.dar(banco.sesion(), {clase, hueco});
            EXPECT_EQ(rastroDe(banco), antes) << orden.nombre << ' ' << datos(clase).nombre;
        }
}

TEST(ElementosQueFaltan, ElFocoNoSeDaAUnHuecoYElQueLoTeniaLoPierde) {
    Banco banco;
    banco.crea(Clase::MblSilla);
    ASSERT_TRUE(banco.sesion().foco);
    darFoco(banco.sesion(), {Clase::MblSilla, hueco});
    EXPECT_FALSE(banco.sesion().foco);
    EXPECT_FALSE(banco.marco().Visible);
}

TEST(ElementosQueFaltan, EliminarConUnIndiceSinElementoDejaElModelo) {
    for (const int indice : {0, -1}) {
        Banco banco;
        banco.ponMuro();
        banco.dibujo().ElementoActual = Clase::Pared;
        banco.dibujo().IndiceActual = static_cast<std::int16_t>(indice);
        banco.boton("Eliminar");
        EXPECT_TRUE(banco.dibujo().Pared.existe(0));
        EXPECT_TRUE(banco.dibujo().Pared.existe(1));
        EXPECT_TRUE(banco.plataforma.mensajes.empty());
    }
}

TEST(ElementosQueFaltan, UnaVentanaQuitadaAntesDeElegirSuParedNoAbreDialogo) {
    Banco banco;
    const int muro = banco.ponMuro();
    banco.boton("Ventana");
    banco.dibujo().Ventana.quitar(1);
    banco.clic(banco.medio(muro));
    EXPECT_EQ(banco.plataforma.dialogosDeVentana, 0);
    EXPECT_EQ(banco.pared(muro).NumeroGrupo, 0);
    EXPECT_EQ(banco.modo(), Modo::Aspa);
}

TEST(ElementosQueFaltan, UnMuebleQueNoEstaNoTieneMedidas) {
    Dibujo dibujo;
    dibujo.MblSilla.crear(1);
    const CampoMueble& lado = fichaDe(Clase::MblSilla).campos.front();
    EXPECT_EQ(lado.valor(dibujo, 1), &dibujo.MblSilla.en(1)->AnchoSilla);
    EXPECT_EQ(lado.valor(dibujo, hueco), nullptr);
}

TEST(ElementosQueFaltan, UnaClaseSinFichaTieneUnaSinContenido) {
    for (const Clase clase : {Clase::MblMesa, Clase::Pared, Clase::Electrico}) {
        EXPECT_TRUE(fichaDe(clase).titulo.empty());
        EXPECT_TRUE(fichaDe(clase).campos.empty());
        EXPECT_EQ(fichaDe(clase).ChkEscurridor, nullptr);
        EXPECT_TRUE(fichaDe(clase).Dist.codigos.empty());
    }
}

}  // namespace bosquel::apoyo
