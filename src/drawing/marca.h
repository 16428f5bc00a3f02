#pragma once

namespace bosquel {

/// A flag that stands for as long as this lives: however the work ends that it tells of, it is lowered.
class Marca {
  public:
    explicit Marca(bool& bandera) : bandera_(bandera) { bandera = true; }
    Marca(const Marca&) = delete;
    Marca& operator=(const Marca&) = delete;
    ~Marca() { bandera_ = false; }

  private:
    bool& bandera_;
};

}  // namespace bosquel
