#pragma once

#include <cstdint>

#include "scoring/round_results.h"

namespace golf {

// Holds the points for a hole by its score minus par.
using PointTable = ByDifference<std::int32_t>;

// Describes a hole that was played. Score, handicap strokes and par are in strokes.
struct PlayedHole {
  int hole;  // 1 to 18
  std::int32_t score;
  std::int32_t strokes;  // the handicap strokes on this hole; -1: the player gives one
  std::int32_t par;
};

// Sets the net score, the points and the statistics of the hole in `results`. Adds the net score
// and the points to the sums of the nine and the round. Adds the statistics to those of the round
// only.
void CountHole(const PlayedHole& played, const PointTable& points, RoundResults& results);

}  // namespace golf
