#pragma once

#include "furnishing/dialogo_mueble.h"
#include "furnishing/ficha_mueble.h"
#include "surface/calco.h"

#include <string>
#include <vector>

namespace bosquel {

/// What the dialog of a piece of furniture shows and decides; any but the table's, which is `MesaProp`. The
/// kinds differ by their `FichaMueble` alone.
class MuebleProp : public DialogoMueble {
  public:
    MuebleProp(Dibujo& dibujo, Clase clase, int indice);

    const FichaMueble& ficha() const { return ficha_; }

    std::vector<std::string> medidas;  ///< the texts of the fields, m, in the order of `ficha().campos`

    /// The place in `ficha().opciones.opciones` of the button that is set, -1 for none.
    int opcion() const;
    void elegirOpcion(int cual);

    bool escurridor() const;
    void ponerEscurridor(bool puesto);

    /// The button of `Dist` that shows pressed, -1 for none.
    int pulsado() const;
    void pulsarDist(int boton);
    /// The element as a button of `Dist` would lay it out.
    Calco calco(int boton) const;

    void Aplicar() override;

  private:
    void leerMedidas() const;
    std::string* orientacion() const;
    /// Where the element keeps what a row of the table tells; nullptr if there is no element or no such row.
    template <class T>
    T* sitio(Sitio<T> donde) const {
        return donde && existe() ? donde(dibujo(), indice()) : nullptr;
    }

    const FichaMueble& ficha_;
};

}  // namespace bosquel
