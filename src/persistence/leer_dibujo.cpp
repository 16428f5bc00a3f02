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
            const std::string seccion = seccionDe(clase, i);
            if (falta<T>(seccion)) continue;
            T& elemento = i > 0 ? coleccion.crear(i) : coleccion.modelo();
            leerCampos(archivo_, seccion, elemento, camposDe<T>);
            terminar(seccion, i, elemento);
        }
    }

  private:
    template <class T>
    bool falta(const std::string& seccion) const {
        const auto texto = archivo_.buscar(seccion, claveDePrueba<T>);
        return !texto || realDeTexto(*texto) == deNinguno;
    }

    template <class T>
    void leerElemento(const std::string& seccion, T& elemento) const {
        leerCampos(archivo_, seccion, elemento, camposDe<T>);
    }

    /// The table takes the zoom of the drawing where its section tells none.
    void leerElemento(const std::string& seccion, MblMesa& mesa) const {
        if (!archivo_.buscar(seccion, campoFactorZOOM.clave)) mesa.FactorZOOM = dibujo_.FactorZoomActual;
        leerCampos(archivo_, seccion, mesa, camposDe<MblMesa>);
    }

    void leerElemento(const std::string& seccion, Electrico& electrico) const {
        leerCampos(archivo_, seccion, electrico, camposDe<Electrico>);
        ponerSimbolo(electrico, std::string(electrico.ObjectType));
    }

    void terminar(const std::string& seccion, int indice, Pared& pared) const {
        if (indice == 0) return;
        DibujaPared(dibujo_, indice, true);
        DeseleccionaPared(dibujo_, indice);
        leerCampos(archivo_, seccion, pared, camposLineasPared);
        RecuperaLineasPared(dibujo_, indice);
        ReconstruyePared(dibujo_, indice);
        GuardaLineasPared(dibujo_, indice);
    }

    void terminar(const std::string&, int indice, const Ventana&) const {
        if (indice == 0) return;
        ColocaVentana(dibujo_, indice, true);
        DeseleccionaVentana(dibujo_, indice);
    }

    void terminar(const std::string&, int indice, const Puerta&) const {
        if (indice == 0) return;
        ColocaPuerta(dibujo_, indice, true);
        DeseleccionaPuerta(dibujo_, indice);
    }

    void terminar(const std::string&, int indice, TextoLibre& texto) const {
        asignar(texto.FontSize, 12 * dibujo_.FactorZoomActual);
        texto.Visible = indice > 0;
    }

    const ArchivoPerfil& archivo_;
    Dibujo& dibujo_;
};

}  // namespace

void leerCabecera(const ArchivoPerfil& archivo, Dibujo& dibujo) {
    leerCampos(archivo, seccionCabecera, dibujo, camposHoja);
    porContadores(dibujo, [&](std::string_view clave, std::int16_t& contador) {
        contador = entero16DeTexto(archivo.leer(seccionCabecera, clave, "1")).value_or(contador);
    });
    leerCampos(archivo, seccionColores, dibujo, camposColores);
    leerCampos(archivo, seccionCabecera, dibujo, camposModelos);
    leerCampos(archivo, seccionCabecera, dibujo, camposModeloVentana);
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
