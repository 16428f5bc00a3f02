#pragma once

#include "drawing/bosquel.h"
#include "ui/hoja_widget.h"
#include "ui/plataforma_qt.h"
#include "ui/ventana_bosquel.h"

#include <QTemporaryDir>
#include <QWidget>
#include <filesystem>

namespace bosquel::bench {

/// Lets a window paint all that is due, which it would do a little later by itself.
void pintar(QWidget& ventana);

/// The outside, with a user who says yes and always means the same file.
class PlataformaDeMedida final : public PlataformaQt {
  public:
    std::filesystem::path archivo;

    Respuesta mensaje(const Mensaje&) override { return Respuesta::si; }
    std::optional<std::filesystem::path> elegirArchivo(const PeticionArchivo&) override { return archivo; }
    void mostrar(Entrada&) override {}
    using PlataformaQt::mostrar;
};

/// The program at work in a folder of its own, its window 1280 by 800 pixels of sheet and a little more.
class Puesto {
  public:
    /// A drawing of this many elements lies on the sheet.
    explicit Puesto(int elementos);

    Bosquel& bosquel() { return bosquel_; }
    Sesion& sesion() { return bosquel_.sesion(); }
    Dibujo& dibujo() { return bosquel_.sesion().dibujo; }
    HojaWidget& hoja() { return ventana_.hoja(); }
    PlataformaDeMedida& plataforma() { return plataforma_; }

    /// The file in the folder into which the drawing is saved, and from which it is opened.
    std::filesystem::path archivo() const;

    /// Everything that has been changed behind the window's back is shown.
    void mostrarTodo();
    /// Where a place of the sheet, in sheet units, lies in the window, in pixels.
    QPoint lugar(float x, float y);
    QWidget& ventana() { return ventana_; }

  private:
    QTemporaryDir carpeta_;
    PlataformaDeMedida plataforma_;
    Bosquel bosquel_;
    VentanaBosquel ventana_;
};

}  // namespace bosquel::bench
