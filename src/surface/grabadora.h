#pragma once

#include "surface/superficie_salida.h"

#include <string>
#include <vector>

namespace bosquel {

/// A surface that writes down what is drawn on it, one stroke a line: "Line 0 0 100 0 000000". Coordinates
/// stand in their shortest text, whatever the locale, and colours as RRGGBB.
class Grabadora : public SuperficieSalida {
  public:
    void Line(float x1, float y1, float x2, float y2, Color color) override;

    const std::vector<std::string>& trazos() const { return trazos_; }

  private:
    std::vector<std::string> trazos_;
};

}  // namespace bosquel
