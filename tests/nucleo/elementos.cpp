#include "apoyo/banco.h"
#include "furnishing/recuadro.h"
#include "openings/puerta_prop.h"

#include <gtest/gtest.h>

namespace bosquel::apoyo {
namespace {

class Elementos : public testing::Test {
  protected:
    /// A chair of 450 mm, 225 units, where the test wants it.
    void SetUp() override {
        banco.crea(Clase::MblSilla);
        ponerEn(silla(), 1000, 2000);
    }

    MblSilla& silla() { return *banco.dibujo().MblSilla.en(1); }

    void ponerEn(Situado& elemento, float left, float top) {
        elemento.Left = left;
        elemento.Top = top;
        anunciarTodo(banco.dibujo());
        banco.mueve(lejos);
    }

    Escalera& ponEscalera(int indice, float left) {
        Escalera& escalera = banco.dibujo().Escalera.crear(indice);
        escalera.Visible = true;
        ponerEn(escalera, left, 4000);
        return escalera;
    }
    /// A point on the strokes' box of a stair.
    Punto enEscalera(int indice) {
        const auto caja = extensionDe(banco.dibujo(), Clase::Escalera, indice);
        return {static_cast<float>(caja->Left + caja->Width / 2),
                static_cast<float>(caja->Top + caja->Height / 2)};
    }

    const Punto lejos{8000, 8000};
    Banco banco;
};

TEST_F(Elementos, PulsarEnmarcaYTraeAlFrente) {
    banco.clic(lejos);
    ASSERT_FALSE(banco.marco().Visible);
    const std::int32_t antes = silla().orden;
    banco.pulsa({1100, 2100});
    EXPECT_TRUE(banco.marco().Visible);
    EXPECT_EQ(banco.marco().recuadro, (Recuadro{985, 1985, 225 + 30, 225 + 30}));
    EXPECT_GT(silla().orden, antes);
    EXPECT_EQ(banco.plataforma.cursor(), Cursor::Palma);
    EXPECT_EQ(banco.dibujo().ElementoActual, Clase::MblSilla);
    EXPECT_EQ(banco.dibujo().IndiceActual, 1);
    EXPECT_EQ(banco.dibujo().arrastre.AgarreX, 100);
    EXPECT_EQ(banco.dibujo().arrastre.AgarreY, 100);
}

TEST_F(Elementos, LoDeDelanteSeCoge) {
    banco.crea(Clase::MblMesa);
    ponerEn(*banco.dibujo().MblMesa.en(1), 900, 1900);
    banco.clic({1100, 2100});
    EXPECT_EQ(banco.dibujo().ElementoActual, Clase::MblMesa) << "made last, it lies in front";
    banco.clic(lejos);
    ponerEn(*banco.dibujo().MblMesa.en(1), 1100, 2100);
    banco.clic({1050, 2050});
    ASSERT_EQ(banco.dibujo().ElementoActual, Clase::MblSilla) << "only the chair lies here";
    banco.clic({1150, 2150});
    EXPECT_EQ(banco.dibujo().ElementoActual, Clase::MblSilla) << "selected, it came to the front";
}

TEST_F(Elementos, SeArrastraConElPuntoDeAgarreBajoElPuntero) {
    banco.arrastra({1100, 2100}, {3100, 1600});
    EXPECT_FLOAT_EQ(silla().Left, 3000);
    EXPECT_FLOAT_EQ(silla().Top, 1500);
    EXPECT_EQ(banco.marco().recuadro, (Recuadro{2985, 1485, 255, 255}));
}

TEST_F(Elementos, UnArrastreSoloRepintaLoQueSeMueve) {
    banco.mueve({1100, 2100});
    banco.pulsa({1100, 2100});
    banco.mueve({1200, 2200});
    banco.plataforma.repintados.clear();
    banco.plataforma.pasos.clear();
    banco.mueve({1300, 2300});
    ASSERT_EQ(banco.plataforma.repintados.size(), 1U);
    EXPECT_TRUE(banco.plataforma.repintados[0].limpia()) << "nothing at rest has changed";
    const Recuadro toda{900, 1900, 800, 800};
    for (const Recuadro& zona : banco.plataforma.pasos[0].zonas())
        EXPECT_EQ(unir(zona, toda), toda);
    banco.suelta({1300, 2300});
    EXPECT_FALSE(banco.dibujo().ObjetoEnMovimiento);
    EXPECT_FALSE(banco.plataforma.repintados.back().limpia()) << "it stands still again";
}

TEST_F(Elementos, ElImanActuaEnElSiguientePasoSinBotonYNoAlSoltar) {
    banco.dibujo().Iman = true;
    banco.pulsa({1100, 2100});
    banco.mueve({1249, 2100});
    EXPECT_FLOAT_EQ(silla().Left, 1149);
    banco.suelta({1249, 2100});
    EXPECT_FLOAT_EQ(silla().Left, 1149);
    banco.mueve({1249, 2100});
    EXPECT_FLOAT_EQ(silla().Left, 1100) << "149 at a step of 50 is 100";
    EXPECT_FLOAT_EQ(silla().Top, 2000);
    EXPECT_EQ(banco.marco().recuadro.Left, 1085);
}

TEST_F(Elementos, ElImanNoTocaLoQueNoEstaElegido) {
    banco.clic(lejos);
    ponerEn(silla(), 1149, 2000);
    banco.dibujo().Iman = true;
    banco.mueve({1200, 2100});
    EXPECT_FLOAT_EQ(silla().Left, 1149);
}

TEST_F(Elementos, PulsarLaHojaQuitaElMarco) {
    banco.pulsa({1100, 2100});
    banco.suelta({1100, 2100});
    banco.pulsa(lejos);
    EXPECT_FALSE(banco.marco().Visible);
    EXPECT_FALSE(banco.dibujo().ElementoActual);
}

TEST_F(Elementos, LaUltimaPulsacionEnLaHojaDejaDefinirSinNadaQueHacer) {
    banco.clic(lejos);
    banco.boton("Definir");
    EXPECT_EQ(banco.plataforma.dialogosDeMueble, 0);
}

TEST_F(Elementos, DefinirAbreElDialogoDelElementoActual) {
    banco.clic({1100, 2100});
    banco.boton("Definir");
    EXPECT_EQ(banco.plataforma.dialogosDeMueble, 1);
}

TEST_F(Elementos, ElDialogoDeUnaSillaEsperaAQueAcabeElDobleClic) {
    banco.dobleClic({1100, 2100});
    EXPECT_EQ(banco.plataforma.dialogosDeMueble, 0);
    ASSERT_EQ(banco.plataforma.timer2, std::vector{true});
    banco.bosquel.pasarTimer2();
    EXPECT_EQ(banco.plataforma.timer2, (std::vector{true, false}));
    EXPECT_EQ(banco.plataforma.dialogosDeMueble, 1);
}

TEST_F(Elementos, ElDialogoDeUnaCamaSeAbreEnElDobleClic) {
    banco.crea(Clase::MblCama90);
    ponerEn(*banco.dibujo().MblCama90.en(1), 5000, 5000);
    banco.dobleClic({5100, 5100});
    EXPECT_EQ(banco.plataforma.dialogosDeMueble, 1);
    EXPECT_TRUE(banco.plataforma.timer2.empty());
}

TEST_F(Elementos, CadaClaseAbreSuDialogoComoLeToca) {
    for (const DatosClase& fila : todasLasClases()) {
        if (fila.clase > Clase::MblVertedero) continue;
        SCOPED_TRACE(fila.nombre);
        Banco otro;
        otro.crea(fila.clase);
        otro.mueve({200, 200});
        const auto caja = recuadroDe(otro.dibujo(), fila.clase, 1);
        ASSERT_TRUE(caja);
        otro.dobleClic({static_cast<float>(caja->Left + caja->Width / 2),
                        static_cast<float>(caja->Top + caja->Height / 2)});
        const bool enElActo = fila.dobleClic == DobleClic::enElActo;
        EXPECT_EQ(otro.plataforma.dialogosDeMesa + otro.plataforma.dialogosDeMueble, enElActo ? 1 : 0);
        if (enElActo) continue;
        otro.bosquel.pasarTimer2();
        EXPECT_EQ(otro.plataforma.dialogosDeMesa, fila.clase == Clase::MblMesa ? 1 : 0);
        EXPECT_EQ(otro.plataforma.dialogosDeMueble, fila.clase == Clase::MblMesa ? 0 : 1);
    }
}

TEST_F(Elementos, ElDobleClicEnUnaEscaleraAbreSuDialogo) {
    ponEscalera(2, 4000);
    banco.dobleClic(enEscalera(2));
    EXPECT_EQ(banco.plataforma.dialogosDeEscalera, 1);
}

TEST_F(Elementos, ElRelojNoAbreElDialogoDeOtraClase) {
    banco.crea(Clase::MblCama90);
    banco.bosquel.pasarTimer2();
    EXPECT_EQ(banco.plataforma.dialogosDeMueble, 0);
}

TEST_F(Elementos, EliminarDejaElMarcoYSuprimirLoQuita) {
    banco.clic({1100, 2100});
    banco.boton("Eliminar");
    EXPECT_EQ(banco.dibujo().MblSilla.en(1), nullptr);
    EXPECT_TRUE(banco.marco().Visible);
    banco.suprimir();
    EXPECT_FALSE(banco.marco().Visible);
}

TEST_F(Elementos, EliminarDosVecesNoHaceNadaLaSegunda) {
    banco.clic({1100, 2100});
    banco.boton("Eliminar");
    banco.boton("Eliminar");
    EXPECT_EQ(banco.dibujo().MblSilla.contador, 2);
    EXPECT_EQ(banco.dibujo().ElementoActual, Clase::MblSilla);
    EXPECT_EQ(banco.dibujo().IndiceActual, 1);
    EXPECT_TRUE(banco.plataforma.mensajes.empty());
}

TEST_F(Elementos, SuprimirSinNadaElegidoSoloQuitaElMarco) {
    banco.clic({1100, 2100});
    banco.boton("Eliminar");
    ASSERT_TRUE(banco.marco().Visible);
    banco.suprimir();
    EXPECT_FALSE(banco.marco().Visible);
    EXPECT_TRUE(banco.plataforma.mensajes.empty());
}

TEST_F(Elementos, SuprimirEnMedioDeUnArrastreNoDejaRastro) {
    banco.pulsa({1100, 2100});
    banco.mueve({1200, 2200});
    banco.suprimir();
    banco.mueve({1300, 2300});
    banco.suelta({1300, 2300});
    EXPECT_EQ(banco.dibujo().MblSilla.en(1), nullptr);
    EXPECT_FALSE(banco.dibujo().ObjetoEnMovimiento);
}

TEST_F(Elementos, NuevoQuitaTodoYElMarco) {
    banco.plataforma.respuestas = {Respuesta::si};
    banco.boton("Nuevo");
    EXPECT_EQ(banco.dibujo().MblSilla.ultimo(), 0);
    EXPECT_FALSE(banco.marco().Visible);
    EXPECT_FALSE(dianaBajo(banco.sesion(), 1100, 2100));
}

TEST_F(Elementos, ElMarcoSigueAlElementoEnElZoom) {
    banco.clic({1100, 2100});
    banco.boton("Zoom");
    EXPECT_FLOAT_EQ(silla().Left, 2000);
    EXPECT_EQ(silla().FactorZOOM, 1);
    EXPECT_EQ(banco.marco().recuadro, (Recuadro{1985, 3985, 480, 480}));
}

TEST_F(Elementos, SoltarSobreUnElementoNoColocaLaPared) {
    banco.bosquel.pulsarElectrico(0);
    ponerEn(*banco.dibujo().Electrico.en(1), 5000, 5000);
    banco.boton("Texto");
    ponerEn(*banco.dibujo().TextoLibre.en(1), 7000, 7000);
    banco.boton("Muro");
    for (const Punto punto : {Punto{1100, 2100}, Punto{5050, 5050}, Punto{7050, 7020}})
        banco.clic(punto);
    EXPECT_EQ(banco.modo(), Modo::Pared);
    EXPECT_EQ(banco.plataforma.dialogosDePared, 0);
}

TEST_F(Elementos, ElZoomDeUnDibujoConAberturasQuitaLaEleccion) {
    banco.ponMuro({.inicio = {3000, 6000}});
    banco.plataforma.alAbrirPuerta = [](PuertaProp& dialogo) { dialogo.Aplicar(); };
    banco.boton("Puerta");
    banco.clic(banco.medio(1));
    banco.clic({1100, 2100});
    ASSERT_TRUE(banco.marco().Visible);
    banco.boton("Zoom");
    EXPECT_FALSE(banco.marco().Visible);
    EXPECT_FALSE(banco.sesion().foco);
    banco.clic({2200, 4200});
    EXPECT_EQ(banco.dibujo().ElementoActual, Clase::MblSilla);
    EXPECT_TRUE(banco.marco().Visible);
}

TEST_F(Elementos, LoQueNoDibujaNadaSePuedeCoger) {
    silla().Orientacion = "?";
    ponerEn(silla(), 1000, 2000);
    banco.clic({1100, 2100});
    EXPECT_EQ(banco.dibujo().ElementoActual, Clase::MblSilla);
}

TEST_F(Elementos, UnSimboloSeEligePorSuResalte) {
    banco.bosquel.pulsarElectrico(0);
    ponerEn(*banco.dibujo().Electrico.en(1), 5000, 5000);
    banco.clic(lejos);
    EXPECT_FALSE(banco.dibujo().Electrico.en(1)->Resaltado);
    banco.clic({1100, 2100});
    ASSERT_TRUE(banco.marco().Visible);
    banco.pulsa({5050, 5050});
    EXPECT_TRUE(banco.dibujo().Electrico.en(1)->Resaltado);
    EXPECT_FALSE(banco.marco().Visible) << "the sheet takes the focus";
    EXPECT_EQ(banco.dibujo().ElementoActual, Clase::Electrico);
    EXPECT_EQ(banco.plataforma.cursor(), Cursor::Palma);
    banco.mueve({5150, 5250});
    EXPECT_FLOAT_EQ(banco.dibujo().Electrico.en(1)->Left, 5100);
    EXPECT_FLOAT_EQ(banco.dibujo().Electrico.en(1)->Top, 5200);
}

TEST_F(Elementos, UnSimboloQueElIman) {
    banco.bosquel.pulsarElectrico(0);
    ponerEn(*banco.dibujo().Electrico.en(1), 5049, 5000);
    banco.dibujo().Iman = true;
    banco.mueve({5060, 5050});
    EXPECT_FLOAT_EQ(banco.dibujo().Electrico.en(1)->Left, 5000);
}

TEST_F(Elementos, PasarPorUnSimboloLlevaElMarcoDelAsientoDeSuIndice) {
    banco.bosquel.pulsarElectrico(0);
    ponerEn(*banco.dibujo().Electrico.en(1), 5000, 5000);
    banco.crea(Clase::MblAsiento);
    MblAsiento& asiento = *banco.dibujo().MblAsiento.en(1);
    ponerEn(asiento, 3000, 3000);
    banco.mueve({5050, 5050});
    EXPECT_EQ(banco.marco().recuadro.Left, 2985);
    EXPECT_EQ(banco.marco().recuadro.Top, 2985);
}

TEST_F(Elementos, UnaEscaleraPasaElModoAFlechaYSeResaltaAlArrastrarla) {
    Escalera& escalera = ponEscalera(2, 4000);
    const Punto punto = enEscalera(2);
    banco.mueve(punto);
    EXPECT_EQ(banco.modo(), Modo::Flecha);
    EXPECT_EQ(banco.dibujo().EscaleraBajoPuntero, 2);
    EXPECT_FALSE(escalera.Resaltado);
    banco.arrastra(punto, {punto.x + 500, punto.y});
    EXPECT_TRUE(escalera.Resaltado);
    EXPECT_FLOAT_EQ(escalera.Left, 4500);
    EXPECT_EQ(banco.dibujo().ElementoActual, Clase::Escalera);
    EXPECT_EQ(banco.dibujo().IndiceActual, 2);
}

TEST_F(Elementos, EnElModoEscaleraLasEscalerasNoResponden) {
    ponEscalera(2, 4000);
    banco.dibujo().ModoActual = Modo::Escalera;
    banco.mueve(enEscalera(2));
    EXPECT_EQ(banco.modo(), Modo::Escalera);
    EXPECT_EQ(banco.dibujo().EscaleraBajoPuntero, 0);
}

TEST_F(Elementos, EnUnModoDeEsperaLaEscaleraSoloSeAnota) {
    ponEscalera(2, 4000);
    banco.boton("Esquina");
    banco.mueve(enEscalera(2));
    EXPECT_EQ(banco.modo(), Modo::PrimeraPared);
    EXPECT_EQ(banco.dibujo().EscaleraBajoPuntero, 2);
}

TEST_F(Elementos, UnaEscaleraSacaDelModoPared) {
    ponEscalera(2, 4000);
    banco.boton("Muro");
    banco.mueve(enEscalera(2));
    EXPECT_EQ(banco.modo(), Modo::Flecha);
    EXPECT_EQ(banco.dibujo().Pared.en(1)->Estado, estadoNuevo);
}

TEST_F(Elementos, PasarAOtraEscaleraQuitaLaEleccionDeLaAnterior) {
    Escalera& primera = ponEscalera(2, 1000);
    ponEscalera(3, 6000);
    banco.clic(enEscalera(2));
    ASSERT_TRUE(primera.Resaltado);
    banco.mueve(enEscalera(3));
    EXPECT_FALSE(primera.Resaltado);
}

TEST_F(Elementos, BuscarParedParaUnaParalelaApagaLaEscalera) {
    Escalera& escalera = ponEscalera(2, 4000);
    banco.ponMuro();
    banco.mueve(enEscalera(2));
    banco.boton("Paralela");
    escalera.Resaltado = true;
    banco.mueve(lejos);
    EXPECT_FALSE(escalera.Resaltado);
}

class Textos : public testing::Test {
  protected:
    TextoLibre& texto(int indice) { return *banco.dibujo().TextoLibre.en(indice); }
    const Punto lejos{8000, 8000};
    Banco banco;
};

TEST_F(Textos, ElCampoYElMarcoSiguenALoEscrito) {
    banco.boton("Texto");
    banco.bosquel.escribirTexto("Sala");
    EXPECT_EQ(texto(1).Text, "Sala");
    EXPECT_FLOAT_EQ(texto(1).Width, 560);
    EXPECT_EQ(banco.marco().recuadro.Width, 590);
}

TEST_F(Textos, EscribirLoMismoNoRepintaNada) {
    banco.boton("Texto");
    banco.bosquel.escribirTexto("Sala");
    const std::size_t repintados = banco.plataforma.repintados.size();
    banco.bosquel.escribirTexto("Sala");
    EXPECT_EQ(banco.plataforma.repintados.size(), repintados);
    EXPECT_EQ(texto(1).Text, "Sala");
}

TEST_F(Textos, ElQueQuedaVacioTomaUnNombre) {
    for (int i = 1; i <= 3; ++i)
        banco.boton("Texto");
    banco.clic(lejos);
    EXPECT_EQ(texto(3).Text, "Texto Libre(3)");
    EXPECT_EQ(texto(1).Text, "Texto Libre(1)") << "it lost the focus to the next one";
    EXPECT_FLOAT_EQ(texto(3).Width, 15 * 100 + 60);
    EXPECT_FALSE(banco.marco().Visible);
}

TEST_F(Textos, LoEscritoSinFocoNoVaANingunaParte) {
    banco.boton("Texto");
    banco.bosquel.escribirTexto("Sala");
    banco.clic(lejos);
    banco.bosquel.escribirTexto("Otra cosa");
    EXPECT_EQ(texto(1).Text, "Sala");
}

TEST_F(Textos, OtroControlQuitaElFoco) {
    banco.boton("Texto");
    banco.bosquel.perderFoco();
    EXPECT_EQ(texto(1).Text, "Texto Libre(1)");
    EXPECT_FALSE(banco.marco().Visible);
}

TEST_F(Textos, SeArrastraYSeAjustaComoUnMueble) {
    banco.boton("Texto");
    banco.bosquel.escribirTexto("Sala");
    banco.arrastra({50, 20}, {1099, 1020});
    EXPECT_FLOAT_EQ(texto(1).Left, 1049);
    EXPECT_FLOAT_EQ(texto(1).Top, 1000);
    banco.dibujo().Iman = true;
    banco.mueve({1100, 1020});
    EXPECT_FLOAT_EQ(texto(1).Left, 1000);
    EXPECT_EQ(banco.marco().recuadro.Left, 985);
}

TEST_F(Textos, ElDobleClicNoAbreNada) {
    banco.boton("Texto");
    banco.dobleClic({50, 20});
    EXPECT_TRUE(banco.plataforma.timer2.empty());
    banco.boton("Definir");
    EXPECT_EQ(banco.plataforma.dialogosDeMueble, 0);
}

TEST_F(Textos, ElZoomCambiaLaLetraYElCampo) {
    banco.boton("Texto");
    banco.bosquel.escribirTexto("Sala");
    banco.boton("Zoom");
    EXPECT_EQ(texto(1).FontSize, 12);
    EXPECT_FLOAT_EQ(texto(1).Height, 120);
    EXPECT_EQ(banco.marco().recuadro.Height, 150);
}

TEST_F(Textos, ElQueSeEliminaNoRecibeNombre) {
    banco.boton("Texto");
    banco.suprimir();
    EXPECT_EQ(banco.dibujo().TextoLibre.en(1), nullptr);
    EXPECT_FALSE(banco.sesion().foco);
}

}  // namespace
}  // namespace bosquel::apoyo
