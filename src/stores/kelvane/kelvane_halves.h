#pragma once

#include "core/shared_state.h"

namespace golf {

// A round of nine holes on its way into a roster of 18 holes: half of an entry. The golfer in hand
// keeps one half until the next one comes; only the buffers change here. Error 6, with nothing
// changed, for a figure too large for its place; slopes and scores have a byte.
struct NineHoleHalf {
  double score;
  double rating;
  double slope;
};

bool KVHalfWaits(SharedState& state);

// Makes a half the one that waits.
void KeepKVHalf(SharedState& state, const NineHoleHalf& half);

// Puts a half and the waiting one together in the working entry; none waits then.
void JoinKVHalves(SharedState& state, const NineHoleHalf& half);

}  // namespace golf
