#pragma once

#include <string>
#include <string_view>

namespace golf {

// Code page 1252 and UTF-8. Only the front ends and the platform seam convert; everything between
// them is 1252. The five bytes that the code page leaves undefined stand for U+0081, U+008D,
// U+008F, U+0090 and U+009D, so every byte comes back as it was.

std::string Utf8FromText(std::string_view text);

// A character that the code page does not have becomes "?". A byte that is no UTF-8 is taken as the
// 1252 character that it is.
std::string TextFromUtf8(std::string_view utf8);

}  // namespace golf
