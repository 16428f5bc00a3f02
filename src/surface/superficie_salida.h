#pragma once

#include "model/colores.h"

namespace bosquel {

/// An abstract surface to draw on: x to the right, y downwards, in units of its own. The sheet, the output
/// and the recorder of the tests are surfaces.
class SuperficieSalida {
  public:
    SuperficieSalida() = default;
    SuperficieSalida(const SuperficieSalida&) = delete;
    SuperficieSalida& operator=(const SuperficieSalida&) = delete;
    virtual ~SuperficieSalida() = default;

    /// A straight stroke from (x1, y1) to (x2, y2).
    virtual void Line(float x1, float y1, float x2, float y2, Color color) = 0;
};

}  // namespace bosquel
