#include "history/place_code.h"

#include <algorithm>
#include <cstring>

namespace golf {
namespace {

// The fewest equal bytes that get a fill operation.
constexpr std::size_t kShortestFill = 8;
// The bytes that are compared at once: by the processor, and by a call of the library.
constexpr std::size_t kWord = sizeof(std::uint64_t);
constexpr std::size_t kBlock = 128;

void AppendCode(std::string& to, PlaceCode code, std::size_t count) {
  to += static_cast<char>(code);
  AppendNumber(to, count);
}

std::uint64_t LoadWord(std::string_view bytes, std::size_t at) {
  std::uint64_t word;
  std::memcpy(&word, bytes.data() + at, kWord);
  return word;
}

// Both functions return the end of the range from `at` on in which all bytes of `a` and `b` are
// equal, or all are different. The range ends with the shorter text.
std::size_t EndOfEqual(std::string_view a, std::string_view b, std::size_t at) {
  const std::size_t both = std::min(a.size(), b.size());
  while (at + kBlock <= both && std::memcmp(a.data() + at, b.data() + at, kBlock) == 0) {
    at += kBlock;
  }
  while (at + kWord <= both && LoadWord(a, at) == LoadWord(b, at)) at += kWord;
  while (at < both && a[at] == b[at]) ++at;
  return at;
}

std::size_t EndOfDifferent(std::string_view a, std::string_view b, std::size_t at) {
  constexpr std::uint64_t kOnes = 0x0101010101010101;
  constexpr std::uint64_t kTops = 0x8080808080808080;
  const std::size_t both = std::min(a.size(), b.size());
  for (; at + kWord <= both; at += kWord) {
    const std::uint64_t difference = LoadWord(a, at) ^ LoadWord(b, at);
    const bool has_equal_byte = ((difference - kOnes) & ~difference & kTops) != 0;
    if (has_equal_byte) break;
  }
  while (at < both && a[at] != b[at]) ++at;
  return at;
}

// Returns the number of bytes from `at` on that equal the byte at `at`. They are found by comparing
// each byte with the next one.
std::size_t FillLength(std::string_view bytes, std::size_t at) {
  return EndOfEqual(bytes, bytes.substr(1), at) + 1 - at;
}

// Codes bytes that do not change, or that only the longer side has.
void AppendBytes(std::string& to, std::string_view bytes, PlaceCode plain, PlaceCode filled) {
  std::size_t literal = 0;
  const auto flush = [&](std::size_t end) {
    if (end == literal) return;
    AppendCode(to, plain, end - literal);
    to += bytes.substr(literal, end - literal);
  };
  for (std::size_t at = 0; at < bytes.size();) {
    at = EndOfDifferent(bytes, bytes.substr(1), at);
    const std::size_t fill = FillLength(bytes, at);
    if (fill >= kShortestFill) {
      flush(at);
      AppendCode(to, filled, fill);
      to += bytes[at];
      literal = at + fill;
    }
    at += fill;
  }
  flush(bytes.size());
}

// Codes bytes that all change.
void AppendPair(std::string& to, std::string_view old_bytes, std::string_view new_bytes) {
  std::size_t literal = 0;
  const auto flush = [&](std::size_t end) {
    if (end == literal) return;
    AppendCode(to, PlaceCode::kPair, end - literal);
    to += old_bytes.substr(literal, end - literal);
    to += new_bytes.substr(literal, end - literal);
  };
  for (std::size_t at = 0; at < old_bytes.size();) {
    const std::size_t fill = std::min(FillLength(old_bytes, at), FillLength(new_bytes, at));
    if (fill >= kShortestFill) {
      flush(at);
      AppendCode(to, PlaceCode::kPairFill, fill);
      to += old_bytes[at];
      to += new_bytes[at];
      literal = at + fill;
    }
    at += fill;
  }
  flush(old_bytes.size());
}

}  // namespace

void AppendNumber(std::string& to, std::uint64_t number) {
  for (; number >= 0x80; number >>= 7) to += static_cast<char>(number | 0x80);
  to += static_cast<char>(number);
}

void AppendText(std::string& to, std::string_view text) {
  AppendNumber(to, text.size());
  to += text;
}

bool AppendPlace(std::string& to, std::string_view old_bytes, std::string_view new_bytes) {
  const std::size_t both = std::min(old_bytes.size(), new_bytes.size());
  const std::string_view old_part = old_bytes.substr(0, both);
  const std::string_view new_part = new_bytes.substr(0, both);
  if (old_bytes.size() == new_bytes.size() && old_part == new_part) return false;
  for (std::size_t at = 0; at < both;) {
    const std::size_t same = EndOfEqual(old_part, new_part, at);
    AppendBytes(to, old_part.substr(at, same - at), PlaceCode::kSame, PlaceCode::kSameFill);
    at = EndOfDifferent(old_part, new_part, same);
    if (at > same) {
      AppendPair(to, old_part.substr(same, at - same), new_part.substr(same, at - same));
    }
  }
  AppendBytes(to, (old_bytes.size() > both ? old_bytes : new_bytes).substr(both), PlaceCode::kOne,
              PlaceCode::kOneFill);
  return true;
}

std::uint64_t CodeReader::Number() {
  const bool is_short = !rest_.empty() && static_cast<unsigned char>(rest_.front()) < 0x80;
  if (is_short) {
    const auto byte = static_cast<unsigned char>(rest_.front());
    rest_.remove_prefix(1);
    return byte;
  }
  std::uint64_t number = 0;
  for (int shift = 0; shift < 64; shift += 7) {
    if (rest_.empty()) break;
    const auto byte = static_cast<unsigned char>(rest_.front());
    rest_.remove_prefix(1);
    number |= std::uint64_t{byte & 0x7fu} << shift;
    if (byte < 0x80) return number;
  }
  Fail();
  return 0;
}

std::uint64_t CodeReader::Number(std::uint64_t most) {
  const std::uint64_t number = Number();
  if (number <= most) return number;
  Fail();
  return 0;
}

std::string_view CodeReader::Take(std::size_t size) {
  if (size > rest_.size()) {
    Fail();
    return {};
  }
  const std::string_view taken = rest_.substr(0, size);
  rest_.remove_prefix(size);
  return taken;
}

std::string_view CodeReader::Text() { return Take(Number(rest_.size())); }

void CodeReader::Place(std::size_t old_size, std::size_t new_size, PlaceParts parts,
                       HistoryPlace& into) {
  into.old_bytes.resize(old_size);
  into.new_bytes.resize(new_size);
  into.changed.clear();
  const std::size_t both = std::min(old_size, new_size);
  const std::size_t all = std::max(old_size, new_size);
  char* const longer = old_size > new_size ? into.old_bytes.data() : into.new_bytes.data();
  for (std::size_t at = 0; !failed_ && at < all;) {
    const bool is_pair = at < both;
    const auto code = static_cast<PlaceCode>(Number());
    const std::size_t count = Number((is_pair ? both : all) - at);
    const bool fills =
        code == PlaceCode::kSameFill || code == PlaceCode::kPairFill || code == PlaceCode::kOneFill;
    const bool is_same = code == PlaceCode::kSame || code == PlaceCode::kSameFill;
    const bool is_one = code == PlaceCode::kOne || code == PlaceCode::kOneFill;
    if (count == 0 || is_one == is_pair || code > PlaceCode::kOneFill) return Fail();
    const auto put = [&](char* to, std::string_view bytes) {
      if (bytes.empty()) return;
      if (fills) {
        std::memset(to + at, bytes.front(), count);
      } else {
        std::memcpy(to + at, bytes.data(), count);
      }
    };
    const std::string_view first = Take(fills ? 1 : count);
    if (!is_same) {
      put(is_pair ? into.old_bytes.data() : longer, first);
      if (is_pair) put(into.new_bytes.data(), Take(fills ? 1 : count));
      if (!into.changed.empty() && into.changed.back().End() == at) {
        into.changed.back().size += count;
      } else {
        into.changed.push_back({at, count});
      }
    } else if (parts == PlaceParts::kWhole) {
      put(into.old_bytes.data(), first);
      put(into.new_bytes.data(), first);
    }
    at += count;
  }
}

}  // namespace golf
