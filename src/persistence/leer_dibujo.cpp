#include "model/numeros.h"
#include "openings/puerta.h"
#include "openings/ventana.h"
#include "persistence/archivo_dibujo.h"
#include "persistence/tablas_dibujo.h"
#include "stairs_symbols/catalogo.h"
#include "walls/pared.h"

#include <algorithm>
#include <concepts>
#include <optional>

namespace bosquel {

namespace {

/// The last index that is read. That of stairs is their counter, as in writing; of symbols one more is read
/// than was written.
int ultimoIndice(Clase clase, std::int16_t contador) {
    return contador - (clase == Clase::Escalera || clase == Clase::Electrico ? 0 : 1);
}

/// The key that tells whether a section is there, for the kinds that keep their gaps, and the value of it
/// that none has.
template <class T>
constexpr std::string_view claveDePrueba = "AnchoMuro";
template <>
constexpr std::string_view claveDePrueba<TextoLibre> = "Left";
constexpr double deNinguno = -1000;

/// Reads the elements of one file, kind by kind.
class Lectura {
  public:
    Lectura(const ArchivoPerfil& archivo, Dibujo& dibujo) : archivo_(archivo), dibujo_(dibujo) {}

    /// Furniture, stairs and symbols: all that the counter promises comes into being, hidden where there is
    /// no section. Those are all alike, and there may be thousands of them.
    template <std::derived_from<Elemento> T>
    void leer(Clase clase, Coleccion<T>& coleccion) const {
        std::optional<T> oculto;
        for (int i = 0; i <= ultimoIndice(clase, coleccion.contador); ++i) {
            const std::string seccion = seccionDe(clase, i);
            const bool falta = i > 0 && !archivo_.haySeccion(seccion);
            T& elemento = i > 0 ? coleccion.crear(i) : coleccion.modelo();
            if (i > 0) elemento.Visible = false;
            if (falta && oculto)
                elemento = *oculto;
            else
                leerElemento(seccion, elemento);
            if (falta && !oculto) oculto = elemento;
        }
    }

    /// Walls, openings and texts: what has no section stays a gap.
    template <class T>
    void leer(Clase clase, Coleccion<T>& coleccion) const {
        for (int i = 0; i <= ultimoIndice(clase, coleccion.contador); ++i) {
            const auto textos = textosDe<camposDeSeccion<T>>(archivo_, seccionDe(clase, i));
            if (falta<T>(textos)) continue;
            T& elemento = i > 0 ? coleccion.crear(i) : coleccion.modelo();
            leerCampos<camposDe<T>>(textos, elemento);
            terminar(textos, i, elemento);
        }
    }

  private:
    template <class T>
    static bool falta(const Textos<camposDeSeccion<T>>& textos) {
        const auto& texto = textoDe<camposDeSeccion<T>>(textos, claveDePrueba<T>);
        return !texto || realDeTexto(*texto) == deNinguno;
    }

    template <class T>
    void leerElemento(const std::string& seccion, T& elemento) const {
        leerCampos<camposDe<T>>(archivo_, seccion, elemento);
    }

    /// The table takes the zoom of the drawing where its section tells none.
    void leerElemento(const std::string& seccion, MblMesa& mesa) const {
        const auto textos = textosDe<camposDe<MblMesa>>(archivo_, seccion);
        if (!textoDe<camposDe<MblMesa>>(textos, campoFactorZOOM.clave))
            mesa.FactorZOOM = dibujo_.FactorZoomActual;
        leerCampos<camposDe<MblMesa>>(textos, mesa);
    }

    void leerElemento(const std::string& seccion, Electrico& electrico) const {
        leerCampos<camposDe<Electrico>>(archivo_, seccion, electrico);
        ponerSimbolo(electrico, std::string(electrico.ObjectType));
    }

    void terminar(VistaTextos textos, int indice, Pared& pared) const {
        if (indice == 0) return;
        DibujaPared(dibujo_, indice, true);
        DeseleccionaPared(dibujo_, indice);
        leerCampos<camposLineasPared>(textos.subspan(clavesDe<camposDe<Pared>>.size()), pared);
        RecuperaLineasPared(dibujo_, indice);
        ReconstruyePared(dibujo_, indice);
        GuardaLineasPared(dibujo_, indice);
    }

    void terminar(VistaTextos, int indice, const Ventana&) const {
        if (indice == 0) return;
        ColocaVentana(dibujo_, indice, true);
        DeseleccionaVentana(dibujo_, indice);
    }

    void terminar(VistaTextos, int indice, const Puerta&) const {
        if (indice == 0) return;
        ColocaPuerta(dibujo_, indice, true);
        DeseleccionaPuerta(dibujo_, indice);
    }

    void terminar(VistaTextos, int indice, TextoLibre& texto) const {
        asignar(texto.FontSize, 12 * dibujo_.FactorZoomActual);
        texto.Visible = indice > 0;
    }

    const ArchivoPerfil& archivo_;
    Dibujo& dibujo_;
};

}  // namespace

void leerCabecera(const ArchivoPerfil& archivo, Dibujo& dibujo) {
    leerCampos<camposHoja>(archivo, seccionCabecera, dibujo);
    porContadores(dibujo, [&](std::string_view clave, std::int16_t& contador) {
        contador = entero16DeTexto(archivo.leer(seccionCabecera, clave, "1")).value_or(contador);
    });
    leerCampos<camposColores>(archivo, seccionColores, dibujo);
    leerCampos<camposModelos>(archivo, seccionCabecera, dibujo);
    leerCampos<camposModeloVentana>(archivo, seccionCabecera, dibujo);
}

void leerElementos(const ArchivoPerfil& archivo, Dibujo& dibujo) {
    const Lectura lectura(archivo, dibujo);
    for (const DatosClase& fila : todasLasClases())
        conColeccion(dibujo, fila.clase, [&](auto& coleccion) { lectura.leer(fila.clase, coleccion); });

    // The counter of symbols is left where the pass over them ends: one beyond the last.
    std::int16_t& contador = dibujo.Electrico.contador;
    contador = std::max<std::int16_t>(contador, -1);
    avanzar(contador);
}

}  // namespace bosquel
