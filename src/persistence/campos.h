#pragma once

#include "model/textos_numero.h"
#include "persistence/perfiles.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>

namespace bosquel {

// A section of the drawing file as a table: one row tells the key, where its value lives, the form that it
// has in the file and what a missing key reads as, and serves both writing and reading.

/// The form that a value of a type has when its row does not say otherwise: how it is written, and how it is
/// read. A text that cannot be read leaves the value as it is.
template <class Tipo>
struct Forma;

template <>
struct Forma<std::int16_t> {
    static std::string texto(std::int16_t valor) { return textoEntero(valor); }
    static void leer(std::string_view texto, std::int16_t& valor) {
        valor = entero16DeTexto(texto).value_or(valor);
    }
};

template <>
struct Forma<std::int32_t> {
    static std::string texto(std::int32_t valor) { return textoEntero(valor); }
    static void leer(std::string_view texto, std::int32_t& valor) {
        valor = entero32DeTexto(texto).value_or(valor);
    }
};

template <>
struct Forma<float> {
    static std::string texto(float valor) { return textoReal(valor); }
    static void leer(std::string_view texto, float& valor);
};

template <>
struct Forma<double> {
    static std::string texto(double valor) { return textoReal(valor); }
    static void leer(std::string_view texto, double& valor) { valor = realDeTexto(texto).value_or(valor); }
};

/// The two words, whatever the locale; all but the exact "Verdadero" is false.
template <>
struct Forma<bool> {
    static std::string texto(bool valor);
    static void leer(std::string_view texto, bool& valor);
};

template <>
struct Forma<std::string> {
    static std::string texto(const std::string& valor) { return valor; }
    static void leer(std::string_view texto, std::string& valor) { valor = texto; }
};

/// A real that is proof against a change of locale: always with a point.
struct RealNormalizado {
    static std::string texto(double valor) { return UnificarFormato(textoReal(valor)); }
    static void leer(std::string_view texto, double& valor) {
        valor = realDeTexto(AplicarFormato(texto)).value_or(valor);
    }
};

/// Always with a point in the file, but read as it stands under the locale: where the point groups digits, a
/// fraction comes back as part of the whole number.
struct RealNormalizadoAlEscribir : RealNormalizado {
    static void leer(std::string_view texto, double& valor) { Forma<double>::leer(texto, valor); }
};

/// The number 1 or another, told by the two words.
struct UnoOCero {
    static std::string texto(std::int32_t valor) { return Forma<bool>::texto(valor == 1); }
    static void leer(std::string_view texto, std::int32_t& valor);
};

/// A boolean in the words of the locale: written in Spanish or English, read in either, in capitals and small
/// letters, or as a number, of which 0 is false.
struct BooleanoDelIdioma {
    static std::string texto(bool valor);
    static void leer(std::string_view texto, bool& valor);
};

/// The form that follows from the type of the member.
struct SegunTipo {};

/// A row. `acceso` is a pointer to a member, or a function that gives a reference to it. Without
/// `predeterminado` a missing key reads as the present value, by way of the text that its type has.
template <class Acceso, class FormaPropia = SegunTipo>
struct Campo {
    std::string_view clave;
    Acceso acceso;
    std::optional<std::string_view> predeterminado = std::nullopt;
    FormaPropia forma = {};
};

// Clang does not deduce these from an aggregate until its 17.
template <class Acceso>
Campo(std::string_view, Acceso) -> Campo<Acceso>;
template <class Acceso>
Campo(std::string_view, Acceso, std::optional<std::string_view>) -> Campo<Acceso>;
template <class Acceso, class FormaPropia>
Campo(std::string_view, Acceso, std::optional<std::string_view>, FormaPropia) -> Campo<Acceso, FormaPropia>;

template <class FormaPropia, class Valor>
using FormaDe = std::conditional_t<std::is_same_v<FormaPropia, SegunTipo>, Forma<Valor>, FormaPropia>;

/// Writes all rows of a table, in their order.
template <class Objeto, class... Filas>
void escribirCampos(ArchivoPerfil& archivo, std::string_view seccion, const Objeto& objeto,
                    const std::tuple<Filas...>& tabla) {
    const auto escribir = [&]<class A, class F>(const Campo<A, F>& campo) {
        const auto& valor = std::invoke(campo.acceso, objeto);
        using Valor = std::remove_cvref_t<decltype(valor)>;
        archivo.guardar(seccion, campo.clave, FormaDe<F, Valor>::texto(valor));
    };
    std::apply([&](const auto&... campo) { (escribir(campo), ...); }, tabla);
}

/// Reads all rows of a table, in their order.
template <class Objeto, class... Filas>
void leerCampos(const ArchivoPerfil& archivo, std::string_view seccion, Objeto& objeto,
                const std::tuple<Filas...>& tabla) {
    const auto leer = [&]<class A, class F>(const Campo<A, F>& campo) {
        auto& valor = std::invoke(campo.acceso, objeto);
        using Valor = std::remove_cvref_t<decltype(valor)>;
        auto texto = archivo.buscar(seccion, campo.clave);
        if (!texto)
            texto = campo.predeterminado ? std::string(*campo.predeterminado) : Forma<Valor>::texto(valor);
        FormaDe<F, Valor>::leer(*texto, valor);
    };
    std::apply([&](const auto&... campo) { (leer(campo), ...); }, tabla);
}

}  // namespace bosquel
