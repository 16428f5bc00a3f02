#include "output/papel.h"

namespace bosquel {

namespace {

constexpr std::string_view tituloUsual = "ActiveReport1";

// clang-format off
constexpr std::array<std::array<Papel, optSentido.size()>, 2> papeles{{
    {{{"A4",  "Vista Previa de Impresión", 11904, 16833, false, 10299, 12520},
      {"A4H", tituloUsual,                 11904, 16833, true,  16394,  9732}}},
    {{{"A3",  tituloUsual,                 16833, 23808, false, 16394, 21543},
      {"A3H", tituloUsual,                 16833, 23808, true,  22299, 15402}}},
}};
// clang-format on

template <class Fila>
bool alcanza(const Fila& fila, int indice) {
    return indice >= 0 && static_cast<std::size_t>(indice) < fila.size();
}

}  // namespace

const Papel* papelPara(int tamano, int sentido) {
    if (!alcanza(papeles, tamano) || !alcanza(optSentido, sentido)) return nullptr;
    return &papeles[static_cast<std::size_t>(tamano)][static_cast<std::size_t>(sentido)];
}

}  // namespace bosquel
