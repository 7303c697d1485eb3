#pragma once

#include "core/shared_state.h"

namespace golf {

// Describes a nine-hole round that is posted to a roster of 18 holes. It is one half of an entry.
// The golfer's record keeps one half, the waiting half, until the next nine-hole round is posted.
// These functions change only the buffers of the current golfer. They raise error 6 and change
// nothing if a value does not fit, such as a slope or score outside 0 to 255.
struct NineHoleHalf {
  double score;   // in strokes for handicap purposes, or in points
  double rating;  // in strokes, for nine holes
  double slope;
};

bool KVHalfWaits(SharedState& state);

// Stores `half` in the golfer's record as the waiting half.
void KeepKVHalf(SharedState& state, const NineHoleHalf& half);

// Combines `half` and the waiting half in the working entry. The score and the rating become the
// sums, and the slope becomes the mean. Afterwards there is no waiting half.
void JoinKVHalves(SharedState& state, const NineHoleHalf& half);

}  // namespace golf
