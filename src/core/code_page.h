#pragma once

#include <string>
#include <string_view>

namespace golf {

// These functions convert between code page 1252 and UTF-8. Only the front ends and the platform
// convert text. All other code uses code page 1252. The five bytes that the code page leaves
// undefined become U+0081, U+008D, U+008F, U+0090 and U+009D, so a conversion to UTF-8 and back
// keeps every byte.

std::string Utf8FromText(std::string_view text);

// Replaces a character that the code page lacks by "?". Copies a byte that is not valid UTF-8
// unchanged.
std::string TextFromUtf8(std::string_view utf8);

}  // namespace golf
