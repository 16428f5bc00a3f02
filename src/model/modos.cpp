#include "model/modos.h"

namespace bosquel {

std::string_view texto(Modo modo) {
    switch (modo) {
        case Modo::Aspa: return "Aspa";
        case Modo::Flecha: return "Flecha";
        case Modo::Seleccion: return "Seleccion";
        case Modo::PrimeraPared: return "PrimeraPared";
        case Modo::SegundaPared: return "SegundaPared";
        case Modo::Union1: return "Union1";
        case Modo::Union2: return "Union2";
        case Modo::Separar: return "Separar";
        case Modo::Pared: return "Pared";
        case Modo::Ventana: return "Ventana";
        case Modo::Puerta: return "Puerta";
        case Modo::Escalera: return "Escalera";
    }
    return {};
}

bool espera(Modo modo) {
    switch (modo) {
        case Modo::Aspa:
        case Modo::Flecha:
        case Modo::Pared: return false;
        case Modo::Seleccion:
        case Modo::PrimeraPared:
        case Modo::SegundaPared:
        case Modo::Union1:
        case Modo::Union2:
        case Modo::Separar:
        case Modo::Ventana:
        case Modo::Puerta:
        case Modo::Escalera: return true;
    }
    return false;
}

}  // namespace bosquel
