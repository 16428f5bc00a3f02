#include "model/standard.h"

namespace bosquel {

std::optional<char32_t> FiltraEntero(char32_t tecla) {
    if (tecla < U'0' || tecla > U'9') return std::nullopt;
    return tecla;
}

std::optional<char32_t> FiltraDecimal(char32_t tecla) {
    return tecla == U'.' || tecla == U',' ? U',' : FiltraEntero(tecla);
}

}  // namespace bosquel
