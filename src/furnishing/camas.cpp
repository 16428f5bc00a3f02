#include "furnishing/figuras.h"

namespace bosquel {

namespace {

// Frame, head strip, pillow and the stroke across its folded corner.
// clang-format off
constexpr Lamina<4, 8> cama90{{
    {"WD", {Box(0, 0, 2000, 900), Box(0, 0, 300, 900),          Box(300, 450, 450, 450),                Stroke(300, 450, 450, 450)}},
    {"WU", {Box(0, 0, 2000, 900), Box(0, 0, 300, 900),          Box(300, 0, 450, 450),                  Stroke(300, 450, 450, -450)}},
    {"ED", {Box(0, 0, 2000, 900), Box(2000_k - 300, 0, 300, 900), Box(2000_k - 300 - 450, 450, 450, 450), Stroke(2000_k - 300 - 450, 900, 450, -450)}},
    {"EU", {Box(0, 0, 2000, 900), Box(2000_k - 300, 0, 300, 900), Box(2000_k - 300 - 450, 0, 450, 450),   Stroke(2000_k - 300 - 450, 0, 450, 450)}},
    {"SL", {Box(0, 0, 900, 2000), Box(0, 2000_k - 300, 900, 300), Box(0, 2000_k - 300 - 450, 450, 450),   Stroke(0, 2000_k - 300 - 450, 450, 450)}},
    {"SR", {Box(0, 0, 900, 2000), Box(0, 2000_k - 300, 900, 300), Box(450, 2000_k - 300 - 450, 450, 450), Stroke(450, 2000_k - 300, 450, -450)}},
    {"NL", {Box(0, 0, 900, 2000), Box(0, 0, 900, 300),          Box(0, 300, 450, 450),                  Stroke(450, 300, -450, 450)}},
    {"NR", {Box(0, 0, 900, 2000), Box(0, 0, 900, 300),          Box(450, 300, 450, 450),                Stroke(450, 300, 450, 450)}},
}};

// Frame, head strip, and the two pillows, each with its stroke.
constexpr Lamina<6, 4> cama130{{
    {"W", {Box(0, 0, 2000, 1300), Box(0, 0, 300, 1300),
           Box(300, 0, 450, 450),            Stroke(300, 450, 450, -450),
           Box(300, 1300_k - 450, 450, 450), Stroke(300, 1300_k - 450, 450, 450)}},
    {"E", {Box(0, 0, 2000, 1300), Box(2000_k - 300, 0, 300, 1300),
           Box(2000_k - 300 - 450, 0, 450, 450),            Stroke(2000_k - 300 - 450, 0, 450, 450),
           Box(2000_k - 300 - 450, 1300_k - 450, 450, 450), Stroke(2000_k - 300 - 450, 1300, 450, -450)}},
    {"S", {Box(0, 0, 1300, 2000), Box(0, 2000_k - 300, 1300, 300),
           Box(1300_k - 450, 2000_k - 300 - 450, 450, 450), Stroke(1300_k - 450, 2000_k - 300, 450, -450),
           Box(0, 2000_k - 300 - 450, 450, 450),            Stroke(0, 2000_k - 300 - 450, 450, 450)}},
    {"N", {Box(0, 0, 1300, 2000), Box(0, 0, 1300, 300),
           Box(1300_k - 450, 300, 450, 450), Stroke(1300_k - 450, 300, 450, 450),
           Box(0, 300, 450, 450),            Stroke(450, 300, -450, 450)}},
}};
// clang-format on

}  // namespace

void figura(const Pluma& pluma, const MblCama90& cama) {
    pluma.dibujar(cama90, cama.Orientacion, Pluma::Redondeo::entero);
}

void figura(const Pluma& pluma, const MblCama130& cama) {
    pluma.dibujar(cama130, cama.Orientacion, Pluma::Redondeo::entero);
}

}  // namespace bosquel
