#pragma once

#include <cstddef>
#include <vector>

namespace golf {

// The places of rows that stand in the order of their results; rows that tie share one.
struct Places {
  std::vector<int> dense;        // 1, 2, 2, 3
  std::vector<int> competition;  // 1, 2, 2, 4
};

// Numbers `count` rows, from 0. `tie(a, b)` says whether two rows have the same result: each row is
// held against the one that began the run of ties before it. With groups, `same_group(a, b)` is
// asked where results differ, and in a new group the competition places begin again; the dense ones
// run on.
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

// The same for rows that are all of one group.
template <class Tie>
Places NumberPlaces(std::size_t count, Tie&& tie) {
  return NumberPlaces(count, tie, [](std::size_t, std::size_t) { return true; });
}

}  // namespace golf
