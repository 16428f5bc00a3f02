#include "persistence/archivo_dibujo.h"
#include "persistence/tablas_dibujo.h"

namespace bosquel {

namespace {

/// The last index that is written. The counter of stairs is not the next index but the last one given.
int ultimoIndice(Clase clase, std::int16_t contador) {
    return contador - (clase == Clase::Escalera ? 0 : 1);
}

}  // namespace

void escribirDibujo(ArchivoPerfil& archivo, const Dibujo& dibujo) {
    escribirCampos<camposHoja>(archivo, seccionCabecera, dibujo);
    porContadores(dibujo, [&](std::string_view clave, std::int16_t contador) {
        archivo.guardar(seccionCabecera, clave, textoEntero(contador));
    });
    escribirCampos<camposModelos>(archivo, seccionCabecera, dibujo);
    escribirCampos<camposColores>(archivo, seccionColores, dibujo);
    for (const DatosClase& fila : todasLasClases())
        conColeccion(dibujo, fila.clase, [&](const auto& coleccion) {
            coleccion.recorrer(
                0, ultimoIndice(fila.clase, coleccion.contador), [&]<class T>(int indice, const T& elemento) {
                    escribirCampos<camposDeSeccion<T>>(archivo, seccionDe(fila.clase, indice), elemento);
                });
        });
}

}  // namespace bosquel
