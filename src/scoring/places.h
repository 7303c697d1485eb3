#pragma once

#include <cstddef>
#include <vector>

namespace golf {

// Contains the places of rows that are sorted by their results. Rows with equal results share a
// place.
struct Places {
  std::vector<int> dense;        // such as 1, 2, 2, 3
  std::vector<int> competition;  // such as 1, 2, 2, 4

  // Returns the dense places if the PositionOption of a tournament is 1, and the competition places
  // if it is 2.
  const std::vector<int>& Numbers(int position_option) const {
    return position_option == 1 ? dense : competition;
  }
};

// Numbers the places of the rows 0 to `count` - 1. `tie(a, b)` must return true if two rows have
// the same result. It compares each row with the first of the tied rows before it. `same_group(a,
// b)` is called only if the results differ. In a new group the competition places start again at 1,
// but the dense places continue.
template <class Tie, class SameGroup>
Places NumberPlaces(std::size_t count, Tie&& tie, SameGroup&& same_group) {
  Places places;
  int dense = 1;
  int competition = 1;
  int sequence = 0;
  std::size_t held = 0;
  std::size_t group = 0;
  for (std::size_t row = 0; row < count; ++row) {
    ++sequence;
    if (!tie(row, held)) {
      if (!same_group(row, group)) {
        sequence = 1;
        group = row;
      }
      competition = sequence;
      ++dense;
      held = row;
    }
    places.dense.push_back(dense);
    places.competition.push_back(competition);
  }
  return places;
}

// Does the same for rows of one group.
template <class Tie>
Places NumberPlaces(std::size_t count, Tie&& tie) {
  return NumberPlaces(count, tie, [](std::size_t, std::size_t) { return true; });
}

}  // namespace golf
