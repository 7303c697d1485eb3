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

char ByteOf(char32_t code) {
  const auto high = std::find(kHighCodes.begin(), kHighCodes.end(), code);
  if (high != kHighCodes.end()) return static_cast<char>(0x80 + (high - kHighCodes.begin()));
  const bool itself = code < 0x80 || (code >= 0xA0 && code <= 0xFF);
  return itself ? static_cast<char>(code) : '?';
}

}  // namespace

std::size_t Utf8Length(char lead) {
  const auto byte = static_cast<unsigned char>(lead);
  if (byte < 0xC2 || byte > 0xF4) return 1;
  return byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : 2;
}

Utf8Character DecodeUtf8(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text[0]);
  if (lead < 0x80) return {lead, 1};
  const std::size_t length = Utf8Length(text[0]);
  if (length == 1 || text.size() < length) return {0, 0};
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

void AppendUtf8(std::string& out, char32_t code) {
  if (code < 0x80) {
    out += static_cast<char>(code);
  } else if (code < 0x800) {
    out += static_cast<char>(0xC0 | (code >> 6));
    out += static_cast<char>(0x80 | (code & 0x3F));
  } else {
    if (code < 0x10000) {
      out += static_cast<char>(0xE0 | (code >> 12));
    } else {
      out += static_cast<char>(0xF0 | (code >> 18));
      out += static_cast<char>(0x80 | ((code >> 12) & 0x3F));
    }
    out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (code & 0x3F));
  }
}

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
    const Utf8Character decoded = DecodeUtf8(utf8);
    text += decoded.length == 0 ? utf8[0] : ByteOf(decoded.code);
    utf8.remove_prefix(std::max<std::size_t>(decoded.length, 1));
  }
  return text;
}

}  // namespace golf
