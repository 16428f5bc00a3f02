#include "drawing/estado.h"

#include "model/textos_numero.h"

namespace bosquel {

std::string_view indicacion(Modo modo) {
    switch (modo) {
        case Modo::Aspa: return "Arrastre sobre la hoja para desplazarla.";
        case Modo::Flecha: return "Arrastre para mover; doble clic para ver las propiedades.";
        case Modo::Seleccion: return "Elija la pared de la que trazar la paralela.";
        case Modo::PrimeraPared: return "Elija la primera pared de la esquina.";
        case Modo::SegundaPared: return "Elija la segunda pared de la esquina.";
        case Modo::Union1: return "Elija la primera pared de la unión.";
        case Modo::Union2: return "Elija la segunda pared de la unión.";
        case Modo::Separar: return "Elija una pared del grupo que desea separar.";
        case Modo::Pared: return "Pulse en la hoja donde empieza la pared.";
        case Modo::Ventana: return "Elija la pared de la ventana.";
        case Modo::Puerta: return "Elija la pared de la puerta.";
        case Modo::Escalera: return "Elija la pared a la que alinear la escalera.";
    }
    return {};
}

std::string textoEscala(double FactorZoomActual) {
    // At 0.5 sheet units to a millimetre a metre of the model is a centimetre of paper, near enough.
    const double denominador = 50 / FactorZoomActual;
    if (!(denominador >= 1 && denominador < 1e6)) return {};
    return "Escala 1:" + formatoEntero(denominador);
}

}  // namespace bosquel
