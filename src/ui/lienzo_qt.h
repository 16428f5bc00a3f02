#pragma once

#include "output/lienzo_salida.h"

#include <QImage>
#include <cstddef>
#include <utility>

namespace bosquel {

/// The pictures of the output as images of one pixel to a pixel, whatever the density of the screen: white
/// paper, strokes a pixel wide, nothing smoothed. They know how large they are meant to be on paper.
class LienzoQt final : public LienzoSalida {
  public:
    /// Whether so many bytes could be had now.
    using HayMemoria = std::function<bool(std::size_t)>;

    explicit LienzoQt(HayMemoria hayMemoria = sePuedenTomar) : hayMemoria_(std::move(hayMemoria)) {}

    const QImage& HojaSalida() const { return HojaSalida_; }
    const QImage& RecorteSalida() const { return RecorteSalida_; }

    TamanoSalida pintarHoja(TamanoSalida tamano,
                            const std::function<void(SuperficieSalida&)>& dibujar) override;
    void recortar(const AreaSalida& area) override;
    void vaciarPortapapeles() override;
    void ponerEnPortapapeles() override;
    void tomarDelPortapapeles() override;
    void vistaPrevia(const Papel& papel) override;
    void guardar(const std::filesystem::path& ruta, Profundidad profundidad) override;

    static bool sePuedenTomar(std::size_t bytes);

  private:
    QImage papelPara(TamanoSalida tamano, std::size_t copias) const;

    HayMemoria hayMemoria_;
    QImage HojaSalida_, RecorteSalida_, Image1_;
};

}  // namespace bosquel
