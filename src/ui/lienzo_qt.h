#pragma once

#include "output/lienzo_salida.h"

#include <QImage>

namespace bosquel {

/// The pictures of the output as images of one pixel to a pixel, whatever the density of the screen: white
/// paper, strokes a pixel wide, nothing smoothed. They know how large they are meant to be on paper.
class LienzoQt final : public LienzoSalida {
  public:
    const QImage& HojaSalida() const { return HojaSalida_; }
    const QImage& RecorteSalida() const { return RecorteSalida_; }

    void pintarHoja(int ancho, int alto, const std::function<void(SuperficieSalida&)>& dibujar) override;
    void recortar(const AreaSalida& area) override;
    void vaciarPortapapeles() override;
    void ponerEnPortapapeles() override;
    void tomarDelPortapapeles() override;
    void vistaPrevia(const Papel& papel) override;
    void guardar(const std::filesystem::path& ruta, Profundidad profundidad) override;

  private:
    QImage HojaSalida_, RecorteSalida_, Image1_;
};

}  // namespace bosquel
