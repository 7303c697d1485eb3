#pragma once

#include <cstdint>

#include "core/shared_state.h"
#include "stores/kelvane/kelvane_buffers.h"

namespace golf {

// Values of ScoreType.
inline constexpr std::uint8_t kKelvaneTournamentScore = 2;
inline constexpr std::uint8_t kKelvaneTwoNines = 4;

// A figure for one of the bytes of an entry, by rounding half to even; error 6 outside 0 to 255.
std::uint8_t KVByte(double value);

// The score history of the golfer in hand, newest first, in the shared buffers.

// Clears the working entry; its date is the present moment.
void BlankKVScore(SharedState& state);

// Counts the working entry in the golfer's counters, of which none passes 300, and puts it into the
// history by its date; the oldest entry of a full one is lost.
void AddKVScore(SharedState& state);

// Moves entry `place` (1 to 300) to its place by date, in front of entries with the same date. The
// working entry holds it afterwards.
void RepositionKVScore(SharedState& state, int place);

// The history of the golfer at `place` of the open roster, into its buffer, and back. Raise the
// errors of FileTable.
void ReadKVHistory(SharedState& state, std::int32_t place);
void WriteKVHistory(SharedState& state, std::int32_t place);
void WriteKVGolfer(SharedState& state, std::int32_t place);

// Adds the working entry to the history in hand and writes the golfer and then the history, both at
// `place`.
void PostKVScore(SharedState& state, std::int32_t place);

}  // namespace golf
