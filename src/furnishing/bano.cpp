#include "furnishing/figuras.h"

namespace bosquel {

namespace {

constexpr std::array<std::string_view, 4> rumbos{"N", "S", "E", "W"};

// clang-format off
constexpr Filas<12> trazosInodoro{{
    //  "N"                                "S"                        "E"                       "W"
    {B(0, 400 + 10_u, 360, 550 + 10_u), B(0, 0, 360, 150),         B(0, 0, 150, 360),        B(400 + 10_u, 0, 550 + 10_u, 360)},  // cistern
    {L(20, 160, 20, 400 + 20_u),        L(20, 150, 20, 400),       L(150, 20, 400, 20),      L(160, 20, 400 + 20_u, 20)},
    {L(340, 160, 340, 400 + 20_u),      L(340, 150, 340, 400),     L(150, 340, 400, 340),    L(160, 340, 400 + 20_u, 340)},
    {A(180, 160, 160, 0, 180),          A(180, 400, 160, 180, 0),  A(400, 180, 160, 270, 90), A(160, 180, 160, 90, 270)},         // rim
    {L(70, 160, 70, 350),               L(70, 220, 70, 400),       L(220, 70, 400, 70),      L(160, 70, 350, 70)},
    {L(290, 160, 290, 350),             L(290, 220, 290, 400),     L(220, 290, 400, 290),    L(160, 290, 350, 290)},
    {L(70, 350, 290, 350),              L(70, 220, 290, 220),      L(220, 70, 220, 290),     L(350, 70, 350, 290)},
    {A(180, 160, 110, 0, 180),          A(180, 400, 110, 180, 0),  A(400, 180, 110, 270, 90), A(160, 180, 110, 90, 270)},         // bowl
    {C(180, 475, 20),                   C(180, 75, 20),            C(75, 180, 20),           C(475, 180, 20)},                    // button
    {C(120, 380, 10),                   C(120, 185, 10),           C(185, 120, 10),          C(380, 120, 10)},                    // bolts
    {C(240, 380, 10),                   C(240, 185, 10),           C(185, 240, 10),          C(380, 240, 10)},
    {E(180, 280, 50, 0.5),              E(180, 300, 50, 0.5),      E(300, 180, 50, 1.5),     E(270, 180, 50, 1.5)},               // drain
}};

constexpr Filas<8> trazosLavabo{{
    //  "N"                                 "S"                              "E"                              "W"
    {EA(300, 200 + 20_u, 300, 0, 180, 0.7), EA(300, 260, 300, 180, 0, 0.7), EA(260, 300, 300, 270, 90, 1.4), EA(200 + 15_u, 300, 300, 90, 270, 1.4)},  // bowl outside
    {L(0, 460 + 15_u, 600, 460 + 15_u),     L(0, 0, 600, 0),                L(0, 0, 0, 600),                 L(460, 0, 460, 600)},                     // back
    {L(0, 460 + 15_u, 0, 200 + 20_u),       L(0, 0, 0, 260),                L(0, 0, 260, 0),                 L(460, 0, 200 + 15_u, 0)},                // sides
    {L(600, 460 + 15_u, 600, 200 + 20_u),   L(600, 0, 600, 260),            L(0, 600, 260, 600),             L(460, 600, 200 + 15_u, 600)},
    {E(300, 200 + 20_u, 230, 0.7),          E(300, 260, 230, 0.7),          E(260, 300, 230, 1.4),           E(200 + 15_u, 300, 230, 1.4)},            // bowl inside
    {C(300, 426, 20),                       C(300, 46, 20),                 C(46, 300, 20),                  C(426, 300, 20)},                         // tap
    {C(300, 306, 15),                       C(300, 166, 15),                C(166, 300, 15),                 C(306, 300, 15)},                         // drain
    {C(300, 306, 30),                       C(300, 166, 30),                C(166, 300, 30),                 C(306, 300, 30)},
}};

constexpr Filas<12> trazosBidet{{
    //  "N"                      "S"                       "E"                         "W"
    {A(160, 160, 160, 0, 180), L(0, 0, 0, 250),          L(0, 0, 250, 0),           L(160, 0, 400, 0)},
    {L(0, 160, 0, 400),        L(320, 0, 320, 250),      L(0, 320, 250, 320),       L(160, 320, 400, 320)},
    {L(320, 160, 320, 400),    A(160, 250, 160, 180, 0), A(250, 160, 160, 270, 90), A(160, 160, 160, 90, 270)},
    {L(0, 400, 320, 400),      L(0, 0, 320, 0),          L(0, 0, 0, 320),           L(400, 0, 400, 320)},
    {A(160, 160, 110, 0, 180), L(50, 70, 50, 250),       L(70, 50, 250, 50),        L(160, 50, 335, 50)},
    {L(50, 160, 50, 335),      L(270, 70, 270, 250),     L(70, 270, 250, 270),      L(160, 270, 335, 270)},
    {L(270, 160, 270, 335),    L(50, 70, 270, 70),       L(70, 50, 70, 270),        L(335, 50, 335, 270)},
    {L(50, 335, 270, 335),     A(160, 250, 110, 180, 0), A(250, 160, 110, 270, 90), A(160, 160, 110, 90, 270)},
    {C(100, 365, 20),          C(100, 35, 20),           C(35, 100, 20),            C(370, 100, 20)},  // taps
    {C(220, 365, 20),          C(220, 35, 20),           C(35, 220, 20),            C(370, 220, 20)},
    {C(160, 280, 15),          C(160, 140, 15),          C(150, 160, 15),           C(270, 160, 15)},  // drain
    {C(160, 280, 30),          C(160, 140, 30),          C(150, 160, 30),           C(270, 160, 30)},
}};

constexpr Filas<9> trazosUrinario{{
    //  "N"                        "S"                          "E"                          "W"
    {L(70, 280, 390, 280),       L(70, 0, 390, 0),            L(0, 70, 0, 390),            L(280, 70, 280, 390)},
    {L(70, 280, 0, 30),          L(70, 0, 0, 250),            L(0, 70, 250, 0),            L(280, 70, 30, 0)},
    {L(390, 280, 460, 30),       L(390, 0, 460, 250),         L(0, 390, 250, 460),         L(280, 390, 30, 460)},
    {L(0, 30, 30, 30),           L(0, 250, 30, 250),          L(250, 0, 250, 30),          L(30, 0, 30, 30)},
    {L(460, 30, 430, 30),        L(460, 250, 430, 250),       L(250, 460, 250, 430),       L(30, 460, 30, 430)},
    {A(230, -27, 210, 197, 343), A(230, 307, 210, 17, 162),   A(307, 230, 210, 107, 252),  A(-27, 230, 210, 287, 73)},  // outer lip
    {A(230, 180, 150, 21, 159),  A(230, 100, 150, 201, 339),  A(100, 230, 150, 291, 69),   A(180, 230, 150, 111, 249)}, // inner
    {A(230, 180, 180, 25, 154),  A(230, 100, 180, 206, 334),  A(100, 230, 180, 296, 64),   A(180, 230, 180, 115, 244)},
    {C(230, 225, 15),            C(230, 55, 15),              C(55, 230, 15),              C(225, 230, 15)},            // drain
}};

constexpr Cota Longitud = longitudPropia(), M = Longitud - 350;

constexpr Filas<7> trazosBañera{{
    //  "N"                       "S"                         "E"                          "W"
    {B(0, 0, 700, Longitud),    B(0, 0, 700, Longitud),     B(0, 0, Longitud, 700),      B(0, 0, Longitud, 700)},
    {L(100, 350, 100, M),       L(100, 350, 100, M),        L(350, 100, M, 100),         L(350, 100, M, 100)},
    {L(600, 350, 600, M),       L(600, 350, 600, M),        L(350, 600, M, 600),         L(350, 600, M, 600)},
    {A(350, 350, 250, 0, 180),  A(350, 350, 250, 0, 180),   A(350, 350, 250, 90, 270),   A(350, 350, 250, 90, 270)},  // ends
    {A(350, M, 250, 180, 0),    A(350, M, 250, 180, 0),     A(M, 350, 250, 270, 90),     A(M, 350, 250, 270, 90)},
    {C(350, 350, 15),           C(350, M, 15),              C(M, 350, 15),               C(350, 350, 15)},            // drain
    {C(350, 350, 30),           C(350, M, 30),              C(M, 350, 30),               C(350, 350, 30)},
}};

constexpr Cota Lado = longitudPropia();

constexpr std::array trazosDucha{
    Box(0, 0, Lado, Lado),
    Box(60, 60, Lado - 120, Lado - 120),
    C(Lado / 2, Lado / 2, 20),
    C(Lado / 2, Lado / 2, 40),
};
// clang-format on

constexpr auto laminaInodoro = porColumnas(rumbos, trazosInodoro);
constexpr auto laminaLavabo = porColumnas(rumbos, trazosLavabo);
constexpr auto laminaBidet = porColumnas(rumbos, trazosBidet);
constexpr auto laminaBañera = porColumnas(rumbos, trazosBañera);
constexpr auto laminaUrinario = porColumnas(rumbos, trazosUrinario);

}  // namespace

void figura(const Pluma& pluma, const MblInodoro& inodoro) {
    pluma.dibujar(laminaInodoro, inodoro.Orientacion);
}

void figura(const Pluma& pluma, const MblLavabo& lavabo) {
    pluma.dibujar(laminaLavabo, lavabo.Orientacion);
}

void figura(const Pluma& pluma, const MblBidet& bidet) {
    pluma.dibujar(laminaBidet, bidet.Orientacion);
}

void figura(const Pluma& pluma, const MblBañera& bañera) {
    pluma.dibujar(laminaBañera, bañera.Orientacion, Pluma::Redondeo::ninguno, bañera.Longitud);
}

void figura(const Pluma& pluma, const MblDucha& ducha) {
    if (const auto lado = ladoDeTexto(ducha.Orientacion))
        pluma.dibujar(trazosDucha, Pluma::Redondeo::ninguno, *lado);
}

void figura(const Pluma& pluma, const MblUrinario& urinario) {
    pluma.dibujar(laminaUrinario, urinario.Orientacion);
}

}  // namespace bosquel
