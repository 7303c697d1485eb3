#include "forms/grid_sort.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "core/number_text.h"
#include "core/numbered_error.h"
#include "core/text.h"

namespace golf {

Grid& GridSorter::GridToSort() const {
  if (grid_ == nullptr) {
    throw NumberedError(ErrorNumber::kBadCall, "There is no grid to sort.");
  }
  return *grid_;
}

void GridSorter::Sort(const SortKeys& keys) {
  Grid& grid = GridToSort();
  keys_ = keys;
  std::vector<SortKey> used;
  std::copy_if(keys.begin(), keys.end(), std::back_inserter(used),
               [](const SortKey& key) { return key.column > 0; });
  const int last = last_row_ < 1 ? grid.rows() : std::min(last_row_, grid.rows());
  last_row_ = 0;
  grid.SortRows(used, last, state_->DateFormat);
}

const SortKey& GridSorter::Key(int i) const {
  if (i < 0 || i >= static_cast<int>(keys_.size())) {
    throw NumberedError(ErrorNumber::kSubscript, "A sort has three keys.");
  }
  return keys_[static_cast<std::size_t>(i)];
}

std::int16_t GridSorter::ColumnSorted(int i) const {
  return CheckedInt16(std::max(Key(i).column, 0));
}

std::int16_t GridSorter::ColumnSortedHow(int i) const {
  return Key(i).order == SortOrder::kDescending ? -1 : 0;
}

void GridSorter::CalculatePositions(int first_row, int last_row, PositionMode mode) {
  if (first_row > last_row) return;
  const Grid& grid = GridToSort();
  const auto group_of = [&](int row) { return grid.text(ColumnSorted(0), row); };
  const auto key_of = [&](int row) {
    if (mode == PositionMode::kOneKey) return group_of(row);
    return group_of(row) + grid.text(ColumnSorted(1), row);
  };
  const auto row_of = [&](std::size_t n) { return first_row + static_cast<int>(n); };
  const auto tie = [&](std::size_t a, std::size_t b) {
    return EqualIgnoringCase(key_of(row_of(a)), key_of(row_of(b)));
  };
  const auto same_group = [&](std::size_t a, std::size_t b) {
    return mode != PositionMode::kGroups ||
           EqualIgnoringCase(group_of(row_of(a)), group_of(row_of(b)));
  };
  places_ = NumberPlaces(static_cast<std::size_t>(last_row - first_row) + 1, tie, same_group);
}

int GridSorter::At(const std::vector<int>& places, int n) {
  return n < 1 || n > static_cast<int>(places.size()) ? 0 : places[static_cast<std::size_t>(n) - 1];
}

}  // namespace golf
