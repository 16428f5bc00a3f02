#include "drawing/enviar.h"

#include "drawing/archivo.h"
#include "output/image_crop.h"

namespace bosquel {

void EnviarA(Sesion& sesion) {
    ImageCrop dialogo(sesion.plataforma, sesion.dibujo, sesion.carpeta / carpetaDibujos);
    mostrar(sesion, dialogo);
}

}  // namespace bosquel
