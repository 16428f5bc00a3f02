#pragma once

#include "apoyo/banco.h"
#include "apoyo/lienzo_falso.h"
#include "apoyo/uniones_muros.h"

#include <optional>
#include <string>
#include <vector>

namespace bosquel {
class AberturaProp;
class AnguloGiro;
}  // namespace bosquel

namespace bosquel::apoyo {

/// A user without sense or patience: whatever the window, its dialogs and its timers offer is done at random,
/// in any order, with any text and any file. What it does depends on its seed alone.
class Mono {
  public:
    explicit Mono(unsigned semilla);

    /// Does something, and tells what.
    std::string paso();

    /// Wants of the program what has to hold after every event, see `comprobar`.
    void comprueba();

  private:
    struct Accion {
        int peso;
        std::string (Mono::*hacer)();
    };
    static const std::vector<Accion>& acciones();

    bool suerte(int porCiento) { return azar_.entre(1, 100) <= porCiento; }
    template <class Fila>
    auto& una(Fila& fila) {
        return fila[static_cast<std::size_t>(azar_.entre(0, static_cast<int>(fila.size()) - 1))];
    }

    std::string boton();
    std::string relacion();
    std::string tipo();
    std::string mueble();
    std::string division();
    std::string electrico();
    std::string mueve();
    std::string pulsa();
    std::string suelta();
    std::string clic();
    std::string dobleClic();
    std::string arrastra();
    std::string regla();
    std::string teclado();
    std::string relojes();
    std::string vista();
    std::string guardaYAbre();
    std::string vacia();

    // What a hand may aim at or type.
    Punto lugar();
    Punto lugarDeMuro();
    std::vector<Punto> blancos();
    std::string tecleado();
    void escribe(std::string& campo);
    std::optional<Color> color();
    std::filesystem::path archivoAjeno();
    std::string estropeado(std::string dibujo);

    // The events of the pointer. A dialog may swallow a release, and there is more than one button.
    void mover(Punto a) { banco_.bosquel.mover(boton1_, boton1_ || otroBoton_, a.x, a.y); }
    void pulsar(Punto en);
    void soltar(Punto en);
    void clicEn(Punto en);

    // The hands in the dialogs.
    void pon();
    Respuesta responde(const Mensaje& mensaje);
    void cede();
    void interrumpe();
    void gira(AnguloGiro& angulo);
    void enPared(ParedProp& dialogo);
    void enParalelas(Paralelas& dialogo);
    void enAbertura(AberturaProp& dialogo);
    void enPuerta(PuertaProp& dialogo);
    void enMueble(MuebleProp& dialogo);
    void enMesa(MesaProp& dialogo);
    void enEscalera(EscaleraProp& dialogo);
    void enElectrico(ElectricoProp& dialogo);
    void enOpciones(Opciones& dialogo);
    void enColores(Colores& dialogo);
    void pintaColores(Colores& dialogo);
    void enImageCrop(ImageCrop& dialogo);
    void enHojaSalida(ImageCrop& dialogo);

    Azar azar_;
    Banco banco_;
    LienzoFalso lienzo_;
    ImageCrop* salida_ = nullptr;  ///< the window of the output while it is open
    int cesiones_ = 0;             ///< how deep in turns of waiting
    bool boton1_ = false, otroBoton_ = false;
    bool puedeSeguirOcupado_ = false;  ///< the last command is one of those that leave the gate shut
    bool marcoVisible_ = false;
    bool siATodo_ = false;  ///< answers yes
};

}  // namespace bosquel::apoyo
