#include "persistence/archivo_dibujo.h"
#include "persistence/tablas_dibujo.h"

namespace bosquel {

namespace {

template <class T>
void escribir(ArchivoPerfil& archivo, const std::string& seccion, const T& elemento) {
    escribirCampos(archivo, seccion, elemento, camposDe<T>);
}

void escribir(ArchivoPerfil& archivo, const std::string& seccion, const Pared& pared) {
    escribirCampos(archivo, seccion, pared, camposDe<Pared>);
    escribirCampos(archivo, seccion, pared, camposLineasPared);
}

/// The last index that is written. The counter of stairs is not the next index but the last one given.
int ultimoIndice(Clase clase, std::int16_t contador) {
    return contador - (clase == Clase::Escalera ? 0 : 1);
}

}  // namespace

void escribirDibujo(ArchivoPerfil& archivo, const Dibujo& dibujo) {
    escribirCampos(archivo, seccionCabecera, dibujo, camposHoja);
    porContadores(dibujo, [&](std::string_view clave, std::int16_t contador) {
        archivo.guardar(seccionCabecera, clave, textoEntero(contador));
    });
    escribirCampos(archivo, seccionCabecera, dibujo, camposModelos);
    escribirCampos(archivo, seccionColores, dibujo, camposColores);
    for (const DatosClase& fila : todasLasClases())
        conColeccion(dibujo, fila.clase, [&](const auto& coleccion) {
            coleccion.recorrer(0, ultimoIndice(fila.clase, coleccion.contador),
                               [&](int indice, const auto& elemento) {
                                   escribir(archivo, seccionDe(fila.clase, indice), elemento);
                               });
        });
}

}  // namespace bosquel
