#include "stairs_symbols/angulo_giro.h"

#include "model/textos_numero.h"

#include <utility>

namespace bosquel {

namespace {

constexpr int vuelta = 360, recto = 90;

double atras(double grados) {
    return grados < recto ? grados - recto + vuelta : grados - recto;
}

double adelante(double grados) {
    return grados + recto > vuelta ? grados + recto - vuelta : grados + recto;
}

}  // namespace

int AnguloGiro::direccion(int radio) {
    return (radio - 1) * vuelta / radios;
}

std::string AnguloGiro::EtiquetaAngulo(int radio) {
    return textoEntero(direccion(radio)) + "º";
}

void AnguloGiro::escribir(std::string texto) {
    texto_ = std::move(texto);
    if (grados().value_or(0) > vuelta) texto_ = textoEntero(vuelta);
}

void AnguloGiro::elegirRadio(int radio) {
    if (radio >= 1 && radio <= radios) texto_ = textoEntero(direccion(radio));
}

int AnguloGiro::radioEncendido() const {
    for (int radio = 1; radio <= radios; ++radio)
        if (texto_ == textoEntero(direccion(radio))) return radio;
    return 0;
}

void AnguloGiro::cmd90Plus(int indice) {
    if (const auto ahora = grados()) escribir(textoReal(indice == 0 ? atras(*ahora) : adelante(*ahora)));
}

std::optional<double> AnguloGiro::grados() const {
    return texto_.empty() ? std::optional(0.0) : realTecleado(texto_);
}

}  // namespace bosquel
