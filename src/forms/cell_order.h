#pragma once

#include <string>
#include <string_view>

namespace golf {

// Says how the cells of a column compare. kValue and kPlusBelowZero compare by value: a cell has a
// value if its text is a date or begins with a number. Cells without a value follow all others, in
// an ascending and in a descending sort.
enum class SortKind {
  kText,           // by the character codes of the texts in capitals
  kValue,          // by the value of a number or a date
  kPlusBelowZero,  // as kValue, but a number with "+", such as a plus handicap, is below zero
};

enum class SortOrder { kAscending, kDescending };

struct SortKey {
  int column = 0;
  SortOrder order = SortOrder::kAscending;
};

// Holds what a sort compares of one cell.
struct CellRank {
  bool has_value = false;
  double value = 0;
  std::string text;  // in capitals; used only if the cell has no value
};

// Returns the rank of a cell with this text. `date_format` is the format in which dates are
// written.
CellRank RankOf(std::string_view text, SortKind kind, std::string_view date_format);

// Returns a number below 0 if `a` comes before `b`, a number above 0 if it comes after, and 0 for a
// tie.
int Compare(const CellRank& a, const CellRank& b, SortOrder order);

}  // namespace golf
