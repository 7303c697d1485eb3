#include "core/code_page.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace golf {
namespace {

// Contains the code points of the bytes 0x80 to 0x9F. Every other byte equals its code point.
constexpr std::array<char32_t, 32> kHighCodes = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t CodePoint(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte >= 0x80 && byte <= 0x9F ? kHighCodes[byte - 0x80u] : char32_t{byte};
}

void AppendUtf8(std::string& out, char32_t code) {
  if (code < 0x80) {
    out += static_cast<char>(code);
  } else if (code < 0x800) {
    out += static_cast<char>(0xC0 | (code >> 6));
    out += static_cast<char>(0x80 | (code & 0x3F));
  } else {
    out += static_cast<char>(0xE0 | (code >> 12));
    out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (code & 0x3F));
  }
}

char ByteOf(char32_t code) {
  const auto high = std::find(kHighCodes.begin(), kHighCodes.end(), code);
  if (high != kHighCodes.end()) return static_cast<char>(0x80 + (high - kHighCodes.begin()));
  const bool itself = code < 0x80 || (code >= 0xA0 && code <= 0xFF);
  return itself ? static_cast<char>(code) : '?';
}

struct Decoded {
  char32_t code;
  std::size_t length;  // in bytes; 0 if the text is not UTF-8
};

Decoded Decode(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text[0]);
  if (lead < 0x80) return {lead, 1};
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || text.size() < length) return {0, 0};
  char32_t code = lead & (0x7Fu >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const auto next = static_cast<unsigned char>(text[i]);
    if ((next & 0xC0) != 0x80) return {0, 0};
    code = (code << 6) | (next & 0x3Fu);
  }
  constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
  if (code < kLeast[length] || code > 0x10FFFF) return {0, 0};
  return {code, length};
}

}  // namespace

std::string Utf8FromText(std::string_view text) {
  std::string utf8;
  utf8.reserve(text.size());
  for (const char c : text) AppendUtf8(utf8, CodePoint(c));
  return utf8;
}

std::string TextFromUtf8(std::string_view utf8) {
  std::string text;
  text.reserve(utf8.size());
  while (!utf8.empty()) {
    const Decoded decoded = Decode(utf8);
    text += decoded.length == 0 ? utf8[0] : ByteOf(decoded.code);
    utf8.remove_prefix(std::max<std::size_t>(decoded.length, 1));
  }
  return text;
}

}  // namespace golf
