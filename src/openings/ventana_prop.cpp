#include "openings/ventana_prop.h"

#include "openings/abertura.h"
#include "openings/trazar_abertura.h"
#include "openings/ventana.h"
#include "walls/trazar_pared.h"

namespace bosquel {

VentanaProp::VentanaProp(Dibujo& dibujo, int indice)
    : AberturaProp(dibujo, abertura<Ventana>(dibujo, indice)), dibujo_(dibujo), indice_(indice) {
    if (const Ventana* ventana = abertura<Ventana>(dibujo, indice)) {
        lado_ = ventana->Alineacion == "Derecha" ? Boton::Lado2 : Boton::Lado1;
        // A partition has no sides to choose from.
        punto_ = muro().esMuro() && ventana->Orientacion != "Arriba" ? Boton::Punto2 : Boton::Punto1;
        croquis_.Tipo = ventana->Tipo;
        croquis_.Angulo = ventana->Angulo;
    }
    croquis_.AnchoMuro = anchoMuroCroquis;
    croquis_.AnchoTabique = anchoTabiqueCroquis;
    croquis_.Longitud = largoCroquis;
    croquis_.Alineacion = "Centro";
    trazarMuro(largoCroquis);
    DibujaVentana();
}

bool VentanaProp::elegido(Boton boton) const {
    return boton == punto_ || boton == lado_;
}

bool VentanaProp::habilitado(Boton boton) const {
    const bool punto = boton == Boton::Punto1 || boton == Boton::Punto2;
    return punto ? muro().esMuro() : alineacion() == 1;
}

void VentanaProp::elegir(Boton boton) {
    const bool punto = boton == Boton::Punto1 || boton == Boton::Punto2;
    (punto ? punto_ : lado_) = boton;
    DibujaVentana();
}

void VentanaProp::DibujaVentana() {
    dibujar([this] {
        croquis_.Orientacion = punto_ == Boton::Punto1 ? "Arriba" : "Abajo";
        TrazaLineasVentana(croquis_, muro(), 1);
    });
}

void VentanaProp::trazarCroquis(SuperficieSalida& superficie) const {
    TrazarPared(superficie, muro(), negro, 1);
    TrazarVentana(superficie, croquis_, negro, 1);
}

void VentanaProp::escribir(Ventana& ventana) const {
    ventana.Alineacion = alineacion() == 0 ? "Centro" : lado_ == Boton::Lado1 ? "Izquierda" : "Derecha";
    leerMedidas(ventana);
    ventana.Orientacion = punto_ == Boton::Punto1 ? "Arriba" : "Abajo";
}

void VentanaProp::Aplicar() {
    auto* ventana = abertura<Ventana>(dibujo_, indice_);
    if (!ventana) return;
    escribir(*ventana);
    ColocaVentana(dibujo_, indice_, true);
    if (ventana->Estado == estadoNuevo) ventana->Estado = estadoEdicion;
    if (Check1) escribir(dibujo_.Ventana.modelo());
}

}  // namespace bosquel
