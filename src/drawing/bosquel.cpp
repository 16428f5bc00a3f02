#include "drawing/bosquel.h"

#include "drawing/archivo.h"
#include "drawing/creacion.h"
#include "drawing/entrada.h"
#include "drawing/foco.h"
#include "drawing/regla.h"
#include "drawing/texto_libre.h"
#include "drawing/vista.h"

namespace bosquel {

namespace {

/// One event: what it has changed is shown when it ends.
class Turno {
  public:
    explicit Turno(Sesion& sesion) : sesion_(sesion) {}
    Turno(const Turno&) = delete;
    Turno& operator=(const Turno&) = delete;
    ~Turno() { publicar(sesion_); }

  private:
    Sesion& sesion_;
};

}  // namespace

Bosquel::Bosquel(Plataforma& plataforma, std::filesystem::path carpeta)
    : sesion_(plataforma, std::move(carpeta)), hoja_(sesion_) {}

void Bosquel::cargar() {
    const Turno turno(sesion_);
    sesion_.plataforma.ponerTitulo(tituloNuevo);
    Entrada entrada;
    sesion_.plataforma.mostrar(entrada);
    ResetearDibujo(sesion_);
}

void Bosquel::redimensionar(double ancho, double alto) {
    const Turno turno(sesion_);
    Redimensionar(sesion_, ancho, alto);
}

void Bosquel::cambiarHScroll1(int valor) {
    const Turno turno(sesion_);
    CambiarHScroll1(sesion_, valor);
}

void Bosquel::cambiarVScroll1(int valor) {
    const Turno turno(sesion_);
    CambiarVScroll1(sesion_, valor);
}

void Bosquel::pulsar(float X, float Y) {
    const Turno turno(sesion_);
    hoja_.pulsar(X, Y);
}

void Bosquel::mover(bool boton1, bool alguno, float X, float Y) {
    const Turno turno(sesion_);
    hoja_.mover(boton1, alguno, X, Y);
}

void Bosquel::soltar(float X, float Y) {
    const Turno turno(sesion_);
    hoja_.soltar(X, Y);
}

void Bosquel::dobleClic(float X, float Y) {
    const Turno turno(sesion_);
    hoja_.dobleClic(X, Y);
}

void Bosquel::pulsarRegla(float X, float Y) {
    bosquel::pulsarRegla(sesion_, X, Y);
}

void Bosquel::moverRegla(bool boton1, float X, float Y) {
    const Turno turno(sesion_);
    bosquel::moverRegla(sesion_, boton1, X, Y);
}

void Bosquel::soltarRegla() {
    bosquel::soltarRegla(sesion_);
}

void Bosquel::dobleClicRegla() {
    const Turno turno(sesion_);
    ocultarRegla(sesion_);
}

void Bosquel::pulsarPrincipal(Principal boton) {
    const Turno turno(sesion_);
    bosquel::pulsarPrincipal(sesion_, boton);
}

void Bosquel::cruzarPrincipal(Principal boton) {
    const Turno turno(sesion_);
    bosquel::cruzarPrincipal(sesion_, boton);
}

void Bosquel::cruzarVentana() {
    const Turno turno(sesion_);
    QuitarBordeElevado(sesion_);
}

void Bosquel::pulsarOperacion(int indice) {
    const Turno turno(sesion_);
    bosquel::pulsarOperacion(sesion_, indice);
}

void Bosquel::pulsarTipo(int indice) {
    const Turno turno(sesion_);
    bosquel::pulsarTipo(sesion_, indice);
}

void Bosquel::pulsarUsuario(int indice) {
    const Turno turno(sesion_);
    bosquel::pulsarUsuario(sesion_, indice);
}

void Bosquel::pulsarMueble(int indice) {
    const Turno turno(sesion_);
    bosquel::pulsarMueble(sesion_, indice);
}

void Bosquel::pulsarBaño(int indice) {
    const Turno turno(sesion_);
    bosquel::pulsarBaño(sesion_, indice);
}

void Bosquel::pulsarCocina(int indice) {
    const Turno turno(sesion_);
    bosquel::pulsarCocina(sesion_, indice);
}

void Bosquel::pulsarElectrico(int indice) {
    const Turno turno(sesion_);
    bosquel::pulsarElectrico(sesion_, indice);
}

void Bosquel::escribirTexto(const std::string& escrito) {
    const Turno turno(sesion_);
    bosquel::escribirTexto(sesion_, escrito);
}

void Bosquel::perderFoco() {
    const Turno turno(sesion_);
    quitarFoco(sesion_);
}

void Bosquel::suprimir() {
    const Turno turno(sesion_);
    teclaSuprimir(sesion_);
}

void Bosquel::cerrar() {
    sesion_.plataforma.terminar();
}

void Bosquel::pasarTimer2() {
    const Turno turno(sesion_);
    abrirDiferido(sesion_);
}

void Bosquel::minutoDeAutoSave() {
    const Turno turno(sesion_);
    tmrAutoSave(sesion_);
}

}  // namespace bosquel
