#include "cli/console_text.h"

#include <algorithm>
#include <utility>

#include "core/code_page.h"

namespace golf {
namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kFirstHigh = 0xD800, kFirstLow = 0xDC00, kAfterHalves = 0xE000;
constexpr char32_t kFirstPair = 0x10000;
constexpr char16_t kEndKey = 0x1A;  // Ctrl+Z at the beginning of a line ends the input

bool IsHigh(char32_t unit) { return unit >= kFirstHigh && unit < kFirstLow; }
bool IsLow(char32_t unit) { return unit >= kFirstLow && unit < kAfterHalves; }

bool IsContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

// True if the text could be the beginning of one character.
bool IsCut(std::string_view utf8) {
  return utf8.size() < Utf8Length(utf8[0]) &&
         std::all_of(utf8.begin() + 1, utf8.end(), IsContinuation);
}

void AppendUtf16(std::u16string& out, char32_t code) {
  if (code >= kFirstPair) {
    out += static_cast<char16_t>(kFirstHigh + ((code - kFirstPair) >> 10));
    out += static_cast<char16_t>(kFirstLow + ((code - kFirstPair) & 0x3FF));
  } else {
    out += static_cast<char16_t>(IsHigh(code) || IsLow(code) ? kReplacement : code);
  }
}

}  // namespace

std::u16string TakeUtf16(std::string_view& utf8) {
  std::u16string utf16;
  while (!utf8.empty() && !IsCut(utf8)) {
    const Utf8Character next = DecodeUtf8(utf8);
    AppendUtf16(utf16, next.length == 0 ? kReplacement : next.code);
    utf8.remove_prefix(std::max<std::size_t>(next.length, 1));
  }
  return utf16;
}

std::string TakeUtf8(std::u16string_view& utf16) {
  std::string utf8;
  while (!utf16.empty()) {
    const char32_t first = utf16[0];
    if (IsHigh(first) && utf16.size() == 1) break;
    const bool is_pair = IsHigh(first) && IsLow(utf16[1]);
    const bool is_half = !is_pair && (IsHigh(first) || IsLow(first));
    AppendUtf8(utf8, is_pair   ? kFirstPair + ((first - kFirstHigh) << 10) + (utf16[1] - kFirstLow)
                     : is_half ? kReplacement
                               : first);
    utf16.remove_prefix(is_pair ? 2 : 1);
  }
  return utf8;
}

ConsoleOutput::ConsoleOutput(Write write) : write_(std::move(write)) {
  setp(bytes_.data(), bytes_.data() + bytes_.size());
}

ConsoleOutput::int_type ConsoleOutput::overflow(int_type c) {
  if (sync() != 0) return traits_type::eof();
  return traits_type::eq_int_type(c, traits_type::eof()) ? traits_type::not_eof(c)
                                                         : sputc(traits_type::to_char_type(c));
}

int ConsoleOutput::sync() {
  std::string_view rest(pbase(), static_cast<std::size_t>(pptr() - pbase()));
  const std::u16string text = TakeUtf16(rest);
  std::copy(rest.begin(), rest.end(), bytes_.begin());
  setp(bytes_.data(), bytes_.data() + bytes_.size());
  pbump(static_cast<int>(rest.size()));
  return text.empty() || write_(text) ? 0 : -1;
}

ConsoleInput::ConsoleInput(Read read) : read_(std::move(read)) {}

ConsoleInput::int_type ConsoleInput::underflow() {
  const bool begins_line = bytes_.empty() || bytes_.back() == '\n';
  for (bytes_.clear(); bytes_.empty();) {
    const std::u16string more = read_();
    if (more.empty() || (begins_line && more[0] == kEndKey)) return traits_type::eof();
    half_ += more;
    std::u16string_view rest = half_;
    bytes_ = TakeUtf8(rest);
    half_ = rest;
  }
  setg(bytes_.data(), bytes_.data(), bytes_.data() + bytes_.size());
  return traits_type::to_int_type(bytes_[0]);
}

}  // namespace golf
