#include "outlets/export/result_rows.h"

#include <type_traits>
#include <variant>

#include "core/code_page.h"
#include "outlets/export/shown_value.h"
#include "outlets/field_values.h"

namespace golf {
namespace {

bool HasContent(const ResultValue& value) {
  const auto* const text = std::get_if<std::string>(&value);
  if (text != nullptr) return text->find_first_not_of(" 0") != std::string::npos;
  return std::visit(
      [](const auto& number) {
        if constexpr (std::is_arithmetic_v<std::decay_t<decltype(number)>>) return number != 0;
        return false;
      },
      value);
}

}  // namespace

void AddResultValue(ExportRow& row, const ResultValue& value) {
  if (const auto* const text = std::get_if<std::string>(&value)) {
    row.AddText(Utf8FromText(*text));
  } else if (const auto* const whole = std::get_if<std::int32_t>(&value)) {
    row.AddInteger(*whole);
  } else if (const auto* const single = std::get_if<float>(&value)) {
    AddRealOrNull(row, NumberOfSingle(*single));
  } else {
    AddRealOrNull(row, std::get<double>(value));
  }
}

void ResultRows::Part::Add(const ResultValue& value) {
  AddResultValue(values, value);
  has_content = has_content || HasContent(value);
}

ResultRows::Part& ResultRows::At(std::vector<Part>& parts, int position, int hole,
                                 std::optional<int> key) {
  const auto at = static_cast<std::size_t>(position);
  if (at == parts.size()) parts.push_back({hole, key, {}, false});
  return parts[at];
}

}  // namespace golf
