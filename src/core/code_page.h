#pragma once

#include <string>
#include <string_view>

namespace golf {

// Converts between code page 1252 and UTF-8. Only the front ends and the platform convert; all
// text between them is 1252. The five bytes that the code page leaves undefined become U+0081,
// U+008D, U+008F, U+0090 and U+009D, so every byte survives the way to UTF-8 and back.

std::string Utf8FromText(std::string_view text);

// A character that the code page lacks becomes "?". A byte that is not valid UTF-8 is kept as a
// 1252 character.
std::string TextFromUtf8(std::string_view utf8);

}  // namespace golf
