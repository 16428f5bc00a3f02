#pragma once

#include "model/geometria.h"

#include <optional>
#include <utility>
#include <vector>

namespace bosquel {

/// What of the sheet has to be painted again: rectangles in sheet units, gathered while the drawing changes
/// and taken by whoever paints.
class ZonaSucia {
  public:
    void anadir(const Recuadro& zona) {
        if (!todo_) zonas_.push_back(zona);
    }
    void anadirTodo() {
        todo_ = true;
        zonas_.clear();
    }

    bool limpia() const { return !todo_ && zonas_.empty(); }
    bool todo() const { return todo_; }
    const std::vector<Recuadro>& zonas() const { return zonas_; }

    /// Empties it; what it held is the painter's from now on. Room once taken is kept.
    void vaciar() {
        todo_ = false;
        zonas_.clear();
    }

  private:
    std::vector<Recuadro> zonas_;
    bool todo_ = false;
};

}  // namespace bosquel
