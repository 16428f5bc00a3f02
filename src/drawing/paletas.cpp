#include "drawing/paletas.h"

#include "drawing/aberturas.h"
#include "drawing/archivo.h"
#include "drawing/creacion.h"
#include "drawing/escaleras.h"
#include "drawing/seleccion.h"

namespace bosquel {

namespace {

struct PaletaDeTipo {
    int boton;
    Paleta paleta;
    std::string_view Letrero;
};

constexpr std::array<PaletaDeTipo, 5> paletas{{{0, Paleta::FrMuebles, "Muebles"},
                                               {1, Paleta::FrBaño, "Baño"},
                                               {2, Paleta::FrCocina, "Cocina"},
                                               {3, Paleta::FrUsuario, "Divisiones"},
                                               {5, Paleta::FrElectrico, "Sistema Eléctrico"}}};

constexpr std::array<Modo, 4> operaciones{Modo::Seleccion, Modo::PrimeraPared, Modo::Union1, Modo::Separar};

constexpr std::array<const char*, 3> tiposDePared{"Muro", "Tabique", "Pilar"};
constexpr double ladoPilar = 300;  // mm

void preparar(Pared& pared, const char* tipo) {
    pared.Tipo = tipo;
    if (pared.Tipo == "Pilar") {
        pared.AnchoMuro = ladoPilar;
        pared.AnchoTabique = ladoPilar;
        pared.Longitud = ladoPilar;
    }
    pared.NumeroGrupo = 0;
    pared.Estado = estadoNuevo;
}

/// A wall without a place: it waits for the release that gives it one.
void crearPared(Sesion& sesion, const char* tipo) {
    if (Pared* pared = sesion.dibujo.Pared.crearSiguiente()) preparar(*pared, tipo);
    ponerModo(sesion, Modo::Pared);
    sesion.plataforma.ponerCursor(Cursor::IcoPared);
}

}  // namespace

void pulsarOperacion(Sesion& sesion, int indice) {
    if (indice < 0 || static_cast<std::size_t>(indice) >= operaciones.size()) return;
    QuitarSeleccion(sesion.dibujo);
    CheckAutoSaving(sesion, true);
    sesion.dibujo.ModoActual = operaciones[static_cast<std::size_t>(indice)];
    sesion.plataforma.ponerCursor(Cursor::IcoSeleccion);
    sesion.vistaSucia = true;
    CheckAutoSaving(sesion, false);
}

void pulsarTipo(Sesion& sesion, int indice) {
    sesion.paleta = Paleta::ninguna;
    sesion.vistaSucia = true;
    CheckAutoSaving(sesion, true);
    for (const PaletaDeTipo& fila : paletas)
        if (fila.boton == indice) {
            sesion.paleta = fila.paleta;
            sesion.Letrero = fila.Letrero;
        }
    if (indice == datos(Clase::Escalera).boton) CrearEscalera(sesion);
    CheckAutoSaving(sesion, false);
}

void pulsarUsuario(Sesion& sesion, int indice) {
    CheckAutoSaving(sesion, true);
    if (indice >= 0 && static_cast<std::size_t>(indice) < tiposDePared.size())
        crearPared(sesion, tiposDePared[static_cast<std::size_t>(indice)]);
    if (indice == datos(Clase::TextoLibre).boton) crearTexto(sesion);
    if (indice == datos(Clase::Puerta).boton || indice == datos(Clase::Ventana).boton) {
        // No wall was ever laid: the gate stays shut until the next command.
        if (sesion.dibujo.Pared.contador == 1) return;
        crearAbertura(sesion, indice == datos(Clase::Puerta).boton ? Clase::Puerta : Clase::Ventana);
    }
    CheckAutoSaving(sesion, false);
}

}  // namespace bosquel
