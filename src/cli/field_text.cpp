#include "cli/field_text.h"

#include <cmath>

#include "cli/plain_text.h"
#include "core/text.h"

namespace golf {
namespace {

std::string TextOf(const Field& field, const FieldValue& value) {
  const auto* bytes = std::get_if<std::string>(&value);
  if (bytes != nullptr && field.name.empty()) return HexText(*bytes);
  return Utf8FromText(ValueText(value));
}

std::string PlainTextOf(const Field& field, const FieldValue& value) {
  const auto* text = std::get_if<std::string>(&value);
  return text != nullptr && !field.name.empty() ? PlainCell(TrimRight(*text))
                                                : TextOf(field, value);
}

Json JsonOf(const Field& field, const FieldValue& value) {
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return *whole;
  if (const auto* single = std::get_if<float>(&value)) return JsonSingle(*single);
  if (std::holds_alternative<std::string>(value)) return TextOf(field, value);
  const double number = std::get<double>(value);
  return std::isfinite(number) ? Json(number) : Json(nullptr);
}

// Calls `visit(indexes)` for each element; the last index changes fastest.
template <class Visit>
void ForEachElement(const Field& field, Visit visit) {
  std::vector<int> indexes;
  for (std::size_t i = 0; i < field.rank; ++i) indexes.push_back(field.dimensions[i].base);
  while (true) {
    visit(indexes);
    std::size_t i = field.rank;
    while (i > 0) {
      const Dimension& dimension = field.dimensions[i - 1];
      if (++indexes[i - 1] < dimension.base + dimension.count) break;
      indexes[i - 1] = dimension.base;
      --i;
    }
    if (i == 0) return;
  }
}

FieldValue ValueAt(const Field& field, std::string_view record, const std::vector<int>& indexes) {
  return ReadFieldValue(field, record, field.OffsetOf(indexes));
}

Json NestedJson(const Field& field, std::string_view record, std::vector<int>& indexes) {
  const std::size_t level = indexes.size();
  if (level == field.rank) return JsonOf(field, ValueAt(field, record, indexes));
  Json array = Json::array();
  const Dimension& dimension = field.dimensions[level];
  for (int i = 0; i < dimension.count; ++i) {
    indexes.push_back(dimension.base + i);
    array.push_back(NestedJson(field, record, indexes));
    indexes.pop_back();
  }
  return array;
}

}  // namespace

Json FieldJson(const Field& field, std::string_view record) {
  std::vector<int> indexes;
  return NestedJson(field, record, indexes);
}

std::vector<std::string> ElementNames(const Field& field) {
  std::vector<std::string> names;
  ForEachElement(field, [&](const std::vector<int>& indexes) {
    const std::string list = IndexList(indexes);
    names.push_back(FieldLabel(field) + (list.empty() ? "" : "(" + list + ")"));
  });
  return names;
}

std::vector<std::string> ElementTexts(const Field& field, std::string_view record) {
  std::vector<std::string> texts;
  ForEachElement(field, [&](const std::vector<int>& indexes) {
    texts.push_back(TextOf(field, ValueAt(field, record, indexes)));
  });
  return texts;
}

Json ElementJson(const Field& field, std::string_view record, std::size_t nth) {
  return JsonOf(field, ReadFieldValue(field, record, field.OffsetOfNth(nth)));
}

std::vector<std::pair<std::string, std::string>> PlainLines(const Field& field,
                                                            std::string_view record) {
  std::vector<std::pair<std::string, std::string>> lines;
  if (field.name.empty() && field.rank == 0) {
    return {{FieldLabel(field), ShortHexText(record.substr(field.offset, field.width))}};
  }
  ForEachElement(field, [&](const std::vector<int>& indexes) {
    const bool new_line =
        lines.empty() ||
        (field.rank > 1 && indexes.back() == field.dimensions[field.rank - 1].base);
    const std::string text = PlainTextOf(field, ValueAt(field, record, indexes));
    if (!new_line) {
      lines.back().second += (field.type == FieldType::kText ? ", " : " ") + text;
      return;
    }
    const std::string first =
        field.rank > 1 ? "(" + IndexList({indexes.begin(), indexes.end() - 1}) + ")" : "";
    lines.emplace_back(FieldLabel(field) + first, text);
  });
  return lines;
}

}  // namespace golf
