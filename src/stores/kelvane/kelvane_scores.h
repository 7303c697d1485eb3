#pragma once

#include <cstdint>

#include "core/shared_state.h"
#include "stores/kelvane/kelvane_buffers.h"

namespace golf {

// Values of ScoreType.
inline constexpr std::uint8_t kKelvaneTournamentScore = 2;
inline constexpr std::uint8_t kKelvaneTwoNines = 4;

// Rounds a value to a byte of an entry, half to even. Error 6 outside 0 to 255.
std::uint8_t KVByte(double value);

// The following functions work on the shared buffers: the current golfer, his score history, newest
// first, and the working entry.

// Clears the working entry and sets its date to the present moment.
void BlankKVScore(SharedState& state);

// Counts the working entry in the golfer's counters, up to 300 each, and inserts it into the
// history by its date. A full history loses its last entry.
void AddKVScore(SharedState& state);

// Moves entry `place` (1 to 300) to its place by date, in front of entries with the same date. Only
// as many entries as counter 1 counts are compared. The working entry is a copy of it afterwards.
void RepositionKVScore(SharedState& state, int place);

// Read and write the buffers of the golfer at `place` of the open roster. Raise the errors of
// FileTable.
void ReadKVHistory(SharedState& state, std::int32_t place);
void WriteKVHistory(SharedState& state, std::int32_t place);
void WriteKVGolfer(SharedState& state, std::int32_t place);

// Adds the working entry to the history. Then writes the golfer and after him the history, both at
// `place`. Raises the errors of FileTable.
void PostKVScore(SharedState& state, std::int32_t place);

}  // namespace golf
