#include "surface/grabadora.h"

#include <array>
#include <charconv>

namespace bosquel {

namespace {

void anadirNumero(std::string& texto, float valor) {
    std::array<char, 64> cifras{};
    const auto fin = std::to_chars(cifras.data(), cifras.data() + cifras.size(), valor).ptr;
    texto.append(" ").append(cifras.data(), fin);
}

void anadirColor(std::string& texto, Color color) {
    static constexpr std::string_view hexadecimal = "0123456789ABCDEF";
    const auto plano = static_cast<unsigned>(rgb(color));
    texto += ' ';
    for (const unsigned desplazamiento : {4U, 0U, 12U, 8U, 20U, 16U})
        texto += hexadecimal[(plano >> desplazamiento) & 0xFU];
}

}  // namespace

void Grabadora::Line(float x1, float y1, float x2, float y2, Color color) {
    std::string trazo = "Line";
    for (const float valor : {x1, y1, x2, y2})
        anadirNumero(trazo, valor);
    anadirColor(trazo, color);
    trazos_.push_back(std::move(trazo));
}

}  // namespace bosquel
