#include "forms/cell_order.h"

#include <cmath>

#include "core/date_value.h"
#include "core/number_text.h"
#include "core/text.h"

namespace golf {

CellRank RankOf(std::string_view text, SortKind kind, std::string_view date_format) {
  CellRank rank;
  const bool plus = kind == SortKind::kPlusBelowZero && text.find('+') != std::string_view::npos;
  if (kind != SortKind::kText) {
    const auto day = ParseDay(text, date_format);
    const auto value = day ? day : ReadLeadingNumber(text);
    rank.has_value = value.has_value();
    rank.value = plus ? -std::abs(value.value_or(0)) : value.value_or(0);
  }
  if (!rank.has_value) rank.text = (plus ? "-" : "") + UpperCase(text);
  return rank;
}

int Compare(const CellRank& a, const CellRank& b, SortOrder order) {
  if (a.has_value != b.has_value) return a.has_value ? -1 : 1;
  const int ascending =
      a.has_value ? (a.value > b.value) - (a.value < b.value) : a.text.compare(b.text);
  return order == SortOrder::kAscending ? ascending : (ascending < 0) - (ascending > 0);
}

}  // namespace golf
