#include "openings/puerta_prop.h"

#include "openings/abertura.h"
#include "openings/puerta.h"
#include "openings/trazar_abertura.h"
#include "walls/trazar_pared.h"

#include <algorithm>

namespace bosquel {

namespace {

constexpr double hojaCroquis = 720;

}  // namespace

PuertaProp::PuertaProp(Dibujo& dibujo, int indice)
    : AberturaProp(dibujo, abertura<Puerta>(dibujo, indice)), dibujo_(dibujo), indice_(indice) {
    if (const Puerta* puerta = abertura<Puerta>(dibujo, indice)) {
        if (puerta->Alineacion == "Izquierda") extremo_ = 0;
        if (puerta->Alineacion == "Derecha") extremo_ = 1;
        if (puerta->Orientacion == "Arriba") punto_ = Boton::Punto1;
        lado_ = ladoEfectivo(*puerta);
        lateral_ = puerta->OrientacionLateral;
        if (lateral_ == "Doble" || lateral_ == "Izquierda") bisagra_ = Boton::Lado1;
        if (lateral_ == "Derecha") bisagra_ = Boton::Lado2;
        if (bisagra_) hojas_ = lateral_ == "Doble" ? 1 : 0;
        croquis_.Angulo = puerta->Angulo;
    }
    croquis_.AnchoMuro = anchoMuroCroquis;
    croquis_.AnchoTabique = anchoTabiqueCroquis;
    croquis_.Longitud = hojaCroquis;
    croquis_.Alineacion = "Centro";
    DibujaPuerta();
}

void PuertaProp::elegirHojas(int radio) {
    hojas_ = radio;
    lateral_ = radio == 1 ? "Doble" : "UnaHoja";
    if (radio == 0 && bisagra_) return elegir(*bisagra_);
    DibujaPuerta();
}

bool PuertaProp::elegido(Boton boton) const {
    return boton == punto_ || boton == bisagra_;
}

bool PuertaProp::habilitado(Boton boton) const {
    return boton == Boton::Punto1 || boton == Boton::Punto2 || hojas_ != 1;
}

void PuertaProp::elegir(Boton boton) {
    switch (boton) {
        case Boton::Punto1:
        case Boton::Punto2:
            punto_ = boton;
            lado_ = ladoEfectivo(boton == Boton::Punto1 ? "Arriba" : "Abajo", croquis_.Angulo);
            break;
        case Boton::Lado1:
        case Boton::Lado2:
            bisagra_ = boton;
            lateral_ = boton == Boton::Lado1 ? "Izquierda" : "Derecha";
            break;
    }
    DibujaPuerta();
}

void PuertaProp::DibujaPuerta() {
    dibujar([this] {
        croquis_.Orientacion = ladoEfectivo(lado_, croquis_.Angulo);
        croquis_.OrientacionLateral = lateral_;
        // Two leaves are longer than the wall of a window: the wall reaches as far as they do.
        const double hueco = hojaCroquis * (lateral_ == "Doble" ? 2 : 1) + 2 * anchoTabiqueCroquis;
        trazarMuro(std::max(largoCroquis, hueco));
        TrazaLineasPuerta(croquis_, muro(), 1);
    });
}

void PuertaProp::trazarCroquis(SuperficieSalida& superficie) const {
    TrazarPared(superficie, muro(), negro, 1);
    TrazarPuerta(superficie, croquis_, negro, 1);
}

void PuertaProp::escribir(Puerta& puerta, const std::string& lado) const {
    puerta.Alineacion = alineacion() == 0 ? "Centro" : extremo_ == 0 ? "Izquierda" : "Derecha";
    leerMedidas(puerta);
    puerta.Orientacion = lado;
    puerta.OrientacionLateral = lateral_;
}

void PuertaProp::Aplicar() {
    auto* puerta = abertura<Puerta>(dibujo_, indice_);
    if (!puerta) return;
    escribir(*puerta, ladoEfectivo(lado_, puerta->Angulo));
    ColocaPuerta(dibujo_, indice_, true);
    if (puerta->Estado == estadoNuevo) puerta->Estado = estadoEdicion;
    if (Check1) escribir(dibujo_.Puerta.modelo(), lado_);
}

}  // namespace bosquel
