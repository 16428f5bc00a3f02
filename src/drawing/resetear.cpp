#include "drawing/archivo.h"
#include "drawing/vista.h"
#include "model/numeros.h"
#include "model/textos_numero.h"
#include "persistence/perfiles.h"

namespace bosquel {

namespace {

bool leerBooleano(const ArchivoPerfil& ajustes, std::string_view clave) {
    return ajustes.leer("Smart", clave, palabraFalso) == palabraVerdadero;
}

/// The settings of Bqr.ini; what cannot be read keeps the value that it has.
void leerAjustes(const std::filesystem::path& carpeta, Dibujo& dibujo) {
    const ArchivoPerfil ajustes(carpeta / ficheroAjustes);
    dibujo.AreaHight =
        entero32DeTexto(ajustes.leer("PaperSize", "AreaHight", "20000")).value_or(dibujo.AreaHight);
    dibujo.AreaWidth =
        entero32DeTexto(ajustes.leer("PaperSize", "AreaWidth", "20000")).value_or(dibujo.AreaWidth);
    dibujo.Cuadricula = realDeTexto(ajustes.leer("Smart", "Grid", "100")).value_or(dibujo.Cuadricula);
    dibujo.Iman = leerBooleano(ajustes, "Snap");
    dibujo.VerCuadricula = leerBooleano(ajustes, "GridView");
    dibujo.AutoSave = entero16DeTexto(ajustes.leer("Smart", "AutoSave", "5")).value_or(dibujo.AutoSave);
}

void resetearAbertura(Abertura& modelo, double longitud) {
    modelo.AnchoMuro = 200;
    modelo.AnchoTabique = 100;
    modelo.Angulo = 0;
    modelo.Longitud = longitud;
    modelo.GrupoInicialPared = 0;
    modelo.Estado = estadoNuevo;
}

/// The models that a new drawing starts with. Those of the other kinds stay as the user has made them.
void resetearModelos(Dibujo& dibujo) {
    Pared& pared = dibujo.Pared.modelo();
    pared.AnchoMuro = 200;
    pared.AnchoTabique = 100;
    pared.Angulo = 0;
    pared.InicialX = 0;
    pared.InicialY = 0;
    pared.Longitud = 4000;
    pared.NumeroGrupo = 0;
    pared.Tipo = "Tabique";
    pared.Estado = estadoNuevo;

    resetearAbertura(dibujo.Ventana.modelo(), 1000);
    dibujo.Ventana.modelo().Tipo = "Tabique";
    resetearAbertura(dibujo.Puerta.modelo(), 720);

    Escalera& escalera = dibujo.Escalera.modelo();
    escalera.Angle = 0;
    escalera.LineColor = negro;
    escalera.Orientacion = "D";
    escalera.StairEye = 150;
    escalera.Stairs = 1;
    escalera.StepsStair = {8, 2, 6};
    escalera.WidthStair = {1000, 1000, 1000};
    escalera.WidthSteps = 280;
    escalera.RailingSide = {};
    escalera.Resaltado = false;
}

}  // namespace

void ResetearDibujo(Sesion& sesion) {
    Dibujo& dibujo = sesion.dibujo;
    for (const DatosClase& fila : todasLasClases())
        conColeccion(dibujo, fila.clase, [](auto& coleccion) { coleccion.contador = 1; });
    dibujo.FactorZoomActual = 0.5;
    dibujo.ZoomPasoBajo = 0.5;
    dibujo.ZoomPasoMedio = 1.0;
    dibujo.ZoomPasoAlto = 1.5;
    leerAjustes(sesion.carpeta, dibujo);
    sesion.plataforma.activar(Reloj::tmrAutoSave, dibujo.AutoSave != 0);
    dibujo.Hoja.Left = 0;
    dibujo.Hoja.Top = 0;
    MedirHoja(sesion);
    sesion.regla.FactorZoom = dibujo.FactorZoomActual;
    dibujo.TotalGrupos = 0;
    dibujo.DistParalela = 1.0;
    if (dibujo.VerCuadricula)
        DibujarCuadricula(sesion);
    else
        BorrarCuadricula(sesion);
    resetearModelos(dibujo);
    dibujo.ModoActual = Modo::Aspa;
    dibujo.Esquema = "Blanco y Negro";
    dibujo.Perfil.clear();
    sesion.vistaSucia = true;
}

}  // namespace bosquel
