#pragma once

#include "core/shared_state.h"

namespace golf {

// A nine-hole round that is posted to a roster of 18 holes. It is half of an entry. The golfer's
// record keeps one half until the next one comes. These functions change only the buffers, for the
// current golfer. They raise error 6 and change nothing if a figure does not fit, such as a slope
// or score outside 0 to 255.
struct NineHoleHalf {
  double score;   // strokes for handicap purposes, or points
  double rating;  // strokes, for nine holes
  double slope;
};

bool KVHalfWaits(SharedState& state);

// Makes `half` the waiting one.
void KeepKVHalf(SharedState& state, const NineHoleHalf& half);

// Joins `half` and the waiting half in the working entry: sums of the scores and ratings, mean of
// the slopes. No half waits afterwards.
void JoinKVHalves(SharedState& state, const NineHoleHalf& half);

}  // namespace golf
