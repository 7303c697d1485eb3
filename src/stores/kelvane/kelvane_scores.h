#pragma once

#include "core/shared_state.h"

namespace golf {

// The score history of the golfer in hand, newest first, in the shared buffers.

// Clears the working entry; its date is the present moment.
void BlankKVScore(SharedState& state);

// Counts the working entry in the golfer's counters, of which none passes 300, and puts it into the
// history by its date; the oldest entry of a full one is lost.
void AddKVScore(SharedState& state);

// Moves entry `place` (1 to 300) to its place by date, in front of entries with the same date. The
// working entry holds it afterwards.
void RepositionKVScore(SharedState& state, int place);

}  // namespace golf
