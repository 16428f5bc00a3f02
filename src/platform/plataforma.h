#pragma once

#include "model/geometria.h"
#include "model/modos.h"
#include "model/zona.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace bosquel {

class Colores;
class ElectricoProp;
class Entrada;
class EscaleraProp;
class ImageCrop;
class MesaProp;
class MuebleProp;
class Opciones;
class Paralelas;
class ParedProp;
class PuertaProp;
class VentanaProp;

enum class Icono : std::uint8_t { informacion, pregunta };
enum class Botones : std::uint8_t { aceptar, siNo, siNoCancelar };
enum class Respuesta : std::uint8_t { aceptar, si, no, cancelar };

/// A message box: what it is called, what it says, and what can be answered. Closing it answers no, or
/// cancel where there is one.
struct Mensaje {
    std::string titulo;
    std::string texto;
    Icono icono = Icono::informacion;
    Botones botones = Botones::aceptar;
};

/// A file dialog. Neither form asks before overwriting, nor demands that an opened file exist.
struct PeticionArchivo {
    enum class Modo : std::uint8_t { abrir, guardar };
    Modo modo = Modo::abrir;
    std::string filtro;  ///< "Dibujos Bosquel Rapiz(*.bqr)"
    std::filesystem::path carpeta;
    std::string titulo = {};  ///< empty: that of the dialogs of drawings
};

/// A box that asks for a line of text.
struct PeticionTexto {
    std::string titulo;
    std::string texto;
};

/// What a turn of waiting lets through: all events, or none that come from the user's hand, which wait.
enum class Espera : std::uint8_t { completa, sinEntrada };

/// The timers of the main window: the minute of auto-save, and a moment of 1 ms after which the event under
/// way is sure to have ended, which goes off once.
enum class Reloj : std::uint8_t { tmrAutoSave, Timer2 };

/// The size of a text as it is shown, sheet units.
struct Medida {
    double ancho = 0, alto = 0;
};

/// The one way out of the core: everything that it asks of the world of windows. Dialogs are given as the
/// core's own half of them and come back when they are closed.
class Plataforma {
  public:
    Plataforma() = default;
    Plataforma(const Plataforma&) = delete;
    Plataforma& operator=(const Plataforma&) = delete;
    virtual ~Plataforma() = default;

    virtual Respuesta mensaje(const Mensaje& mensaje) = 0;
    virtual void mostrar(Colores& dialogo) = 0;
    virtual void mostrar(ElectricoProp& dialogo) = 0;
    virtual void mostrar(Entrada& dialogo) = 0;
    virtual void mostrar(EscaleraProp& dialogo) = 0;
    virtual void mostrar(ImageCrop& dialogo) = 0;
    virtual void mostrar(MesaProp& dialogo) = 0;
    virtual void mostrar(MuebleProp& dialogo) = 0;
    virtual void mostrar(Opciones& dialogo) = 0;
    virtual void mostrar(ParedProp& dialogo) = 0;
    virtual void mostrar(PuertaProp& dialogo) = 0;
    virtual void mostrar(VentanaProp& dialogo) = 0;
    virtual void mostrar(Paralelas& dialogo) = 0;

    /// The chosen path, as it was typed; nothing if the user cancels.
    virtual std::optional<std::filesystem::path> elegirArchivo(const PeticionArchivo& peticion) = 0;

    /// What the user has written; empty if there is nothing, or the user cancels.
    virtual std::string pedirTexto(const PeticionTexto& peticion) = 0;

    /// How much room a line of text takes on the sheet at a font size in points.
    virtual Medida medirTexto(const std::string& texto, double FontSize) = 0;

    /// Gives other events a turn. A wait loop calls it again and again: it must neither block for long nor
    /// return at once with nothing done.
    virtual void cederEventos(Espera espera) = 0;
    virtual void activar(Reloj reloj, bool activo) = 0;

    virtual void ponerCursor(Cursor cursor) = 0;
    virtual void ponerRelojDeArena(bool puesto) = 0;
    virtual void ponerTitulo(const std::string& titulo) = 0;

    /// Opens the manual in a window of its own and comes back at once; the one that is open already comes to
    /// the front. A file that is missing or damaged shows nothing.
    virtual void mostrarAyuda(const std::filesystem::path& manual) = 0;

    /// The sheet or the ruler moved or changed in size, a scroll bar, a button's border, the palette or the
    /// mode changed: whatever stands around the drawing is to be shown anew.
    virtual void vistaCambiada() = 0;
    /// These parts of the sheet are to be painted again: where something at rest has changed, and where what
    /// is being dragged was and is now.
    virtual void repintar(const ZonaSucia& zona, const ZonaSucia& paso) = 0;

    /// Ends the program at once.
    virtual void terminar() = 0;
};

}  // namespace bosquel
