#include "drawing/propiedades.h"

#include "drawing/aberturas.h"
#include "drawing/escaleras.h"
#include "drawing/foco.h"
#include "drawing/seleccion.h"
#include "furnishing/mesa_prop.h"
#include "furnishing/mueble_prop.h"
#include "stairs_symbols/electrico_prop.h"

namespace bosquel {

namespace {

template <class Dialogo, class... Datos>
void abrir(Sesion& sesion, Datos... datos) {
    Dialogo dialogo(sesion.dibujo, datos...);
    mostrar(sesion, dialogo);
}

}  // namespace

void abrirPropiedades(Sesion& sesion, Referencia cual) {
    switch (cual.clase) {
        case Clase::Pared: return AbreParedProp(sesion, cual.indice);
        case Clase::Ventana: return AbreVentanaProp(sesion, cual.indice);
        case Clase::Puerta: return AbrePuertaProp(sesion, cual.indice);
        case Clase::TextoLibre: return;
        default: break;
    }
    if (!situado(sesion.dibujo, cual)) return;
    if (cual.clase == Clase::Escalera) return AbreEscaleraProp(sesion, cual.indice, 0);
    if (cual.clase == Clase::Electrico) return abrir<ElectricoProp>(sesion, cual.indice);
    if (cual.clase == Clase::MblMesa)
        abrir<MesaProp>(sesion, cual.indice);
    else
        abrir<MuebleProp>(sesion, cual.clase, cual.indice);
    if (sesion.foco == cual) enmarcar(sesion, cual);
}

void MostrarPropiedades(Sesion& sesion) {
    if (const auto clase = sesion.dibujo.ElementoActual)
        abrirPropiedades(sesion, {*clase, sesion.dibujo.IndiceActual});
}

}  // namespace bosquel
