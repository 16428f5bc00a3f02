#pragma once

#include "model/textos_numero.h"
#include "persistence/lineas_perfil.h"
#include "persistence/perfiles.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
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

/// The keys of a table, in the order of its rows.
template <const auto& tabla>
inline constexpr auto clavesDe = std::apply(
    [](const auto&... campo) { return std::array{campo.clave...}; },  // untested: only the compiler runs it
    tabla);

/// What a section holds for some rows, in their order.
using VistaTextos = std::span<const std::optional<std::string_view>>;

/// The same for all rows of a table.
template <const auto& tabla>
using Textos = std::array<std::optional<std::string_view>, clavesDe<tabla>.size()>;

/// Good until the file is asked for anything else.
template <const auto& tabla>
Textos<tabla> textosDe(const ArchivoPerfil& archivo, std::string_view seccion) {
    static_assert(sonLlanas(clavesDe<tabla>));
    Textos<tabla> textos;
    archivo.buscar(seccion, clavesDe<tabla>, textos);
    return textos;
}

/// That of the row with a key.
template <const auto& tabla>
const std::optional<std::string_view>& textoDe(const Textos<tabla>& textos, std::string_view clave) {
    return textos.at(
        static_cast<std::size_t>(std::ranges::find(clavesDe<tabla>, clave) - clavesDe<tabla>.begin()));
}

/// Reads all rows of a table, in their order, the first of them from the first text.
template <const auto& tabla, class Objeto>
void leerCampos(VistaTextos textos, Objeto& objeto) {
    const auto leer = [&]<class A, class F>(const Campo<A, F>& campo,
                                            const std::optional<std::string_view>& texto) {
        auto& valor = std::invoke(campo.acceso, objeto);
        using Valor = std::remove_cvref_t<decltype(valor)>;
        using Suya = FormaDe<F, Valor>;
        if (texto)
            Suya::leer(*texto, valor);
        else if (campo.predeterminado)
            Suya::leer(*campo.predeterminado, valor);
        else
            Suya::leer(Forma<Valor>::texto(valor), valor);
    };
    auto texto = textos.begin();
    std::apply([&](const auto&... campo) { (leer(campo, *texto++), ...); }, tabla);
}

template <const auto& tabla, class Objeto>
void leerCampos(const ArchivoPerfil& archivo, std::string_view seccion, Objeto& objeto) {
    leerCampos<tabla>(textosDe<tabla>(archivo, seccion), objeto);
}

/// Writes all rows of a table, in their order.
template <const auto& tabla, class Objeto>
void escribirCampos(ArchivoPerfil& archivo, std::string_view seccion, const Objeto& objeto) {
    static_assert(sonLlanas(clavesDe<tabla>));
    const auto valor = [&]<class A, class F>(const Campo<A, F>& campo) {
        const auto& suyo = std::invoke(campo.acceso, objeto);
        using Valor = std::remove_cvref_t<decltype(suyo)>;
        return ValorPerfil{campo.clave, FormaDe<F, Valor>::texto(suyo)};
    };
    std::apply([&](const auto&... campo) { archivo.guardar(seccion, std::array{valor(campo)...}); }, tabla);
}

}  // namespace bosquel
