#pragma once

#include <string>
#include <string_view>

namespace golf {

// How the cells of a column compare. In the kinds that go by value, what is a date or begins with a
// number has one; cells without a value come behind all others, in either order of the sort.
enum class SortKind {
  kText,           // by the codes of the texts in capitals
  kValue,          // numbers and dates by value
  kPlusBelowZero,  // as kValue, but a number with "+", such as a plus handicap, is below zero
};

enum class SortOrder { kAscending, kDescending };

struct SortKey {
  int column = 0;
  SortOrder order = SortOrder::kAscending;
};

// What a cell counts as in a sort.
struct CellRank {
  bool has_value = false;
  double value = 0;
  std::string text;  // in capitals; serves where there is no value
};

CellRank RankOf(std::string_view text, SortKind kind, std::string_view date_format);

// Below 0 where `a` comes first, 0 for a tie.
int Compare(const CellRank& a, const CellRank& b, SortOrder order);

}  // namespace golf
