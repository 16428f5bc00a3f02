#pragma once

#include "platform/plataforma.h"

namespace bosquel {

/// The hourglass, for as long as this lives: however the work ends, the pointer is given back.
class RelojDeArena {
  public:
    explicit RelojDeArena(Plataforma& plataforma) : plataforma_(plataforma) {
        plataforma_.ponerRelojDeArena(true);
    }
    RelojDeArena(const RelojDeArena&) = delete;
    RelojDeArena& operator=(const RelojDeArena&) = delete;
    ~RelojDeArena() { plataforma_.ponerRelojDeArena(false); }

  private:
    Plataforma& plataforma_;
};

}  // namespace bosquel
