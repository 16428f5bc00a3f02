#include "persistence/archivo_dibujo.h"

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
constexpr std::tuple camposVentanas{
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

bool falta(const ArchivoPerfil& archivo, std::string_view seccionPared) {
    const auto texto = archivo.buscar(seccionPared, "AnchoMuro");
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
}

void leerCabecera(const ArchivoPerfil& archivo, Dibujo& dibujo) {
    leerCampos(archivo, seccionCabecera, dibujo, camposHoja);
    porContadores(dibujo, [&](std::string_view clave, std::int16_t& contador) {
        contador = entero16DeTexto(archivo.leer(seccionCabecera, clave, "1")).value_or(contador);
    });
    leerCampos(archivo, seccionColores, dibujo, camposColores);
    leerCampos(archivo, seccionCabecera, dibujo, camposModelos);
    leerCampos(archivo, seccionCabecera, dibujo, camposVentanas);
}

void leerElementos(const ArchivoPerfil& archivo, Dibujo& dibujo) {
    for (int i = 0; i < dibujo.Pared.contador; ++i)
        leerPared(archivo, dibujo, i);
}

}  // namespace bosquel
