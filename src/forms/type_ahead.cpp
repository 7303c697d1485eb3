#include "forms/type_ahead.h"

#include <algorithm>
#include <string_view>

#include "core/text.h"

namespace golf {
namespace {

constexpr std::chrono::milliseconds kPause{1000};

bool Begins(const std::string& cell, const std::string& text) {
  const std::size_t first = std::min(cell.find_first_not_of(' '), cell.size());
  return EqualIgnoringCase(std::string_view(cell).substr(first, text.size()), text);
}

// Returns the first row with a cell that begins with the text, or 0. The search begins at
// `first_row` and continues from row 1 after the last row.
int Find(const Grid& grid, const std::string& text, int first_row) {
  for (int column = 0; column <= grid.columns(); ++column) {
    if (grid.IsHidden(column) || grid.cell_type(column) == CellType::kCheckBox) continue;
    for (int i = 0; i < grid.rows(); ++i) {
      const int row = (first_row - 1 + i) % grid.rows() + 1;
      if (Begins(grid.text(column, row), text)) return row;
    }
  }
  return 0;
}

}  // namespace

int TypeAhead::Type(const Grid& grid, char typed, std::chrono::milliseconds now) {
  if (!Continues(now)) text_.clear();
  last_ = now;
  text_ += typed;
  const int active = std::max(grid.active_row(), 1);
  const int next = grid.active_row() + 1;
  if (text_.size() == 1) return Find(grid, text_, next);
  const int found = Find(grid, text_, active);
  const bool repeats = text_.find_first_not_of(text_.front()) == std::string::npos;
  return found == 0 && repeats ? Find(grid, text_.substr(0, 1), next) : found;
}

bool TypeAhead::Continues(std::chrono::milliseconds now) const {
  return !text_.empty() && now - last_ <= kPause;
}

}  // namespace golf
