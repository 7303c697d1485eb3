#include "outlets/field_values.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <iterator>
#include <variant>

#include "core/date_value.h"
#include "core/number_text.h"
#include "core/text.h"

namespace golf {
namespace {

// The fields that hold a handicap or an index in strokes. A negative one is a plus handicap.
constexpr std::string_view kHandicaps[] = {"EventHandicap", "Handicap",          "HandicapPlayed",
                                           "Index",         "TourGrossHandicap", "TourIndex"};

bool IsHandicap(const Field& field) {
  return std::find(std::begin(kHandicaps), std::end(kHandicaps), field.name) !=
         std::end(kHandicaps);
}

template <class T>
std::string NumberName(T value) {
  if constexpr (std::is_floating_point_v<T>) {
    if (!std::isfinite(value)) return "";
  }
  std::array<char, 400> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  return {buffer.data(), end.ptr};
}

}  // namespace

std::string FieldLabel(const Field& field) {
  return field.name.empty() ? "bytes@" + std::to_string(field.offset) : std::string(field.name);
}

std::vector<int> IndexesOf(const Field& field, std::size_t nth) {
  std::vector<int> indexes(field.rank);
  for (std::size_t i = field.rank; i-- > 0;) {
    const auto count = static_cast<std::size_t>(field.dimensions[i].count);
    indexes[i] = field.dimensions[i].base + static_cast<int>(nth % count);
    nth /= count;
  }
  return indexes;
}

std::string IndexList(const std::vector<int>& indexes) {
  std::string list;
  for (const int index : indexes) list += (list.empty() ? "" : ",") + std::to_string(index);
  return list;
}

std::string ElementName(const Field& field, std::size_t nth) {
  const std::string list = IndexList(IndexesOf(field, nth));
  return FieldLabel(field) + (list.empty() ? "" : "(" + list + ")");
}

std::string HexText(std::string_view bytes) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string hex;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    hex += kDigits[byte >> 4];
    hex += kDigits[byte & 15];
  }
  return hex;
}

std::string ShortHexText(std::string_view bytes) {
  constexpr std::size_t kMostBytes = 24;
  if (bytes.size() <= kMostBytes) return HexText(bytes);
  return HexText(bytes.substr(0, kMostBytes)) + "... (" + std::to_string(bytes.size()) + " bytes)";
}

std::string ValueText(const FieldValue& value) {
  if (const auto* text = std::get_if<std::string>(&value)) return std::string(TrimRight(*text));
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return NumberName(*whole);
  if (const auto* single = std::get_if<float>(&value)) return NumberName(*single);
  return NumberName(std::get<double>(value));
}

double NumberOfSingle(float single) {
  if (!std::isfinite(single)) return single;
  char digits[32];
  const auto end = std::to_chars(digits, std::end(digits), single);
  double number = 0;
  std::from_chars(digits, end.ptr, number);
  return number;
}

std::string ShownElement(const Field& field, std::string_view record, std::size_t nth,
                         std::string_view date_format) {
  const std::size_t at = field.OffsetOfNth(nth);
  if (field.name.empty()) return ShortHexText(record.substr(at, field.width));
  const FieldValue value = ReadFieldValue(field, record, at);
  if (field.type == FieldType::kText) {
    std::string text = std::get<std::string>(value);
    std::erase(text, '\0');
    return '"' + std::string(TrimRight(text)) + '"';
  }
  if (field.type == FieldType::kDate) {
    const std::string day = FormatDay(std::get<double>(value), date_format);
    if (std::get<double>(value) != 0 && !day.empty()) return day;
  }
  if (field.type == FieldType::kCurrency) {
    return FormatNumber(static_cast<double>(std::get<std::int64_t>(value)) / kCurrencyScale,
                        "0.00##");
  }
  if (!IsHandicap(field)) return ValueText(value);
  std::string number = std::holds_alternative<float>(value)
                           ? FormatNumber(std::get<float>(value), "0.####")
                           : ValueText(value);
  if (number.ends_with('.')) number.pop_back();
  if (number.starts_with('-')) number.front() = '+';
  return number;
}

}  // namespace golf
