#include "apoyo/mono.h"
#include "appearance/colores.h"
#include "furnishing/mesa_prop.h"
#include "furnishing/mueble_prop.h"
#include "openings/puerta_prop.h"
#include "openings/ventana_prop.h"
#include "output/image_crop.h"
#include "stairs_symbols/angulo_giro.h"
#include "stairs_symbols/electrico_prop.h"
#include "stairs_symbols/escalera_prop.h"
#include "walls/paralelas.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>

namespace bosquel::apoyo {

// The hands of the monkey in the dialogs: what a dialog enables is worked, in any order, and most times
// applied.

namespace {

constexpr int porCientoAplica = 75;

}  // namespace

void Mono::pon() {
    PlataformaFalsa& p = banco_.plataforma;
    p.alPreguntar = [this](const Mensaje& mensaje) { return responde(mensaje); };
    p.alCederEventos = [this] { cede(); };
    p.alAbrirPared = [this](ParedProp& dialogo) { enPared(dialogo); };
    p.alAbrirParalelas = [this](Paralelas& dialogo) { enParalelas(dialogo); };
    p.alAbrirVentana = [this](VentanaProp& dialogo) { enAbertura(dialogo); };
    p.alAbrirPuerta = [this](PuertaProp& dialogo) { enPuerta(dialogo); };
    p.alAbrirMueble = [this](MuebleProp& dialogo) { enMueble(dialogo); };
    p.alAbrirMesa = [this](MesaProp& dialogo) { enMesa(dialogo); };
    p.alAbrirEscalera = [this](EscaleraProp& dialogo) { enEscalera(dialogo); };
    p.alAbrirElectrico = [this](ElectricoProp& dialogo) { enElectrico(dialogo); };
    p.alAbrirOpciones = [this](Opciones& dialogo) { enOpciones(dialogo); };
    p.alAbrirColores = [this](Colores& dialogo) { enColores(dialogo); };
    p.alAbrirImageCrop = [this](ImageCrop& dialogo) { enImageCrop(dialogo); };
}

Respuesta Mono::responde(const Mensaje& mensaje) {
    if (siATodo_) return Respuesta::si;
    if (mensaje.titulo == "Salir del programa") return Respuesta::no;
    if (suerte(30)) interrumpe();
    if (mensaje.botones == Botones::siNoCancelar && suerte(30)) return Respuesta::cancelar;
    return suerte(50) ? Respuesta::si : Respuesta::no;
}

/// A turn for other events, some of which wait themselves.
void Mono::cede() {
    ++cesiones_;
    if (salida_) {
        if (cesiones_ < 3 && suerte(50)) enHojaSalida(*salida_);
        salida_->pasarTimer1();
    }
    if (cesiones_ < 3 && suerte(20)) interrumpe();
    --cesiones_;
}

void Mono::gira(AnguloGiro& angulo) {
    switch (azar_.entre(0, 3)) {
        case 0: angulo.escribir(tecleado()); break;
        case 1: angulo.elegirRadio(azar_.entre(1, AnguloGiro::radios)); break;
        case 2: angulo.cmd90Plus(azar_.entre(0, 1)); break;
        default: break;
    }
}

void Mono::enPared(ParedProp& dialogo) {
    if (!dialogo.esPilar() && suerte(50)) dialogo.elegirTipo(azar_.entre(0, 1));
    for (std::string* campo : {&dialogo.TxtAnchoMuro, &dialogo.TxtAnchoTabique, &dialogo.txtLongitud})
        escribe(*campo);
    if (suerte(30)) escribe(dialogo.TxtAngulo);
    if (suerte(60)) dialogo.elegirAngulo(azar_.entre(1, static_cast<int>(ParedProp::EtiquetaAngulo.size())));
    dialogo.ChkPredeterminar = suerte(20);
    if (suerte(10)) interrumpe();
    if (suerte(porCientoAplica))
        dialogo.Aplicar();
    else
        dialogo.Cancelar();
}

void Mono::enParalelas(Paralelas& dialogo) {
    escribe(dialogo.TxtDistancia);
    dialogo.elegido = suerte(50) ? Paralelas::Punto::Punto1 : Paralelas::Punto::Punto2;
    if (suerte(10)) interrumpe();
    if (suerte(porCientoAplica)) dialogo.Aplicar();
}

void Mono::enAbertura(AberturaProp& dialogo) {
    if (suerte(50)) dialogo.elegirAlineacion(azar_.entre(0, 1));
    const auto boton = una(AberturaProp::botones);
    if (dialogo.habilitado(boton)) dialogo.elegir(boton);
    escribe(dialogo.txtLongitud);
    if (dialogo.distanciaHabilitada()) escribe(dialogo.TxtDistancia);
    dialogo.Check1 = suerte(20);
    if (suerte(porCientoAplica)) dialogo.Aplicar();
}

void Mono::enPuerta(PuertaProp& dialogo) {
    if (suerte(50)) dialogo.elegirHojas(azar_.entre(0, 1));
    if (dialogo.fmeLadoHabilitado() && suerte(50)) dialogo.elegirExtremo(azar_.entre(0, 1));
    enAbertura(dialogo);
}

void Mono::enMueble(MuebleProp& dialogo) {
    for (std::string& medida : dialogo.medidas)
        escribe(medida);
    const FichaMueble& ficha = dialogo.ficha();
    if (const auto opciones = ficha.opciones.opciones; !opciones.empty())
        dialogo.elegirOpcion(azar_.entre(0, static_cast<int>(opciones.size()) - 1));
    if (ficha.ChkEscurridor) dialogo.ponerEscurridor(suerte(50));
    if (const int botones = static_cast<int>(ficha.Dist.codigos.size()); botones > 0) {
        dialogo.calco(azar_.entre(0, botones - 1));
        dialogo.pulsarDist(azar_.entre(0, botones - 1));
    }
    dialogo.txtLineColor = color().value_or(dialogo.txtLineColor);
    if (dialogo.conFondo()) dialogo.txtBackColor = color().value_or(dialogo.txtBackColor);
    dialogo.Check1 = suerte(20);
    if (suerte(10)) interrumpe();
    if (suerte(porCientoAplica)) dialogo.Aplicar();
}

void Mono::enMesa(MesaProp& dialogo) {
    for (std::string* campo : {&dialogo.TxtMesaX, &dialogo.TxtMesaY, &dialogo.TxtSillaX, &dialogo.TxtSillaY})
        escribe(*campo);
    const int sillas = azar_.entre(0, MesaProp::grupos - 1);
    dialogo.elegirSillas(sillas);
    const MesaProp::Boton boton{sillas, azar_.entre(0, static_cast<int>(MesaProp::Dist(sillas).size()) - 1)};
    dialogo.calco(boton);
    if (suerte(80)) dialogo.pulsarDist(boton);
    dialogo.txtLineColor = color().value_or(dialogo.txtLineColor);
    dialogo.Check1 = suerte(20);
    if (suerte(porCientoAplica)) dialogo.Aplicar();
}

void Mono::enEscalera(EscaleraProp& dialogo) {
    for (int i = azar_.entre(1, 3); i > 0; --i) {
        if (suerte(50)) dialogo.elegirTramos(azar_.entre(1, EscaleraProp::maximoTramos));
        escribe(dialogo.txtHuella);
        escribe(dialogo.txtAnchoOjo);
        dialogo.chkOrientacion = suerte(50);
        for (EscaleraProp::Tramo& tramo : dialogo.tramos) {
            if (suerte(30)) tramo.txtPeldaños = std::to_string(azar_.entre(0, 60));
            if (suerte(10)) tramo.txtPeldaños = tecleado();
            escribe(tramo.txtAnchoTramo);
            tramo.chkBarandilla = suerte(50);
        }
        gira(dialogo.Angulo);
        dialogo.txtLineColor = color().value_or(dialogo.txtLineColor);
        dialogo.PreviewChanges();
    }
    dialogo.Check1 = suerte(20);
    if (suerte(10)) interrumpe();
    if (suerte(porCientoAplica)) dialogo.Aplicar();
}

void Mono::enElectrico(ElectricoProp& dialogo) {
    for (int i = azar_.entre(0, 3); i > 0; --i) {
        if (const auto opciones = dialogo.opt(); !opciones.empty())
            dialogo.elegir(azar_.entre(0, static_cast<int>(opciones.size()) - 1));
        gira(dialogo.Angulo);
        dialogo.txtLineColor = color().value_or(dialogo.txtLineColor);
        dialogo.refrescar();
    }
    if (suerte(porCientoAplica)) dialogo.Aplicar();
}

void Mono::enOpciones(Opciones& dialogo) {
    for (int i = azar_.entre(0, 2); i > 0; --i) {
        if (suerte(20)) escribe(dialogo.TxtAnchoHoja);
        if (suerte(20)) escribe(dialogo.TxtAltoHoja);
        escribe(dialogo.TxtCuadricula);
        escribe(dialogo.txtSalvarCadaXmin);
        dialogo.ChkIman = suerte(50);
        dialogo.ChkVisible = suerte(50);
        dialogo.chkSalvadoAutomatico = suerte(70);
        const int boton = azar_.entre(0, 9);
        if (boton == 0) dialogo.Restablecer();
        if (boton == 1) dialogo.Predeterminar();
        if (boton > 3) dialogo.AplicarValores();
    }
}

void Mono::enColores(Colores& dialogo) {
    static const std::vector<std::string> nombres{"Plano", "plano", "Otro", "Blanco y Negro"};
    for (int i = azar_.entre(1, 4); i > 0; --i) {
        if (suerte(50)) dialogo.elegirEsquema(static_cast<std::size_t>(azar_.entre(0, 2)));
        for (bool& casilla : dialogo.chkColores)
            casilla = suerte(50);
        for (bool& casilla : dialogo.chkCatColor)
            casilla = suerte(50);
        if (dialogo.perfilHabilitado()) {
            banco_.plataforma.textos = {suerte(70) ? una(nombres) : tecleado()};
            dialogo.cmdGuardarPerfil();
            dialogo.escribirPerfil(suerte(70) ? una(nombres) : tecleado());
        }
        if (dialogo.solapasHabilitadas()) pintaColores(dialogo);
    }
    banco_.plataforma.textos.clear();
    if (suerte(10)) interrumpe();
    if (suerte(porCientoAplica)) dialogo.AplicarColores();
}

void Mono::pintaColores(Colores& dialogo) {
    const auto fila = [this](std::size_t cuantas) {
        return static_cast<std::size_t>(azar_.entre(0, static_cast<int>(cuantas) - 1));
    };
    dialogo.cmdLineColor(fila(dialogo.txtLineColor().size()), color());
    dialogo.cmdBackColor(fila(dialogo.txtBackColor().size()), color());
    dialogo.cmdLineCatColor(fila(dialogo.txtLineCatColor().size()), color());
    dialogo.cmdBackCatColor(fila(dialogo.txtBackCatColor().size()), color());
    if (suerte(20)) dialogo.soltarConControl(fila(dialogo.chkColores.size()));
}

void Mono::enImageCrop(ImageCrop& dialogo) {
    lienzo_.hechos.clear();
    lienzo_.areas.clear();
    lienzo_.cabe = suerte(20) ? azar_.entre(0, 500) : 5000;
    dialogo.cargar(lienzo_);
    dialogo.redimensionar(15.0 * azar_.entre(0, 1500), 15.0 * azar_.entre(0, 1500));
    salida_ = &dialogo;
    for (int i = azar_.entre(0, 20); i > 0; --i)
        enHojaSalida(dialogo);
    salida_ = nullptr;
}

/// One event of the window of the output, which another may be waiting for.
void Mono::enHojaSalida(ImageCrop& dialogo) {
    const auto lado = [this] { return 15.0 * azar_.entre(-200, 2500); };
    static constexpr std::array botones{ImageCrop::Edicion::Imprimir, ImageCrop::Edicion::Clipboard,
                                        ImageCrop::Edicion::Bitmap, ImageCrop::Edicion::Reiniciar};
    switch (azar_.entre(0, 12)) {
        case 0: dialogo.redimensionar(15.0 * azar_.entre(0, 1500), 15.0 * azar_.entre(0, 1500)); break;
        case 1:
            if (dialogo.HScroll1().Visible) dialogo.cambiarHScroll1(azar_.entre(0, ImageCrop::Barra::maximo));
            break;
        case 2:
            if (dialogo.VScroll1().Visible) dialogo.cambiarVScroll1(azar_.entre(0, ImageCrop::Barra::maximo));
            break;
        case 3:
        case 4: dialogo.pulsar(lado(), lado()); break;
        case 5: dialogo.soltar(); break;
        case 6:
            dialogo.tamano = azar_.entre(0, 1);
            dialogo.sentido = azar_.entre(0, 1);
            break;
        case 7:
        case 8: dialogo.pulsarEdicion(una(botones)); break;
        case 9: dialogo.pasarTimer1(); break;
        default: dialogo.mover(static_cast<unsigned>(azar_.entre(0, 2)), lado(), lado());
    }
    const Recuadro& forma = dialogo.recuadro().forma();
    for (const double valor : {forma.Left, forma.Top, forma.Width, forma.Height})
        EXPECT_TRUE(std::isfinite(valor)) << "the frame of the output";
    for (const AreaSalida& area : lienzo_.areas) {
        EXPECT_GE(area.ancho, 0);
        EXPECT_GE(area.alto, 0);
    }
    lienzo_.areas.clear();
}

}  // namespace bosquel::apoyo
