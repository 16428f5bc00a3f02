#pragma once

#include "furnishing/trazos.h"
#include "surface/salida.h"

namespace bosquel {

/// Millimetres from the element's place.
struct PuntoMm {
    double x = 0, y = 0;
};

/// Draws one element: offsets from its place, in its one colour.
class Pluma {
  public:
    Pluma(const Salida& salida, float Left, float Top, Color color)
        : salida_(salida), X_(salida.lugar(Left)), Y_(salida.lugar(Top)), color_(color) {}

    const Salida& salida() const { return salida_; }

    /// A box by corner and size, in surface units.
    void caja(double x, double y, double ancho, double alto) const;

    /// A stroke, a box by opposite corners and a circle, in millimetres.
    void linea(PuntoMm desde, PuntoMm hasta) const;
    void cuadro(PuntoMm esquina, PuntoMm opuesta) const;
    void circulo(PuntoMm centro, double radio) const;

    /// How the lengths of a sheet become surface units: whole ones term by term, or as they are.
    enum class Redondeo : bool { ninguno, entero };

    /// The strokes of the layout of this code; nothing for a code that the sheet does not have. `propia` is
    /// the element's own length, mm.
    template <std::size_t Pasos, std::size_t Codigos>
    void dibujar(const Lamina<Pasos, Codigos>& lamina, std::string_view codigo,
                 Redondeo redondeo = Redondeo::ninguno, double propia = 0) const {
        for (const auto& disposicion : lamina)
            if (disposicion.codigo == codigo) dibujar(disposicion.trazos, redondeo, propia);
    }
    template <std::size_t Pasos>
    void dibujar(const std::array<Trazo, Pasos>& trazos, Redondeo redondeo, double propia = 0) const {
        for (const Trazo& trazo : trazos)
            dibujar(trazo, redondeo, propia);
    }

  private:
    void dibujar(const Trazo& trazo, Redondeo redondeo, double propia) const;
    double x(double mm) const { return X_ + salida_.k(mm); }
    double y(double mm) const { return Y_ + salida_.k(mm); }
    double medida(const Cota& cota, Redondeo redondeo, double propia) const;

    const Salida& salida_;
    double X_, Y_;
    Color color_;
};

/// The fill state of an element while it lasts, and that of a bare surface ever after.
class Fondo {
  public:
    Fondo(SuperficieSalida& superficie, Color color) : superficie_(superficie) {
        superficie_.FillStyle(Relleno::solido);
        superficie_.FillColor(color);
    }
    Fondo(const Fondo&) = delete;
    Fondo& operator=(const Fondo&) = delete;
    ~Fondo() {
        superficie_.FillStyle(Relleno::transparente);
        superficie_.FillColor(0);
    }

  private:
    SuperficieSalida& superficie_;
};

}  // namespace bosquel
