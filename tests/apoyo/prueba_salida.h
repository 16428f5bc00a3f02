#pragma once

#include "apoyo/lienzo_falso.h"
#include "apoyo/plataforma_falsa.h"
#include "model/dibujo.h"
#include "output/escala.h"
#include "output/image_crop.h"

#include <gtest/gtest.h>
#include <optional>

namespace bosquel::apoyo {

inline constexpr unsigned izquierdo = 1, derecho = 2, central = 4;

/// The window over a sheet of 18000 by 12000 twips, in a viewport of 6000 by 4500. Two turns of other events
/// are a beat of its timer.
struct PruebaSalida : testing::Test {
    static constexpr double ancho = 18000, alto = 12000, visorAncho = 6000, visorAlto = 4500;

    PlataformaFalsa plataforma;
    Dibujo dibujo;
    LienzoFalso lienzo;
    std::optional<ImageCrop> puesta;
    int cambios = 0;

    PruebaSalida() {
        dibujo.Hoja.Width = static_cast<float>(ancho / EscalaSalida);
        dibujo.Hoja.Height = static_cast<float>(alto / EscalaSalida);
        plataforma.alCederEventos = [this] {
            if (plataforma.turnos % 2 == 0) ventana().pasarTimer1();
        };
        abrir();
    }

    void abrir() {
        puesta.emplace(plataforma, dibujo, "/programa/Bosquel");
        ventana().cargar(lienzo);
        ventana().alCambiar = [this] { ++cambios; };
        ventana().redimensionar(visorAncho + 1450, visorAlto + 950);
    }

    ImageCrop& ventana() { return *puesta; }
    const Recuadro& forma() { return ventana().recuadro().forma(); }
    EstadoRecuadro estado() { return ventana().recuadro().estado(); }

    void arrastrar(double x1, double y1, double x2, double y2) {
        ventana().pulsar(x1, y1);
        ventana().mover(izquierdo, x1 + 15, y1 + 15);
        ventana().mover(izquierdo, x2, y2);
        ventana().soltar();
    }
};

inline void esperarHoja(const Recuadro& hoja, double left, double top) {
    EXPECT_NEAR(hoja.Left, left, 0.01);
    EXPECT_NEAR(hoja.Top, top, 0.01);
}

}  // namespace bosquel::apoyo
