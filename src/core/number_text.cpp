#include "core/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <vector>

#include "core/numbered_error.h"

namespace golf {
namespace {

// This is added to a handicap before it is rounded, since a float may be slightly too low, for
// example 12.49999 instead of 12.5.
constexpr double kHandicapNudge = 0.00001;

// Holds the number 0.digits x 10^point, without leading or trailing zeros. The digits of zero are
// empty.
struct Decimal {
  std::string digits;
  int point = 0;
};

void DropTrailingZeros(Decimal& decimal) {
  decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
  if (decimal.digits.empty()) decimal.point = 0;
}

Decimal DecimalFromScientific(std::string_view text) {
  const std::size_t e = text.find('e');
  Decimal decimal;
  for (const char c : text.substr(0, e)) {
    if (c >= '0' && c <= '9') decimal.digits += c;
  }
  const std::string_view exponent = text.substr(text[e + 1] == '+' ? e + 2 : e + 1);
  std::from_chars(exponent.data(), exponent.data() + exponent.size(), decimal.point);
  ++decimal.point;
  DropTrailingZeros(decimal);
  return decimal;
}

template <class T>
Decimal ShortestDecimal(T magnitude) {
  std::array<char, 64> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                 std::chars_format::scientific);
  return DecimalFromScientific({buffer.data(), static_cast<std::size_t>(end.ptr - buffer.data())});
}

Decimal WholeDecimal(std::uint64_t magnitude) {
  Decimal decimal;
  if (magnitude == 0) return decimal;
  decimal.digits = std::to_string(magnitude);
  decimal.point = static_cast<int>(decimal.digits.size());
  return decimal;
}

// Rounds to `places` digits after the decimal point, half away from zero.
void RoundTo(Decimal& decimal, int places) {
  const int kept = decimal.point + places;
  if (kept >= static_cast<int>(decimal.digits.size())) return;
  if (kept < 0) {
    decimal = {};
    return;
  }
  const auto cut = static_cast<std::size_t>(kept);
  const bool up = decimal.digits[cut] >= '5';
  decimal.digits.resize(cut);
  while (up && !decimal.digits.empty() && decimal.digits.back() == '9') decimal.digits.pop_back();
  if (up && !decimal.digits.empty()) {
    ++decimal.digits.back();
  } else if (up) {
    decimal.digits = "1";
    ++decimal.point;
  }
  DropTrailingZeros(decimal);
}

char DigitAt(const Decimal& decimal, int place) {  // place 0 is the units digit
  const int index = decimal.point - 1 - place;
  const bool held = index >= 0 && index < static_cast<int>(decimal.digits.size());
  return held ? decimal.digits[static_cast<std::size_t>(index)] : '0';
}

// Holds one parsed section of a format pattern.
struct Section {
  std::string before;
  std::string behind;
  int least_whole = 0;   // the least number of digits before the point
  int places = 0;        // the greatest number of digits after the point
  int least_places = 0;  // the least number of digits after the point
  bool point = false;
  bool grouped = false;
  bool digits = false;  // false if the section consists of text only
};

void TakeDigit(Section& section, char mark, bool fraction) {
  if (!fraction) {
    if (mark == '0' || section.least_whole > 0) ++section.least_whole;
    return;
  }
  ++section.places;
  if (mark == '0') section.least_places = section.places;
}

Section ParseSection(std::string_view pattern) {
  Section section;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    const char c = pattern[i];
    if (c == '0' || c == '#') {
      section.digits = true;
      TakeDigit(section, c, section.point);
    } else if (c == '.' && !section.point) {
      section.digits = section.point = true;
    } else if (c == ',' && section.digits) {
      section.grouped = true;
    } else if (c == '"') {
      const std::size_t end = std::min(pattern.find('"', i + 1), pattern.size());
      (section.digits ? section.behind : section.before) += pattern.substr(i + 1, end - i - 1);
      i = end;
    } else {
      (section.digits ? section.behind : section.before) += c;
    }
  }
  return section;
}

std::vector<std::string_view> SplitSections(std::string_view pattern) {
  std::vector<std::string_view> sections;
  bool quoted = false;
  std::size_t start = 0;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    if (pattern[i] == '"') quoted = !quoted;
    if (pattern[i] != ';' || quoted) continue;
    sections.push_back(pattern.substr(start, i - start));
    start = i + 1;
  }
  sections.push_back(pattern.substr(start));
  return sections;
}

std::string Digits(const Decimal& decimal, const Section& section) {
  std::string text;
  for (int place = std::max(decimal.point, section.least_whole) - 1; place >= 0; --place) {
    text += DigitAt(decimal, place);
    if (section.grouped && place > 0 && place % 3 == 0) text += ',';
  }
  if (section.point) text += '.';
  const int held = static_cast<int>(decimal.digits.size()) - decimal.point;
  const int shown = std::clamp(held, section.least_places, section.places);
  for (int place = 1; place <= shown; ++place) text += DigitAt(decimal, -place);
  return text;
}

std::string Formatted(Decimal decimal, bool negative, std::string_view pattern) {
  const auto sections = SplitSections(pattern);
  std::size_t chosen = 0;
  if (negative && sections.size() > 1) chosen = 1;
  if (decimal.digits.empty() && sections.size() > 2) chosen = 2;
  const Section section = ParseSection(sections[chosen]);
  RoundTo(decimal, section.places);
  const std::string sign = negative && chosen == 0 ? "-" : "";
  const std::string digits = section.digits ? Digits(decimal, section) : "";
  return sign + section.before + digits + section.behind;
}

template <class T>
std::string FormatFloat(T value, std::string_view pattern) {
  if (std::isnan(value)) return "NaN";
  if (std::isinf(value)) return value < 0 ? "-Infinity" : "Infinity";
  return Formatted(ShortestDecimal(std::abs(value)), value < 0, pattern);
}

template <class Int>
Int RoundTo(double value) {
  const double whole = std::nearbyint(value);
  const bool fits =
      whole >= std::numeric_limits<Int>::min() && whole <= std::numeric_limits<Int>::max();
  if (!fits) throw NumberedError(ErrorNumber::kOverflow, "A number is too large for its place.");
  return static_cast<Int>(whole);
}

}  // namespace

double LeadingNumber(std::string_view text) { return ReadLeadingNumber(text).value_or(0); }

std::optional<double> ReadLeadingNumber(std::string_view text) {
  const std::size_t start = text.find_first_not_of(' ');
  if (start == std::string_view::npos) return std::nullopt;
  text.remove_prefix(start);
  const bool negative = text[0] == '-';
  if (negative || text[0] == '+') text.remove_prefix(1);
  const bool begins = !text.empty() && (text[0] == '.' || (text[0] >= '0' && text[0] <= '9'));
  double magnitude = 0;
  if (!begins ||
      std::from_chars(text.data(), text.data() + text.size(), magnitude).ec != std::errc()) {
    return std::nullopt;
  }
  return negative ? -magnitude : magnitude;
}

std::optional<std::int64_t> ReadWholeNumber(std::string_view text) {
  std::int64_t value = 0;
  const char* end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, value);
  const bool whole = read.ec == std::errc() && read.ptr == end;
  return whole ? std::optional(value) : std::nullopt;
}

std::string NumberText(std::int64_t value) {
  std::string text = value < 0 ? "" : " ";
  return text += std::to_string(value);
}

std::string FormatNumber(double value, std::string_view pattern) {
  return FormatFloat(value, pattern);
}

std::string FormatNumber(float value, std::string_view pattern) {
  return FormatFloat(value, pattern);
}

std::string FormatNumber(std::int64_t value, std::string_view pattern) {
  const bool negative = value < 0;
  const auto magnitude = static_cast<std::uint64_t>(value);
  return Formatted(WholeDecimal(negative ? 0 - magnitude : magnitude), negative, pattern);
}

std::string FormatPlusHandicap(double value, bool decimals) {
  return FormatNumber(value + kHandicapNudge, decimals ? "0.00;+0.00" : "0;+0");
}

std::string FormatSignedHandicap(double value, bool decimals) {
  return FormatNumber(value + kHandicapNudge, decimals ? "0.00;-0.00" : "0;-0");
}

std::int16_t RoundToInt16(double value) { return RoundTo<std::int16_t>(value); }
std::int32_t RoundToInt32(double value) { return RoundTo<std::int32_t>(value); }

std::int16_t CheckedInt16(std::int64_t value) {
  return RoundTo<std::int16_t>(static_cast<double>(value));
}

float CheckedSingle(double value) {
  const auto single = static_cast<float>(value);
  if (std::isinf(single) && std::isfinite(value)) {
    throw NumberedError(ErrorNumber::kOverflow, "A number is too large for its place.");
  }
  return single;
}

}  // namespace golf
