#pragma once

#include <string>
#include <string_view>

namespace bosquel {

/// UTF-8 into Windows-1252, one byte a character. A character that has no byte, and each stray byte of
/// malformed UTF-8, becomes '?'.
std::string aWindows1252(std::string_view utf8);

/// Windows-1252 into UTF-8. The five bytes without a character of their own stand for the control character
/// of the same number, so that every text of bytes comes back as it was.
std::string aUtf8(std::string_view bytes);

/// The small letter of a capital, all Windows-1252 over; any other byte as it is.
char enMinuscula(char byte);

/// True for names that differ in case only.
bool mismoNombre(std::string_view uno, std::string_view otro);

}  // namespace bosquel
