#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "core/shared_state.h"
#include "forms/grid.h"
#include "scoring/places.h"

namespace golf {

// Holds up to three keys, the most important first. An entry with a column below 1 is not used:
// column 0 contains the key of a record, and no grid is sorted by it.
using SortKeys = std::array<SortKey, 3>;

// Says which rows of a sorted grid tie, without regard to case. With kOneKey, rows tie if their
// texts in the column of the first key are equal. With kTwoKeys and kGroups, rows tie if the joined
// texts of the first two keys are equal. With kGroups, the text of the first key is also the name
// of the row's group.
enum class PositionMode : int { kOneKey = 0, kTwoKeys = 1, kGroups = 11 };

// Sorts a grid and then numbers its rows. Rows that tie share a place. The dialog GridSort uses a
// GridSorter; other code can sort with one directly, without the dialog.
class GridSorter {
 public:
  // Reads dates in cells in the date format of the shared state.
  explicit GridSorter(const SharedState& state) : state_(&state) {}

  // Sets the grid. It must outlive its use by this object.
  void SetGridToSort(Grid& grid) { grid_ = &grid; }
  // Returns the grid. Raises error 5 if none is set, as do all members that use the grid.
  Grid& GridToSort() const;

  // Returns the last row of the next sort. A value below 1 means the last row of the grid.
  int LastRowToSort() const { return last_row_; }
  void SetLastRowToSort(int row) { last_row_ = row; }

  // Sorts the rows and resets LastRowToSort to 0.
  void Sort(const SortKeys& keys);
  // These return a key of the last sort, for i from 0 to 2: its column, 0 if there is no such key,
  // and its order, 0 for ascending or -1 for descending. They raise error 9 for any other i.
  std::int16_t ColumnSorted(int i) const;
  std::int16_t ColumnSortedHow(int i) const;

  // Numbers the rows in their order. With kGroups, PositionNumber122446 starts again at 1 in each
  // group, while PositionNumber122334 continues. Changes nothing if `first_row` is above
  // `last_row`.
  void CalculatePositions(int first_row, int last_row, PositionMode mode);
  // These return the place of the n-th numbered row, with n from 1: without gaps after a tie, or
  // with gaps. They return 0 if that row was not numbered.
  int PositionNumber122334(int n) const { return At(places_.dense, n); }
  int PositionNumber122446(int n) const { return At(places_.competition, n); }

 private:
  const SortKey& Key(int i) const;
  static int At(const std::vector<int>& places, int n);

  const SharedState* state_;
  Grid* grid_ = nullptr;
  int last_row_ = 0;
  SortKeys keys_{};
  Places places_;
};

}  // namespace golf
