#include "openings/trazar_abertura.h"

#include "surface/primitivas.h"

namespace bosquel {

void TrazarVentana(SuperficieSalida& superficie, const Ventana& ventana, Color color, double EscalaSalida) {
    for (const Segmento& linea : ventana.lineas)
        if (linea.Visible) TrazarSegmento(superficie, linea, color, EscalaSalida);
}

void TrazarPuerta(SuperficieSalida& superficie, const Puerta& puerta, Color color, double EscalaSalida) {
    const auto& lineas = puerta.lineas;
    for (std::size_t i = 0; i < lineas.size(); ++i) {
        const bool cuerda = i + 1 == cuerdaPuerta || i + 1 == segundaCuerdaPuerta;
        if (lineas[i].Visible)
            TrazarSegmento(superficie, lineas[i], color, EscalaSalida,
                           cuerda ? TipoDeTrazo::rayas : TipoDeTrazo::continuo);
    }
}

}  // namespace bosquel
