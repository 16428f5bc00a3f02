#include "apoyo/banco.h"

#include <gtest/gtest.h>
#include <sstream>
#include <stdexcept>

namespace bosquel::apoyo {

namespace {

/// The place of a button in its row, -1 if it is not there.
template <class Fila>
int lugar(const Fila& fila, std::string_view rotulo) {
    for (std::size_t i = 0; i < fila.size(); ++i)
        if (fila[i] == rotulo) return static_cast<int>(i);
    return -1;
}

}  // namespace

Banco::Banco(std::string_view ajustes) : bosquel(plataforma, carpeta.ruta()) {
    if (!ajustes.empty()) pon("Bqr.ini", ajustes);
    bosquel.cargar();
    bosquel.redimensionar(ventanaAncho, ventanaAlto);
}

Pared& Banco::pared(int indice) {
    Pared* pared = dibujo().Pared.en(indice);
    if (!pared) throw std::out_of_range("no wall " + std::to_string(indice));
    return *pared;
}

void Banco::boton(std::string_view rotulo) {
    turno([&] {
        if (const int i = lugar(BttPrincipal, rotulo); i >= 0)
            bosquel.pulsarPrincipal(static_cast<Principal>(i));
        else if (const int o = lugar(BttOperacion, rotulo); o >= 0)
            bosquel.pulsarOperacion(o);
        else if (const int j = lugar(BttUsuario, rotulo); j >= 0)
            bosquel.pulsarUsuario(j);
        else if (const int k = lugar(BttTipo, rotulo); k >= 0)
            bosquel.pulsarTipo(k);
        else
            ADD_FAILURE() << "no button " << rotulo;
    });
}

int Banco::crea(Clase clase) {
    const int boton = datos(clase).boton;
    turno([&] {
        switch (datos(clase).grupo) {
            case Grupo::BttMueble: return bosquel.pulsarMueble(boton);
            case Grupo::BttBaño: return bosquel.pulsarBaño(boton);
            case Grupo::BttCocina: return bosquel.pulsarCocina(boton);
            case Grupo::BttUsuario: return bosquel.pulsarUsuario(boton);
            case Grupo::BttElectrico: return bosquel.pulsarElectrico(boton);
            case Grupo::BttTipo: return bosquel.pulsarTipo(boton);
        }
    });
    return conColeccion(dibujo(), clase, [](const auto& coleccion) { return coleccion.contador - 1; });
}

void Banco::minutos(int cuantos) {
    for (int i = 0; i < cuantos; ++i)
        turno([&] { bosquel.minutoDeAutoSave(); });
}

void Banco::mueve(Punto a) {
    turno([&] { bosquel.mover(boton1_, boton1_, a.x, a.y); });
}

void Banco::pulsa(Punto en) {
    boton1_ = true;
    turno([&] { bosquel.pulsar(en.x, en.y); });
}

void Banco::suelta(Punto en) {
    boton1_ = false;
    turno([&] { bosquel.soltar(en.x, en.y); });
}

void Banco::clic(Punto en) {
    mueve(en);
    pulsa(en);
    suelta(en);
}

void Banco::dobleClic(Punto en) {
    clic(en);
    turno([&] { bosquel.dobleClic(en.x, en.y); });
    turno([&] { bosquel.soltar(en.x, en.y); });
}

void Banco::arrastra(Punto de, Punto a) {
    mueve(de);
    pulsa(de);
    mueve({(de.x + a.x) / 2, (de.y + a.y) / 2});
    mueve(a);
    suelta(a);
}

int Banco::ponMuro(const Muro& muro) {
    const auto anterior = std::exchange(plataforma.alAbrirPared, [&](ParedProp& dialogo) {
        dialogo.TxtAngulo = std::to_string(muro.angulo);
        dialogo.txtLongitud = muro.longitud;
        if (!muro.ancho.empty())
            (dialogo.tipo() == 0 ? dialogo.TxtAnchoMuro : dialogo.TxtAnchoTabique) = muro.ancho;
        dialogo.Aplicar();
    });
    boton(muro.boton);
    clic(muro.inicio);
    plataforma.alAbrirPared = anterior;
    return dibujo().Pared.contador - 1;
}

void Banco::guarda(const std::string& nombre) {
    plataforma.archivos.push_back(ruta(nombre));
    boton("Guardar");
}

void Banco::abre(const std::string& nombre) {
    plataforma.archivos.push_back(ruta(nombre));
    boton("Abrir");
}

std::vector<std::string> Banco::lineas(const std::string& nombre) const {
    std::istringstream texto(bytes(nombre));
    std::vector<std::string> lineas;
    for (std::string linea; std::getline(texto, linea);) {
        if (linea.ends_with('\r')) linea.pop_back();
        lineas.push_back(linea);
    }
    return lineas;
}

std::string enLineas(const std::vector<std::string>& lineas, std::string_view fin) {
    std::string texto;
    for (const std::string& linea : lineas)
        texto.append(linea).append(fin);
    return texto;
}

}  // namespace bosquel::apoyo
