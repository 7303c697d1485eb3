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
    rank.has_value = ParseDay(text, date_format, rank.value) || ReadLeadingNumber(text, rank.value);
    if (plus) rank.value = -std::abs(rank.value);
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
