#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace bosquel {

/// The decimal separator of the process's locale, asked afresh at every call: ',' or '.'.
char separadorDecimal();

/// True when the process runs under a Spanish locale: the words of locale booleans follow it.
bool idiomaEspanol();

/// A number as the files hold it, under the locale's separator: at most 15 significant digits of a 64-bit
/// real and 7 of a 32-bit one, no grouping, plain from 1E-5 up to below 1E+15 (1E+7 for 32 bits), with an
/// exponent ("4,846634E-12") outside. An exact half rounds away from zero, as in the formats below. Minus
/// zero is "0". An infinite value or a NaN gives "0".
std::string textoReal(double valor);
std::string textoReal(float valor);
std::string textoEntero(std::int32_t valor);

/// A number read from a file under the locale's rule: blanks around it come off, the locale's separator is
/// the decimal sign, the other one groups and is dropped. Nothing for a text that is no number, or one out
/// of range.
std::optional<double> realDeTexto(std::string_view texto);

/// The same, rounded half to even; nothing if the whole number does not fit.
std::optional<std::int16_t> entero16DeTexto(std::string_view texto);
std::optional<std::int32_t> entero32DeTexto(std::string_view texto);

/// A number typed into a dialog: the last "," or "." is the decimal sign under any locale, the others group.
std::optional<double> realTecleado(std::string_view texto);

/// A number typed into a field that takes digits only: whatever "," and "." it shows are grouping.
std::optional<double> enteroTecleado(std::string_view texto);

/// "###,##0.00" and "###,##0" under the locale: thousands grouped by the other one of "," and
/// ".", an exact half rounded away from zero. What is no finite number gives the text of 0.
std::string formatoMetros(double valor);
std::string formatoEntero(double valor);
/// "0.00": as the first of them, without grouping.
std::string formatoSinGrupos(double valor);

/// Every "," turned into ".", and every "." into the locale's separator.
std::string UnificarFormato(std::string_view texto);
std::string AplicarFormato(std::string_view texto);

}  // namespace bosquel
