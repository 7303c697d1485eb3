#pragma once

#include <cstdint>

#include "scoring/round_results.h"

namespace golf {

// Points for a hole by its score less par.
using PointTable = ByDifference<std::int32_t>;

// A hole that was played.
struct PlayedHole {
  int hole;  // 1 to 18
  std::int32_t score;
  std::int32_t strokes;  // given on it
  std::int32_t par;
};

// Adds the hole's net score, statistics and points to the round, and to its nine and the total.
void CountHole(const PlayedHole& played, const PointTable& points, RoundResults& results);

}  // namespace golf
