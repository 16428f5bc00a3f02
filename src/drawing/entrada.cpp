#include "drawing/entrada.h"

namespace bosquel {

namespace {

/// The length of the text with one character more: a character may take several bytes.
std::size_t siguiente(std::string_view texto, std::size_t longitud) {
    do
        ++longitud;
    while (longitud < texto.size() && (static_cast<unsigned char>(texto[longitud]) & 0xC0U) == 0x80U);
    return longitud;
}

}  // namespace

void Entrada::tic() {
    if (texto_.size() < version.size()) {
        texto_ = version.substr(0, siguiente(version, texto_.size()));
    } else if (!terminada_) {
        terminada_ = true;
        intervalo_ = intervaloFinal;
    } else {
        cerrada_ = true;
    }
}

}  // namespace bosquel
