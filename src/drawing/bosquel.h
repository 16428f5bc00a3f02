#pragma once

#include "drawing/hoja.h"
#include "drawing/paletas.h"
#include "drawing/principal.h"
#include "drawing/sesion.h"

namespace bosquel {

/// The main window without a window: every event of the outside enters here, changes the session, and ends
/// with the outside being told what to show anew. Coordinates are sheet units, of the sheet for the sheet's
/// events and of the ruler for the ruler's.
class Bosquel {
  public:
    Bosquel(Plataforma& plataforma, std::filesystem::path carpeta);

    /// For dialogs, which write straight into the drawing.
    Sesion& sesion() { return sesion_; }

    /// Start-up: the caption, the splash, the empty drawing.
    void cargar();

    void redimensionar(double ancho, double alto);
    void cambiarHScroll1(int valor);
    void cambiarVScroll1(int valor);

    void pulsar(float X, float Y);
    void mover(bool boton1, bool alguno, float X, float Y);
    void soltar(float X, float Y);
    void dobleClic(float X, float Y);

    void pulsarRegla(float X, float Y);
    void moverRegla(bool boton1, float X, float Y);
    void soltarRegla();
    void dobleClicRegla();

    void pulsarPrincipal(Principal boton);
    void cruzarPrincipal(Principal boton);
    void cruzarVentana();
    void pulsarOperacion(int indice);
    void pulsarTipo(int indice);
    void pulsarUsuario(int indice);
    void pulsarMueble(int indice);
    void pulsarBaño(int indice);
    void pulsarCocina(int indice);
    void pulsarElectrico(int indice);
    void suprimir();

    /// The text that has the focus says something else.
    void escribirTexto(const std::string& escrito);
    /// Another control of the window took the focus from what has it on the sheet.
    void perderFoco();

    void minutoDeAutoSave();
    /// The event that armed `Timer2` has ended.
    void pasarTimer2();

    /// The close box: the program ends, with no question.
    void cerrar();

  private:
    Sesion sesion_;
    Hoja hoja_;
};

}  // namespace bosquel
