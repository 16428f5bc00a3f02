#include "apoyo/plataforma_falsa.h"

#include "drawing/entrada.h"
#include "drawing/opciones.h"
#include "openings/puerta_prop.h"
#include "openings/ventana_prop.h"
#include "walls/paralelas.h"
#include "walls/pared_prop.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace bosquel::apoyo {

namespace {

constexpr int turnosDeSobra = 1000;

Respuesta alCerrar(Botones botones) {
    switch (botones) {
        case Botones::aceptar: return Respuesta::aceptar;
        case Botones::siNo: return Respuesta::no;
        case Botones::siNoCancelar: return Respuesta::cancelar;
    }
    return Respuesta::cancelar;
}

template <class Cosa>
Cosa sacar(std::deque<Cosa>& cola) {
    Cosa primera = std::move(cola.front());
    cola.pop_front();
    return primera;
}

}  // namespace

Respuesta PlataformaFalsa::mensaje(const Mensaje& mensaje) {
    mensajes.push_back(mensaje);
    if (mensaje.botones == Botones::aceptar) return Respuesta::aceptar;
    if (alPreguntar) return alPreguntar(mensaje);
    if (!respuestas.empty()) return sacar(respuestas);
    ADD_FAILURE() << "a question that nobody answers: " << mensaje.texto;
    return alCerrar(mensaje.botones);
}

void PlataformaFalsa::mostrar(Colores& dialogo) {
    ++dialogosDeColores;
    if (alAbrirColores) alAbrirColores(dialogo);
}

void PlataformaFalsa::mostrar(ElectricoProp& dialogo) {
    ++dialogosDeElectrico;
    if (alAbrirElectrico) alAbrirElectrico(dialogo);
}

void PlataformaFalsa::mostrar(EscaleraProp& dialogo) {
    ++dialogosDeEscalera;
    if (alAbrirEscalera) alAbrirEscalera(dialogo);
}

void PlataformaFalsa::mostrar(ImageCrop& dialogo) {
    ++dialogosDeImageCrop;
    if (alAbrirImageCrop) alAbrirImageCrop(dialogo);
}

void PlataformaFalsa::mostrar(MesaProp& dialogo) {
    ++dialogosDeMesa;
    if (alAbrirMesa) alAbrirMesa(dialogo);
}

void PlataformaFalsa::mostrar(MuebleProp& dialogo) {
    ++dialogosDeMueble;
    if (alAbrirMueble) alAbrirMueble(dialogo);
}

void PlataformaFalsa::mostrar(Entrada& dialogo) {
    ++entradas;
    if (alAbrirEntrada) alAbrirEntrada(dialogo);
}

void PlataformaFalsa::mostrar(Opciones& dialogo) {
    ++dialogosDeOpciones;
    if (alAbrirOpciones) alAbrirOpciones(dialogo);
}

void PlataformaFalsa::mostrar(ParedProp& dialogo) {
    ++dialogosDePared;
    if (alAbrirPared)
        alAbrirPared(dialogo);
    else
        dialogo.Cancelar();
}

void PlataformaFalsa::mostrar(PuertaProp& dialogo) {
    ++dialogosDePuerta;
    if (alAbrirPuerta) alAbrirPuerta(dialogo);
}

void PlataformaFalsa::mostrar(VentanaProp& dialogo) {
    ++dialogosDeVentana;
    if (alAbrirVentana) alAbrirVentana(dialogo);
}

void PlataformaFalsa::mostrar(Paralelas& dialogo) {
    ++dialogosDeParalelas;
    if (alAbrirParalelas) alAbrirParalelas(dialogo);
}

std::optional<std::filesystem::path> PlataformaFalsa::elegirArchivo(const PeticionArchivo& peticion) {
    peticiones.push_back(peticion);
    if (archivos.empty()) return std::nullopt;
    auto ruta = sacar(archivos);
    return ruta.empty() ? std::nullopt : std::optional(std::move(ruta));
}

std::string PlataformaFalsa::pedirTexto(const PeticionTexto& peticion) {
    preguntasDeTexto.push_back(peticion);
    return textos.empty() ? std::string() : sacar(textos);
}

void PlataformaFalsa::cederEventos(Espera espera) {
    esperas.push_back(espera);
    if (++turnos > turnosDeSobra) throw std::runtime_error("a wait loop that nothing ends");
    if (alCederEventos) alCederEventos();
}

void PlataformaFalsa::activar(Reloj reloj, bool activo) {
    (reloj == Reloj::Timer2 ? timer2 : autoSave).push_back(activo);
}

void PlataformaFalsa::repintar(const ZonaSucia& zona, const ZonaSucia& paso) {
    repintados.push_back(zona);
    pasos.push_back(paso);
}

}  // namespace bosquel::apoyo
