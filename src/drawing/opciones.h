#pragma once

#include "drawing/sesion.h"

#include <string>

namespace bosquel {

/// What the settings dialog "Configuración" shows and decides. The texts are those of its fields.
class Opciones {
  public:
    explicit Opciones(Sesion& sesion);

    std::string TxtAnchoHoja, TxtAltoHoja;  ///< in units of 100 mm of the model
    std::string TxtCuadricula;              ///< m
    std::string txtSalvarCadaXmin;          ///< minutes
    bool ChkIman = false, ChkVisible = false, chkSalvadoAutomatico = false;

    /// Fills the fields from the drawing.
    void CargarControles();
    /// Writes the fields into the drawing and the view. A text that is no number leaves its value as it was.
    /// The auto-save timer is not touched: what is said of it here counts from the next reset on.
    void AplicarValores();

    /// "Predeterminar": applies, and keeps all six settings in the settings file.
    void Predeterminar();
    /// "Restablecer": the first values of all, written straight into the drawing; nothing on the sheet is
    /// scaled, and the view follows only when they are applied.
    void Restablecer();

  private:
    Sesion& sesion_;
};

}  // namespace bosquel
