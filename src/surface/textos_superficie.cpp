#include "surface/textos_superficie.h"

#include "model/numeros.h"

#include <array>
#include <charconv>
#include <string_view>

namespace bosquel {

namespace {

template <class Real>
std::string masCorto(Real valor) {
    std::array<char, 64> cifras{};
    return {cifras.data(), std::to_chars(cifras.data(), cifras.data() + cifras.size(), valor).ptr};
}

}  // namespace

std::string textoCorto(double valor) {
    if (valor == 0) return "0";
    const float corto = simple(valor);
    return static_cast<double>(corto) == valor ? masCorto(corto) : masCorto(valor);
}

std::string textoColor(Color color) {
    static constexpr std::string_view hexadecimal = "0123456789ABCDEF";
    const auto plano = static_cast<unsigned>(rgb(color));
    std::string texto;
    for (const unsigned desplazamiento : {4U, 0U, 12U, 8U, 20U, 16U})
        texto += hexadecimal[(plano >> desplazamiento) & 0xFU];
    return texto;
}

}  // namespace bosquel
