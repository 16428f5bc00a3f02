#include "persistence/archivo_dibujo.h"

#include "openings/puerta.h"
#include "openings/ventana.h"
#include "persistence/campos.h"
#include "walls/pared.h"

namespace bosquel {

namespace {

constexpr std::string_view seccionCabecera = "Cabecera";
constexpr std::string_view seccionColores = "Colores";

// clang-format off
constexpr std::tuple camposHoja{
    Campo{"FactorZoomActual", &Dibujo::FactorZoomActual, "0.5", RealNormalizado{}},
    Campo{"AnchoAreaDibujo",  [](auto& dibujo) -> auto& { return dibujo.Hoja.Width; }, "10000"},
    Campo{"AltoAreaDibujo",   [](auto& dibujo) -> auto& { return dibujo.Hoja.Height; }, "10000"},
    Campo{"Cuadricula",       &Dibujo::Cuadricula, "100"},
    Campo{"Iman",             &Dibujo::Iman, "Verdadero"},
    Campo{"VerCuadricula",    &Dibujo::VerCuadricula, "Verdadero"},
    Campo{"TotalGrupos",      &Dibujo::TotalGrupos, "0"},
    Campo{"DistParalela",     &Dibujo::DistParalela, "1"},
};

constexpr std::tuple camposModelos{
    Campo{"ColorParedes",     [](auto& dibujo) -> auto& { return dibujo.Pared.modelo().LineColor; }, "0"},
    Campo{"ColorCarpinteria", [](auto& dibujo) -> auto& { return dibujo.Puerta.modelo().LineColor; }, "0"},
    Campo{"ColorTextos",      [](auto& dibujo) -> auto& { return dibujo.TextoLibre.modelo().ForeColor; }, "0"},
};

/// Doors and windows share one key: written from the doors, read for both.
constexpr std::tuple camposModeloVentana{
    Campo{"ColorCarpinteria", [](auto& dibujo) -> auto& { return dibujo.Ventana.modelo().LineColor; }, "0"},
};

constexpr std::tuple camposColores{
    Campo{"Esquema", &Dibujo::Esquema, "Blanco y Negro"},
    Campo{"Perfil",  &Dibujo::Perfil, ""},
};

constexpr std::tuple camposPared{
    Campo{"AnchoMuro",    &Pared::AnchoMuro},
    Campo{"AnchoTabique", &Pared::AnchoTabique},
    Campo{"Angulo",       &Pared::Angulo},
    Campo{"InicialX",     &Pared::InicialX},
    Campo{"InicialY",     &Pared::InicialY},
    Campo{"Longitud",     &Pared::Longitud},
    Campo{"NumeroGrupo",  &Pared::NumeroGrupo},
    Campo{"Tipo",         &Pared::Tipo},
    Campo{"Estado",       &Pared::Estado},
};

/// The long sides stand in the file whole, since a join of walls changes them.
constexpr std::tuple camposLineasPared{
    Campo{"Linea1X1", &Pared::InicialX},
    Campo{"Linea1Y1", &Pared::InicialY},
    Campo{"Linea1X2", &Pared::Linea1X2},
    Campo{"Linea1Y2", &Pared::Linea1Y2},
    Campo{"Linea3X1", &Pared::Linea3X1},
    Campo{"Linea3Y1", &Pared::Linea3Y1},
    Campo{"Linea3X2", &Pared::Linea3X2},
    Campo{"Linea3Y2", &Pared::Linea3Y2},
    Campo{"Visible1", &Pared::Visible1, "Verdadero"},
    Campo{"Visible2", &Pared::Visible2, "Verdadero"},
};

/// An opening's lines do not stand in the file: they follow from its wall.
constexpr std::tuple camposAbertura{
    Campo{"Alineacion",        &Abertura::Alineacion},
    Campo{"AnchoMuro",         &Abertura::AnchoMuro},
    Campo{"AnchoTabique",      &Abertura::AnchoTabique},
    Campo{"Angulo",            &Abertura::Angulo},
    Campo{"Distancia",         &Abertura::Distancia},
    Campo{"Estado",            &Abertura::Estado},
    Campo{"GrupoInicialPared", &Abertura::GrupoInicialPared},
    Campo{"Longitud",          &Abertura::Longitud},
    Campo{"NumeroPared",       &Abertura::NumeroPared},
    Campo{"Orientacion",       &Abertura::Orientacion},
};

constexpr std::tuple camposVentana{
    Campo{"Tipo", &Ventana::Tipo},
};

constexpr std::tuple camposPuerta{
    Campo{"OrientacionLateral", &Puerta::OrientacionLateral},
};
// clang-format on

std::string seccion(Clase clase, int indice) {
    return std::string(datos(clase).seccion) + "(" + std::to_string(indice) + ")";
}

/// Calls `paso(clave, contador)` for every counter in the order of the file.
template <class D, class Paso>
void porContadores(D& dibujo, Paso paso) {
    for (const Clase clase : ordenDeContadores())
        conColeccion(dibujo, clase,
                     [&](auto& coleccion) { paso(datos(clase).contador, coleccion.contador); });
}

/// A width that no wall has: it tells a section that is not there.
constexpr double anchoDeNadie = -1000;

bool falta(const ArchivoPerfil& archivo, std::string_view nombre) {
    const auto texto = archivo.buscar(nombre, "AnchoMuro");
    return !texto || realDeTexto(*texto) == anchoDeNadie;
}

void leerPared(const ArchivoPerfil& archivo, Dibujo& dibujo, int indice) {
    const std::string nombre = seccion(Clase::Pared, indice);
    if (falta(archivo, nombre)) return;
    Pared& pared = indice > 0 ? dibujo.Pared.crear(indice) : dibujo.Pared.modelo();
    leerCampos(archivo, nombre, pared, camposPared);
    if (indice == 0) return;
    DibujaPared(dibujo, indice, true);
    DeseleccionaPared(dibujo, indice);
    leerCampos(archivo, nombre, pared, camposLineasPared);
    RecuperaLineasPared(dibujo, indice);
    ReconstruyePared(dibujo, indice);
    GuardaLineasPared(dibujo, indice);
}

/// What the two kinds of openings differ in for the file.
template <class Campos>
struct FormatoAbertura {
    Clase clase;
    const Campos& propios;
    void (*colocar)(Dibujo&, int, bool);
    void (*deseleccionar)(Dibujo&, int);
};

// Clang does not deduce it from an aggregate until its 17.
template <class Campos>
FormatoAbertura(Clase, const Campos&, void (*)(Dibujo&, int, bool), void (*)(Dibujo&, int))
    -> FormatoAbertura<Campos>;

constexpr FormatoAbertura formatoVentana{Clase::Ventana, camposVentana, ColocaVentana, DeseleccionaVentana};
constexpr FormatoAbertura formatoPuerta{Clase::Puerta, camposPuerta, ColocaPuerta, DeseleccionaPuerta};

template <class T, class Campos>
void escribirAberturas(ArchivoPerfil& archivo, const Coleccion<T>& coleccion,
                       const FormatoAbertura<Campos>& formato) {
    coleccion.recorrer(0, coleccion.contador - 1, [&](int indice, const T& abertura) {
        const std::string nombre = seccion(formato.clase, indice);
        escribirCampos(archivo, nombre, abertura, camposAbertura);
        escribirCampos(archivo, nombre, abertura, formato.propios);
    });
}

template <class T, class Campos>
void leerAberturas(const ArchivoPerfil& archivo, Dibujo& dibujo, Coleccion<T>& coleccion,
                   const FormatoAbertura<Campos>& formato) {
    for (int i = 0; i < coleccion.contador; ++i) {
        const std::string nombre = seccion(formato.clase, i);
        if (falta(archivo, nombre)) continue;
        T& abertura = i > 0 ? coleccion.crear(i) : coleccion.modelo();
        leerCampos(archivo, nombre, abertura, camposAbertura);
        leerCampos(archivo, nombre, abertura, formato.propios);
        if (i == 0) continue;
        formato.colocar(dibujo, i, true);
        formato.deseleccionar(dibujo, i);
    }
}

}  // namespace

void escribirDibujo(ArchivoPerfil& archivo, const Dibujo& dibujo) {
    escribirCampos(archivo, seccionCabecera, dibujo, camposHoja);
    porContadores(dibujo, [&](std::string_view clave, std::int16_t contador) {
        archivo.guardar(seccionCabecera, clave, textoEntero(contador));
    });
    escribirCampos(archivo, seccionCabecera, dibujo, camposModelos);
    escribirCampos(archivo, seccionColores, dibujo, camposColores);
    dibujo.Pared.recorrer(0, dibujo.Pared.contador - 1, [&](int indice, const Pared& pared) {
        const std::string nombre = seccion(Clase::Pared, indice);
        escribirCampos(archivo, nombre, pared, camposPared);
        escribirCampos(archivo, nombre, pared, camposLineasPared);
    });
    escribirAberturas(archivo, dibujo.Ventana, formatoVentana);
    escribirAberturas(archivo, dibujo.Puerta, formatoPuerta);
}

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
    for (int i = 0; i < dibujo.Pared.contador; ++i)
        leerPared(archivo, dibujo, i);
    leerAberturas(archivo, dibujo, dibujo.Ventana, formatoVentana);
    leerAberturas(archivo, dibujo, dibujo.Puerta, formatoPuerta);
}

}  // namespace bosquel
