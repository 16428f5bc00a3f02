#include "apoyo/uniones_de_referencia.h"

namespace bosquel::apoyo {

namespace {

float f(double valor) {
    return static_cast<float>(valor);
}

}  // namespace

void PlanoDeReferencia::ejecutar(const std::string& procedimiento) {
    if (procedimiento == "XPP") unionXPosPos();
    if (procedimiento == "XPN") unionXPosNeg();
    if (procedimiento == "Up") unionTPos90Up();
    if (procedimiento == "Right") unionTPos90Right();
    if (procedimiento == "Down") unionTPos90Down();
    if (procedimiento == "Left") unionTPos90Left();
    if (procedimiento == "270Up") unionTPos270Up();
    if (procedimiento == "270Down") unionTPos270Down();
    if (procedimiento == "270Left") unionTPos270Left();
    if (procedimiento == "270Right") unionTPos270Right();
}

void PlanoDeReferencia::nombrarMenor() {
    const bool uno = paredUno_->angulo < paredDos_->angulo;
    w1_ = uno ? paredUno_ : paredDos_;
    w2_ = uno ? paredDos_ : paredUno_;
}

void PlanoDeReferencia::nombrarMayor() {
    const bool uno = paredUno_->angulo > paredDos_->angulo;
    w1_ = uno ? paredUno_ : paredDos_;
    w2_ = uno ? paredDos_ : paredUno_;
}

void PlanoDeReferencia::nombrarNegativo() {
    const bool uno = paredUno_->angulo < 0;
    w1_ = uno ? paredUno_ : paredDos_;
    w2_ = uno ? paredDos_ : paredUno_;
}

void PlanoDeReferencia::cruzar() {
    puntoUnion(w1_->l1, w2_->l1);
    c11_ = {px, py};
    puntoUnion(w1_->l1, w2_->l3);
    c13_ = {px, py};
    puntoUnion(w1_->l3, w2_->l1);
    c31_ = {px, py};
    puntoUnion(w1_->l3, w2_->l3);
    c33_ = {px, py};
}

void PlanoDeReferencia::unionXPosPos() {
    nombrarMenor();
    cruzar();
    pieza(*w1_, c13_, c33_);
    cortarFinal(*w1_, c11_, c31_);
    pieza(*w2_, c11_, c13_);
    cortarFinal(*w2_, c31_, c33_);
}

void PlanoDeReferencia::unionXPosNeg() {
    nombrarMenor();
    cruzar();
    pieza(*w1_, c13_, c33_);
    cortarFinal(*w1_, c11_, c31_);
    pieza(*w2_, c31_, c33_);
    cortarFinal(*w2_, c11_, c13_);
}

void PlanoDeReferencia::unionTPos90Up() {
    nombrarMayor();
    cruzar();
    cortarInicio(*w1_, c11_, c31_);
    pieza(*w2_, c31_, c33_);
    cortarFinal(*w2_, c11_, c33_);
}

void PlanoDeReferencia::unionTPos90Right() {
    nombrarMayor();
    cruzar();
    cortarFinal(*w2_, c11_, c13_);
    pieza(*w1_, c11_, c31_);
    cortarFinal(*w1_, c13_, c31_);
}

void PlanoDeReferencia::unionTPos90Down() {
    nombrarMayor();
    cruzar();
    cortarFinal(*w1_, c13_, c33_);
    pieza(*w2_, c31_, c33_);
    cortarFinal(*w2_, c31_, c13_);
}

void PlanoDeReferencia::unionTPos90Left() {
    nombrarMayor();
    cruzar();
    cortarInicio(*w2_, c31_, c33_);
    pieza(*w1_, c11_, c31_);
    cortarFinal(*w1_, c11_, c33_);
}

void PlanoDeReferencia::unionTPos270Up() {
    nombrarNegativo();
    cruzar();
    cortarFinal(*w1_, c11_, c31_);
    pieza(*w2_, c31_, c33_);
    cortarFinal(*w2_, c11_, c33_);
}

void PlanoDeReferencia::unionTPos270Down() {
    nombrarNegativo();
    cruzar();
    cortarInicio(*w1_, c13_, c33_);
    pieza(*w2_, c31_, c33_);
    cortarFinal(*w2_, c31_, c13_);
}

void PlanoDeReferencia::unionTPos270Left() {
    nombrarNegativo();
    cruzar();
    cortarInicio(*w2_, c31_, c33_);
    pieza(*w1_, c13_, c33_);
    cortarFinal(*w1_, c13_, c31_);
}

void PlanoDeReferencia::unionTPos270Right() {
    nombrarNegativo();
    cruzar();
    cortarFinal(*w2_, c11_, c13_);
    pieza(*w1_, c13_, c33_);
    cortarFinal(*w1_, c11_, c33_);
}

void PlanoDeReferencia::pieza(const Muro& de, Punto uno, Punto tres) {
    Muro n = de;
    n.l1.x1 = f(uno.x);
    n.l1.y1 = f(uno.y);
    n.l3.x1 = f(tres.x);
    n.l3.y1 = f(tres.y);
    n.tapa1 = false;
    medirLongitud(n);
    verTapas(n);
    muros[numPared] = n;
    ++numPared;
}

void PlanoDeReferencia::cortarInicio(Muro& muro, Punto uno, Punto tres) {
    muro.l1.x1 = f(uno.x);
    muro.l1.y1 = f(uno.y);
    muro.l3.x1 = f(tres.x);
    muro.l3.y1 = f(tres.y);
    muro.tapa1 = false;
    medirLongitud(muro);
    verTapas(muro);
}

void PlanoDeReferencia::cortarFinal(Muro& muro, Punto uno, Punto tres) {
    muro.l1.x2 = f(uno.x);
    muro.l1.y2 = f(uno.y);
    muro.l3.x2 = f(tres.x);
    muro.l3.y2 = f(tres.y);
    muro.tapa2 = false;
    medirLongitud(muro);
    verTapas(muro);
}

}  // namespace bosquel::apoyo
