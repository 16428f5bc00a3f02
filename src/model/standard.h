#pragma once

#include <optional>

namespace bosquel {

// The key filters of the number fields: the character that stands in the field for a typed one, or nothing
// for a refused one.

/// Digits alone.
std::optional<char32_t> FiltraEntero(char32_t tecla);

/// Digits, "," and "."; both signs give ",". There is no minus.
std::optional<char32_t> FiltraDecimal(char32_t tecla);

}  // namespace bosquel
