#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "core/shared_state.h"
#include "forms/grid.h"
#include "scoring/places.h"

namespace golf {

// Up to three keys, the most important first. A column below 1 is no key: column 0 carries a
// record's key and is never sorted by.
using SortKeys = std::array<SortKey, 3>;

// Which rows of a sorted grid tie, in any case of letters: those with the same text under the first
// key, or the same joined texts under the first two keys. kGroups also ties by two keys, and the
// text under the first key names a row's group.
enum class PositionMode : int { kOneKey = 0, kTwoKeys = 1, kGroups = 11 };

// Sorts any grid and then numbers its rows. Rows that tie share a place. Code that sorts without
// the dialog uses it directly, and the dialog GridSort uses one, too.
class GridSorter {
 public:
  // Reads dates in cells by the date format of the shared state.
  explicit GridSorter(const SharedState& state) : state_(&state) {}

  // The grid must outlive its use here.
  void SetGridToSort(Grid& grid) { grid_ = &grid; }
  // Error 5 if no grid is set, here and in all members that use the grid.
  Grid& GridToSort() const;

  // Returns the last row of the next sort. Below 1 stands for the last row of the grid.
  int LastRowToSort() const { return last_row_; }
  void SetLastRowToSort(int row) { last_row_ = row; }

  // Sorts the rows and resets LastRowToSort to 0.
  void Sort(const SortKeys& keys);
  // Return the keys of the last sort, for i from 0 to 2: the column, 0 for no key; and the order, 0
  // ascending or -1 descending. Error 9 for any other i.
  std::int16_t ColumnSorted(int i) const;
  std::int16_t ColumnSortedHow(int i) const;

  // Numbers the rows by their order. With kGroups, PositionNumber122446 begins again in each group,
  // while PositionNumber122334 runs on. Changes nothing if `first_row` is above `last_row`.
  void CalculatePositions(int first_row, int last_row, PositionMode mode);
  // Return the place of the n-th numbered row, from 1: without gaps after a tie, and with gaps. 0
  // if that row was not numbered.
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
