#include "drawing/opciones.h"

#include "drawing/archivo.h"
#include "drawing/foco.h"
#include "drawing/vista.h"
#include "model/metros.h"
#include "model/numeros.h"
#include "model/textos_numero.h"
#include "persistence/perfiles.h"

namespace bosquel {

namespace {

constexpr double unidadHoja = 100;  // mm of the model to one unit of the sheet fields
constexpr std::int16_t minutosUsuales = 5;

void leerLado(std::int32_t& destino, const std::string& texto) {
    if (const auto lado = enteroTecleado(texto)) asignar(destino, *lado * unidadHoja);
}

std::string palabra(bool valor) {
    return valor ? palabraVerdadero : palabraFalso;
}

}  // namespace

Opciones::Opciones(Sesion& sesion) : sesion_(sesion) {
    CargarControles();
}

void Opciones::CargarControles() {
    const Dibujo& dibujo = sesion_.dibujo;
    TxtAnchoHoja = formatoEntero(dibujo.AreaWidth / unidadHoja);
    TxtAltoHoja = formatoEntero(dibujo.AreaHight / unidadHoja);
    ChkIman = dibujo.Iman;
    ChkVisible = dibujo.VerCuadricula;
    TxtCuadricula = enMetros(dibujo.Cuadricula);
    chkSalvadoAutomatico = dibujo.AutoSave != 0;
    txtSalvarCadaXmin = textoEntero(chkSalvadoAutomatico ? dibujo.AutoSave : minutosUsuales);
}

void Opciones::AplicarValores() {
    Dibujo& dibujo = sesion_.dibujo;
    leerLado(dibujo.AreaWidth, TxtAnchoHoja);
    leerLado(dibujo.AreaHight, TxtAltoHoja);
    MedirHoja(sesion_);
    dibujo.Iman = ChkIman;
    leerMetros(dibujo.Cuadricula, TxtCuadricula);
    dibujo.VerCuadricula = ChkVisible;
    if (ChkVisible)
        DibujarCuadricula(sesion_);
    else
        BorrarCuadricula(sesion_);
    if (!chkSalvadoAutomatico)
        dibujo.AutoSave = 0;
    else if (txtSalvarCadaXmin.empty() || txtSalvarCadaXmin == "0")
        dibujo.AutoSave = minutosUsuales;
    else if (const auto minutos = enteroTecleado(txtSalvarCadaXmin))
        asignar(dibujo.AutoSave, *minutos);
}

void Opciones::Predeterminar() {
    AplicarValores();
    const Dibujo& dibujo = sesion_.dibujo;
    ArchivoPerfil ajustes(sesion_.carpeta / ficheroAjustes);
    ajustes.guardar("PaperSize", "AreaHight", textoEntero(dibujo.AreaHight));
    ajustes.guardar("PaperSize", "AreaWidth", textoEntero(dibujo.AreaWidth));
    ajustes.guardar("Smart", "Grid", textoReal(dibujo.Cuadricula));
    ajustes.guardar("Smart", "Snap", palabra(dibujo.Iman));
    ajustes.guardar("Smart", "GridView", palabra(dibujo.VerCuadricula));
    ajustes.guardar("Smart", "AutoSave", textoEntero(dibujo.AutoSave));
    ajustes.volcar();
    publicar(sesion_);
}

void Opciones::Restablecer() {
    Dibujo& dibujo = sesion_.dibujo;
    dibujo.FactorZoomActual = 0.5;
    dibujo.AreaHight = 20000;
    dibujo.AreaWidth = 20000;
    dibujo.Cuadricula = 100;
    dibujo.Iman = false;
    dibujo.VerCuadricula = false;
    dibujo.AutoSave = minutosUsuales;
    // Everything on the sheet is drawn by the factor.
    anunciarTodo(dibujo);
    if (sesion_.foco) enmarcar(sesion_, *sesion_.foco);
    publicar(sesion_);
    CargarControles();
}

}  // namespace bosquel
