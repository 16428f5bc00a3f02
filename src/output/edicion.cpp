#include "model/dibujo.h"
#include "output/image_crop.h"
#include "platform/extension.h"
#include "platform/reloj_de_arena.h"

namespace bosquel {

namespace {

constexpr const char* esquemaDeDosTonos = "Blanco y Negro";

}  // namespace

void ImageCrop::pulsarEdicion(Edicion boton) {
    switch (boton) {
        case Edicion::Imprimir: return hayArea("imprimir") ? imprimir() : void();
        case Edicion::Clipboard: return hayArea("guardar") ? alPortapapeles() : void();
        case Edicion::Bitmap: return hayArea("guardar") ? mapaDeBits() : void();
        case Edicion::Reiniciar: return reiniciar();
    }
}

/// Without an area, asks whether to take the whole drawing.
bool ImageCrop::hayArea(std::string_view antesDe) {
    if (recuadro_.Visible()) return true;
    const std::string texto =
        "Debe seleccionar un área antes de " + std::string(antesDe) + ".\n¿Desea seleccionar todo el dibujo?";
    if (plataforma_.mensaje({"Selección de área", texto, Icono::pregunta, Botones::siNo}) != Respuesta::si)
        return false;
    recuadro_.abarcar(HojaSalida_);
    copiar();
    return true;
}

/// The picture reaches the page by way of the clipboard, which is left empty.
void ImageCrop::imprimir() {
    const Papel* papel = papelPara(tamano, sentido);
    if (!papel) return;
    alPortapapeles();
    lienzo_->tomarDelPortapapeles();
    lienzo_->vaciarPortapapeles();
    lienzo_->vistaPrevia(*papel);
}

void ImageCrop::alPortapapeles() {
    const RelojDeArena espera(plataforma_);
    lienzo_->vaciarPortapapeles();
    lienzo_->ponerEnPortapapeles();
}

/// Says that the file is there without looking whether it is.
void ImageCrop::mapaDeBits() {
    const auto ruta =
        plataforma_.elegirArchivo({PeticionArchivo::Modo::guardar, "Mapa de Bits de Windows (*.bmp)",
                                   carpeta_, "Guardar mapa de bits"});
    if (!ruta) return;
    {
        const RelojDeArena espera(plataforma_);
        lienzo_->guardar(conExtension(*ruta, "bmp"),
                         dibujo_.Esquema == esquemaDeDosTonos ? Profundidad::dosTonos : Profundidad::color);
    }
    plataforma_.mensaje({.titulo = "Aviso", .texto = "Fichero de mapa de bits generado con éxito"});
}

void ImageCrop::reiniciar() {
    recuadro_.reiniciar(HojaSalida_);
    lienzo_->recortar({});
    cambiar();
}

}  // namespace bosquel
