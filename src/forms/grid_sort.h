#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "core/shared_state.h"
#include "forms/grid.h"
#include "scoring/places.h"

namespace golf {

// Up to three keys, the most important one first. A column below 1 is no key: column 0 is the one
// that carries a record's key and is not sorted by.
using SortKeys = std::array<SortKey, 3>;

// What makes two rows of a sorted grid tie, case not regarded: the text in the column of the first
// key, or the texts of the first two keys joined. Groups are the texts of the first key.
enum class PositionMode : int { kOneKey = 0, kTwoKeys = 1, kGroups = 11 };

// Sorts any grid and then numbers its rows, ties sharing a place. For all who sort by code; the
// dialog works with one of these too.
class GridSorter {
 public:
  // Dates in cells are read in the date format of the shared state.
  explicit GridSorter(const SharedState& state) : state_(&state) {}

  // The grid must live as long as it is in hand.
  void SetGridToSort(Grid& grid) { grid_ = &grid; }
  // Error 5 with none in hand, in all that works on the grid.
  Grid& GridToSort() const;

  // The last row of the next sort; below 1 the grid's last one.
  int LastRowToSort() const { return last_row_; }
  void SetLastRowToSort(int row) { last_row_ = row; }

  // Sorts the rows, and sets LastRowToSort to 0.
  void Sort(const SortKeys& keys);
  // The keys of the last sort, i from 0 to 2, error 9 beyond: the column, 0 for no key, and 0 for
  // ascending or -1 for descending.
  std::int16_t ColumnSorted(int i) const;
  std::int16_t ColumnSortedHow(int i) const;

  // Gives each of the rows its places. With kGroups those of PositionNumber122446 begin again in
  // each group, the others run on. A first row above the last one changes nothing.
  void CalculatePositions(int first_row, int last_row, PositionMode mode);
  // The place of the n-th of those rows, from 1: without and with gaps behind a tie. 0 for a row
  // that was not counted.
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
