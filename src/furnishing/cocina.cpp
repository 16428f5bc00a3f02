#include "furnishing/figuras.h"
#include "model/textos_numero.h"

namespace bosquel {

namespace {

constexpr Cota Lado = longitudPropia();

// clang-format off
constexpr std::array trazosCocina{
    Box(0, 0, Lado, Lado),
    Box(50, 50, Lado - 100, Lado - 100),
    C(160, 160, 70),
    C(Lado - 160, Lado - 160, 70),
    C(160, Lado - 160, 50),
    C(Lado - 160, 160, 50),
};

constexpr std::array trazosLavadora{
    Box(0, 0, Lado, Lado),
    C(Lado / 2, Lado / 2, 160),
    C(Lado / 2, Lado / 2, 130),
};

// Body, door, handle.
constexpr Lamina<3, 8> laminaNevera{{
    {"WD", {Box(150, 0, 500, 600), Box(50, 0, 100, 600),  Box(0, 400, 30, 200)}},
    {"WU", {Box(150, 0, 500, 600), Box(50, 0, 100, 600),  Box(0, 0, 30, 200)}},
    {"ED", {Box(0, 0, 500, 600),   Box(500, 0, 100, 600), Box(620, 400, 30, 200)}},
    {"EU", {Box(0, 0, 500, 600),   Box(500, 0, 100, 600), Box(620, 0, 30, 200)}},
    {"SL", {Box(0, 0, 600, 500),   Box(0, 500, 600, 100), Box(0, 620, 200, 30)}},
    {"SR", {Box(0, 0, 600, 500),   Box(0, 500, 600, 100), Box(400, 620, 200, 30)}},
    {"NL", {Box(0, 150, 600, 500), Box(0, 50, 600, 100),  Box(0, 0, 200, 30)}},
    {"NR", {Box(0, 150, 600, 500), Box(0, 50, 600, 100),  Box(400, 0, 200, 30)}},
}};

constexpr std::array<std::string_view, 4> rumbosLavadero{"W", "E", "S", "N"};

constexpr Filas<9> trazosLavadero{{
    //  "W"                  "E"                   "S"                   "N"
    {Box(0, 0, 700, 400),  Box(0, 0, 700, 400),  Box(0, 0, 400, 700),  Box(0, 0, 400, 700)},
    {L(50, 60, 50, 350),   L(650, 60, 650, 350), L(60, 650, 350, 650), L(60, 50, 350, 50)},    // ribs
    {L(110, 60, 110, 350), L(590, 60, 590, 350), L(60, 590, 350, 590), L(60, 110, 350, 110)},
    {L(170, 60, 170, 350), L(530, 60, 530, 350), L(60, 530, 350, 530), L(60, 170, 350, 170)},
    {L(230, 60, 230, 350), L(470, 60, 470, 350), L(60, 470, 350, 470), L(60, 230, 350, 230)},
    {L(290, 60, 290, 350), L(410, 60, 410, 350), L(60, 410, 350, 410), L(60, 290, 350, 290)},
    {B(350, 60, 640, 340), B(350, 60, 60, 340),  B(60, 350, 340, 60),  B(60, 350, 340, 640)},  // basin
    {C(550, 200, 15),      C(150, 200, 15),      C(200, 150, 15),      C(200, 550, 15)},       // drain
    {C(550, 200, 30),      C(150, 200, 30),      C(200, 150, 30),      C(200, 550, 30)},
}};

constexpr Lamina<4, 4> laminaVertedero{{
    {"W", {Box(0, 0, 600, 600), B(60, 60, 540, 540), C(150, 300, 45), C(150, 300, 75)}},
    {"E", {Box(0, 0, 600, 600), B(60, 60, 540, 540), C(450, 300, 45), C(450, 300, 75)}},
    {"S", {Box(0, 0, 600, 600), B(60, 60, 540, 540), C(300, 450, 45), C(300, 450, 75)}},
    {"N", {Box(0, 0, 600, 600), B(60, 60, 540, 540), C(300, 150, 45), C(300, 150, 75)}},
}};
// clang-format on

constexpr auto laminaLavadero = porColumnas(rumbosLavadero, trazosLavadero);

}  // namespace

std::optional<double> ladoDeTexto(std::string_view texto) {
    const auto centimetros = entero32DeTexto(texto);
    return centimetros ? std::optional(*centimetros * 10.0) : std::nullopt;
}

void figura(const Pluma& pluma, const MblCocina& cocina) {
    if (const auto lado = ladoDeTexto(cocina.Orientacion))
        pluma.dibujar(trazosCocina, Pluma::Redondeo::ninguno, *lado);
}

void figura(const Pluma& pluma, const MblNevera& nevera) {
    pluma.dibujar(laminaNevera, nevera.Orientacion);
}

void figura(const Pluma& pluma, const MblLavadora& lavadora) {
    if (const auto lado = ladoDeTexto(lavadora.Orientacion))
        pluma.dibujar(trazosLavadora, Pluma::Redondeo::ninguno, *lado);
}

void figura(const Pluma& pluma, const MblLavadero& lavadero) {
    pluma.dibujar(laminaLavadero, lavadero.Orientacion);
}

void figura(const Pluma& pluma, const MblVertedero& vertedero) {
    pluma.dibujar(laminaVertedero, vertedero.Orientacion);
}

}  // namespace bosquel
