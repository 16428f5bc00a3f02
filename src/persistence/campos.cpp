#include "persistence/campos.h"

#include "model/numeros.h"

namespace bosquel {

void Forma<float>::leer(std::string_view texto, float& valor) {
    if (const auto real = realDeTexto(texto)) asignar(valor, *real);
}

std::string Forma<bool>::texto(bool valor) {
    return valor ? "Verdadero" : "Falso";
}

void Forma<bool>::leer(std::string_view texto, bool& valor) {
    valor = texto == "Verdadero";
}

}  // namespace bosquel
