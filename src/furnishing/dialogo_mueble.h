#pragma once

#include "model/dibujo.h"

#include <concepts>
#include <functional>
#include <string>
#include <type_traits>

namespace bosquel {

/// What the dialogs of all furnishing kinds share. A press writes into the element at once; sizes and colours
/// wait for `Aplicar`. An element that does not exist, and the model, give an empty dialog that changes
/// nothing.
class DialogoMueble {
  public:
    DialogoMueble(const DialogoMueble&) = delete;
    DialogoMueble& operator=(const DialogoMueble&) = delete;
    virtual ~DialogoMueble() = default;

    Color txtLineColor = negro, txtBackColor = blanco;
    bool Check1 = false;               ///< "Guardar como modelo"
    std::function<void()> alEscribir;  ///< called after every write into the drawing

    Clase clase() const { return clase_; }
    bool conFondo() const;  ///< elements of the kind have a fill, and `txtBackColor` counts

    /// Writes sizes and colours into the element; the model takes them too if `Check1` is ticked. A text that
    /// is no number leaves its field as it was.
    virtual void Aplicar() = 0;

  protected:
    DialogoMueble(Dibujo& dibujo, Clase clase, int indice);

    Dibujo& dibujo() const { return dibujo_; }
    int indice() const { return indice_; }

    bool existe() const;
    /// Calls `paso(elemento, modelo)`, if there is such an element.
    template <class Paso>
    void conElemento(Paso paso) const {
        if (indice_ <= 0) return;
        conColeccion(dibujo_, clase_, [&](auto& coleccion) {
            if constexpr (std::derived_from<std::remove_cvref_t<decltype(coleccion.modelo())>, Elemento>)
                if (auto* elemento = coleccion.en(indice_)) paso(*elemento, coleccion.modelo());
        });
    }

    void escribirColores() const;
    /// The model takes all that the element is, but where it stands.
    void guardarComoModelo() const;
    /// The element has changed: the sheet is to show it.
    void escrito() const;

  private:
    Dibujo& dibujo_;
    Clase clase_;
    int indice_;
};

}  // namespace bosquel
