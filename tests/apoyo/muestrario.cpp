#include "apoyo/muestrario.h"

#include "furnishing/dibujar_elemento.h"
#include "stairs_symbols/catalogo.h"
#include "surface/grabadora.h"
#include "surface/textos_superficie.h"

#include <initializer_list>

namespace bosquel::apoyo {

namespace {

using Codigos = std::initializer_list<const char*>;

const Codigos rumbos{"N", "E", "S", "W"};
const Codigos rumbosConMano{"NL", "NR", "SL", "SR", "EU", "ED", "WU", "WD"};

/// Makes element 1 of a collection visible, where the samples stand.
template <class T>
T& poner(Coleccion<T>& coleccion) {
    T& elemento = coleccion.crear(1);
    coleccion.contador = 2;
    elemento.Left = 1234.56F;
    elemento.Top = 789.5F;
    elemento.Visible = true;
    elemento.LineColor = 0x332211;
    if constexpr (requires { elemento.BackColor; }) elemento.BackColor = 0xCCBBAA;
    return elemento;
}

class Muestrario {
  public:
    std::vector<Muestra> muestras;

    template <class T, class Cambio>
    void anadir(Clase clase, Coleccion<T> Dibujo::*coleccion, const std::string& titulo, Cambio cambio) {
        muestras.push_back({clase, titulo, [=](Dibujo& dibujo) { cambio(poner(dibujo.*coleccion)); }});
    }

    template <class T>
    void porOrientacion(Clase clase, Coleccion<T> Dibujo::*coleccion, Codigos codigos) {
        for (const char* codigo : codigos)
            anadir(clase, coleccion, codigo, [codigo](T& elemento) { elemento.Orientacion = codigo; });
    }

    void muebles() {
        for (const char* codigo :
             {"0",     "1L",    "1R",     "1U",     "1D",     "2UD",    "2RL",     "2UU",
              "2DD",   "2LL",   "2RR",    "3RUL",   "3ULD",   "3LDR",   "3DRU",    "4RLUD",
              "4RRLL", "4UUDD", "5URRLL", "5DRRLL", "5LUUDD", "5RUUDD", "6URRLLD", "6LUUDDR"})
            anadir(Clase::MblMesa, &Dibujo::MblMesa, codigo, [codigo](MblMesa& mesa) {
                mesa.MesaDimX = 1213;
                mesa.MesaDimY = 907;
                mesa.ColocacionSillas = codigo;
            });
        porOrientacion(Clase::MblSilla, &Dibujo::MblSilla, {"Norte", "Este", "Sur", "Oeste"});
        porOrientacion(Clase::MblCama90, &Dibujo::MblCama90, rumbosConMano);
        porOrientacion(Clase::MblCama130, &Dibujo::MblCama130, rumbos);
        anadir(Clase::MblArmario, &Dibujo::MblArmario, "1500 x 600", [](MblArmario&) {});
        for (const char* codigo : rumbos)
            for (int n = 1; n <= 4; ++n)
                anadir(Clase::MblAsiento, &Dibujo::MblAsiento, codigo + (" " + std::to_string(n)),
                       [=](MblAsiento& asiento) {
                           asiento.Orientacion = codigo;
                           asiento.NumeroAsientos = n;
                       });
    }

    void aseo() {
        porOrientacion(Clase::MblInodoro, &Dibujo::MblInodoro, rumbos);
        porOrientacion(Clase::MblLavabo, &Dibujo::MblLavabo, rumbos);
        porOrientacion(Clase::MblBidet, &Dibujo::MblBidet, rumbos);
        for (const char* codigo : rumbos)
            for (int largo = 1000; largo <= 2000; largo += 200)
                anadir(Clase::MblBañera, &Dibujo::MblBañera, codigo + (" " + std::to_string(largo)),
                       [=](MblBañera& bañera) {
                           bañera.Orientacion = codigo;
                           bañera.Longitud = largo;
                       });
        porOrientacion(Clase::MblDucha, &Dibujo::MblDucha, {"60", "65", "70"});
        porOrientacion(Clase::MblUrinario, &Dibujo::MblUrinario, rumbos);
    }

    void cocina() {
        porOrientacion(Clase::MblCocina, &Dibujo::MblCocina, {"50", "60"});
        porOrientacion(Clase::MblNevera, &Dibujo::MblNevera, rumbosConMano);
        for (const char* codigo : rumbosConMano)
            for (int n = 1; n <= 3; ++n)
                for (const bool escurridor : {false, true})
                    anadir(Clase::MblFregadero, &Dibujo::MblFregadero,
                           codigo + (" " + std::to_string(n)) + (escurridor ? " e" : ""),
                           [=](MblFregadero& fregadero) {
                               fregadero.Orientacion = codigo;
                               fregadero.NumeroSenos = n;
                               fregadero.Escurridor = escurridor ? 1 : 0;
                           });
        porOrientacion(Clase::MblLavadora, &Dibujo::MblLavadora, {"50", "60"});
        porOrientacion(Clase::MblLavadero, &Dibujo::MblLavadero, rumbos);
        porOrientacion(Clase::MblVertedero, &Dibujo::MblVertedero, rumbos);
    }

    /// The railings matter most where there are three flights to have them.
    void escaleras() {
        for (const char* mano : {"D", "R"})
            for (const int angulo : {0, 217})
                for (int tramos = 1; tramos <= 3; ++tramos)
                    for (unsigned barandas = 0; barandas < 8; barandas += tramos == 3 ? 1 : 7)
                        escalera(mano, tramos, angulo, barandas);
    }

    void escalera(const char* mano, int tramos, int angulo, unsigned barandas) {
        std::string titulo = mano + (" " + std::to_string(tramos)) + " a" + std::to_string(angulo);
        if (barandas != 0) titulo += " b";
        for (unsigned i = 0; i < 3; ++i)
            if ((barandas >> i & 1U) != 0) titulo += std::to_string(i + 1);
        anadir(Clase::Escalera, &Dibujo::Escalera, titulo, [=](Escalera& una) {
            una.Orientacion = mano;
            una.Stairs = tramos;
            una.Angle = static_cast<std::int16_t>(angulo);
            for (unsigned i = 0; i < 3; ++i)
                una.RailingSide.at(i) = (barandas >> i & 1U) != 0;
        });
    }

    void simbolo(const char* nombre, double RectX, double RectY) {
        for (const double angulo : {0.0, 90.0, 210.0, 33.4})
            anadir(Clase::Electrico, &Dibujo::Electrico, nombre + (" a" + textoCorto(angulo)),
                   [=](Electrico& electrico) {
                       ponerSimbolo(electrico, nombre);
                       electrico.RectX = RectX;
                       electrico.RectY = RectY;
                       electrico.Angle = angulo;
                   });
    }

    void simbolos() {
        simbolo("Punto de Luz", 250, 250);
        simbolo("Interruptor", 200, 200);
        simbolo("Conmutador", 200, 200);
        simbolo("Enchufe", 160, 180);
        simbolo("Enchufe de Fuerza", 160, 180);
        simbolo("Enchufe Trifásico", 160, 180);
        simbolo("Pulsador", 150, 150);
        simbolo("Señal TV", 200, 200);
        simbolo("Señal Teléfono", 200, 200);
        simbolo("Cuadro Eléctrico", 325, 165);
    }
};

}  // namespace

const std::vector<Muestra>& muestrario() {
    static const std::vector<Muestra> todas = [] {
        Muestrario muestrario;
        muestrario.muebles();
        muestrario.aseo();
        muestrario.cocina();
        muestrario.escaleras();
        muestrario.simbolos();
        return muestrario.muestras;
    }();
    return todas;
}

Dibujo dibujoDe(const Muestra& muestra, double factor) {
    Dibujo dibujo;
    dibujo.FactorZoomActual = factor;
    muestra.poner(dibujo);
    return dibujo;
}

std::vector<std::string> trazosDe(const Dibujo& dibujo, Clase clase, double EscalaSalida) {
    Grabadora grabadora;
    DibujarElemento(salidaDe(dibujo, grabadora, EscalaSalida), dibujo, clase, 1);
    return grabadora.trazos();
}

}  // namespace bosquel::apoyo
