#pragma once

#include "model/geometria.h"
#include "output/lienzo_salida.h"

#include <cstdint>

namespace bosquel {

/// What the frame is doing. It starts with nothing.
enum class EstadoRecuadro : std::uint8_t { ninguno, Nuevo, Seguir, Mover, Terminado };

/// The rubber frame over `HojaSalida`, in twips of it. It is drawn to the right and downwards only, moved by
/// its inside, and may leave the sheet: what is copied is decided when the button goes up.
class RecuadroSeleccion {
  public:
    const Recuadro& forma() const { return forma_; }
    /// A frame that shows counts as selected, whatever its size.
    bool Visible() const { return Visible_; }
    EstadoRecuadro estado() const { return estado_; }

    /// The point lies in the frame, by the size that it had when the button last went up.
    bool contiene(double X, double Y) const;

    /// The button goes down: outside of the frame a new one begins, inside of it a move.
    void pulsar(double X, double Y);
    /// The first move of a new frame: "Nuevo" becomes "Seguir".
    void empezar();
    /// In "Seguir": reaches to the point. False, with nothing done, unless it lies right of the frame's
    /// corner and below it.
    bool seguir(double X, double Y);
    /// In "Mover": follows the point by the grip that it was taken at, which is the first point told.
    void llevar(double X, double Y);
    /// The button goes up.
    void terminar();

    /// Takes in the whole sheet, as if it had been drawn so.
    void abarcar(const Recuadro& hoja);
    /// Hides, just right of the sheet. The next press still compares with its old size, there.
    void reiniciar(const Recuadro& hoja);

    /// What the frame has marked when the button last went up. Kept within the sheet by its right and its
    /// bottom edge, with its size unchanged; fractions of pixels are cut off, but the top is rounded.
    AreaSalida area(const Recuadro& hoja) const;

  private:
    Recuadro forma_;
    bool Visible_ = false;
    EstadoRecuadro estado_ = EstadoRecuadro::ninguno;

    double X0_ = 0, Y0_ = 0, Ancho_ = 0;
    std::int32_t Alto_ = 0;
    bool PrimerMovimiento_ = false;
    double OffsetX_ = 0;
    std::int32_t OffsetY_ = 0;
};

}  // namespace bosquel
