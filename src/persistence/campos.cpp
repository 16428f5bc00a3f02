#include "persistence/campos.h"

#include "model/numeros.h"
#include "model/windows1252.h"

namespace bosquel {

namespace {

/// The words of a boolean in a language, true first.
struct Palabras {
    std::string_view si, no;
};

constexpr Palabras espanolas{"Verdadero", "Falso"};
constexpr Palabras inglesas{"True", "False"};

}  // namespace

void Forma<float>::leer(std::string_view texto, float& valor) {
    if (const auto real = realDeTexto(texto)) asignar(valor, *real);
}

std::string Forma<bool>::texto(bool valor) {
    return std::string(valor ? espanolas.si : espanolas.no);
}

void Forma<bool>::leer(std::string_view texto, bool& valor) {
    valor = texto == espanolas.si;
}

void UnoOCero::leer(std::string_view texto, std::int32_t& valor) {
    bool esUno = false;
    Forma<bool>::leer(texto, esUno);
    valor = esUno ? 1 : 0;
}

std::string BooleanoDelIdioma::texto(bool valor) {
    const Palabras& palabras = idiomaEspanol() ? espanolas : inglesas;
    return std::string(valor ? palabras.si : palabras.no);
}

void BooleanoDelIdioma::leer(std::string_view texto, bool& valor) {
    for (const Palabras& palabras : {espanolas, inglesas}) {
        if (mismoNombre(texto, palabras.si)) valor = true;
        if (mismoNombre(texto, palabras.no)) valor = false;
    }
    if (const auto numero = realDeTexto(texto)) valor = *numero != 0;
}

}  // namespace bosquel
