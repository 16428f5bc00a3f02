#include "walls/pared_prop.h"

#include "model/metros.h"
#include "model/numeros.h"
#include "model/textos_numero.h"
#include "walls/grupos.h"
#include "walls/pared.h"

#include <algorithm>

namespace bosquel {

namespace {

/// The label shows the coordinate in metres of the sheet first, cut to two decimals, and then divided by the
/// zoom factor.
std::string textoCoordenada(float coordenada, double factor) {
    double metros = 0;
    asignar(metros, realDeTexto(enMetros(coordenada)).value_or(0) / factor);
    return textoReal(metros);
}

}  // namespace

ParedProp::ParedProp(Dibujo& dibujo, int indice) : dibujo_(dibujo), indice_(indice) {
    const Pared* pared = this->pared();
    if (!pared) return;
    txtLongitud = enMetros(pared->Longitud);
    TxtAnchoMuro = enMetros(pared->AnchoMuro);
    TxtAnchoTabique = enMetros(pared->AnchoTabique);
    TxtAngulo = textoEntero(pared->Angulo);
    const auto etiqueta = std::find(EtiquetaAngulo.begin(), EtiquetaAngulo.end(), TxtAngulo + "º");
    if (etiqueta != EtiquetaAngulo.end())
        elegirAngulo(static_cast<int>(etiqueta - EtiquetaAngulo.begin()) + 1);
    pilar_ = pared->Tipo == "Pilar";
    if (!pilar_) tipo_ = pared->esMuro() ? 0 : 1;
    TxtInicialX = textoCoordenada(pared->InicialX, dibujo.FactorZoomActual);
    TxtInicialY = textoCoordenada(pared->InicialY, dibujo.FactorZoomActual);
}

Pared* ParedProp::pared() const {
    return indice_ > 0 ? dibujo_.Pared.en(indice_) : nullptr;
}

void ParedProp::elegirAngulo(int etiqueta) {
    if (etiqueta < 1 || etiqueta > static_cast<int>(EtiquetaAngulo.size())) return;
    radio_ = etiqueta;
    std::string_view rotulo = EtiquetaAngulo[static_cast<std::size_t>(etiqueta) - 1];
    rotulo.remove_suffix(std::string_view("º").size());
    TxtAngulo = rotulo;
}

void ParedProp::escribir(Pared& pared) const {
    leerMetros(pared.AnchoMuro, TxtAnchoMuro);
    leerMetros(pared.AnchoTabique, TxtAnchoTabique);
    leerMetros(pared.Longitud, txtLongitud);
    if (const auto angulo = realTecleado(TxtAngulo)) asignar(pared.Angulo, *angulo);
    pared.NumeroGrupo = 0;
    pared.Tipo = tipo_ == 0 ? "Muro" : "Tabique";
}

void ParedProp::Aplicar() {
    Pared* pared = this->pared();
    if (!pared) return;
    if (ChkPredeterminar) {
        Pared& modelo = dibujo_.Pared.modelo();
        escribir(modelo);
        modelo.InicialX = 0;
        modelo.InicialY = 0;
    }
    escribir(*pared);
    DibujaPared(dibujo_, indice_, true);
    if (pared->Estado == estadoNuevo) pared->Estado = estadoEdicion;
}

void ParedProp::Cancelar() {
    if (const Pared* pared = this->pared(); pared && pared->Estado == estadoNuevo)
        EliminaPared(dibujo_, indice_);
}

}  // namespace bosquel
