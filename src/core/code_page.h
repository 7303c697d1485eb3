#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace golf {

// Programs such as Excel read a file as UTF-8 if it begins with this mark.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// These functions convert between code page 1252 and UTF-8. Only the front ends and the platform
// convert text. All other code uses code page 1252. The five bytes that the code page leaves
// undefined become U+0081, U+008D, U+008F, U+0090 and U+009D, so a conversion to UTF-8 and back
// keeps every byte.

std::string Utf8FromText(std::string_view text);

// Replaces a character that the code page lacks by "?". Copies a byte that is not valid UTF-8
// unchanged.
std::string TextFromUtf8(std::string_view utf8);

struct Utf8Character {
  char32_t code;
  std::size_t length;  // in bytes; 0 if the text does not begin with a character in UTF-8
};

// Returns the first character of a text that is not empty.
Utf8Character DecodeUtf8(std::string_view text);
// Returns the number of bytes of a character that begins with this byte; 1 if none does.
std::size_t Utf8Length(char lead);
void AppendUtf8(std::string& out, char32_t code);

}  // namespace golf
