#pragma once

#include <cstdint>

#include "scoring/round_results.h"

namespace golf {

// The points for a hole by its score minus par.
using PointTable = ByDifference<std::int32_t>;

// A hole that was played. Score, handicap strokes and par are in strokes.
struct PlayedHole {
  int hole;  // 1 to 18
  std::int32_t score;
  std::int32_t strokes;  // the handicap strokes on this hole; -1 for one to give
  std::int32_t par;
};

// Sets the hole's net score, points and statistics in `results`. Adds net score and points to the
// nine and the round, the statistics to the round only.
void CountHole(const PlayedHole& played, const PointTable& points, RoundResults& results);

}  // namespace golf
