#pragma once

#include <cstdint>

#include "core/shared_state.h"
#include "stores/kelvane/kelvane_buffers.h"

namespace golf {

// These are the values of ScoreType.
inline constexpr std::uint8_t kKelvaneTournamentScore = 2;
inline constexpr std::uint8_t kKelvaneTwoNines = 4;

// Rounds a value to a byte of an entry, half to even. Raises error 6 if the result is outside 0 to
// 255.
std::uint8_t KVByte(double value);

// The following functions use the shared buffers: the current golfer, the golfer's score history,
// newest first, and the working entry.

// Clears the working entry and sets its date to the current date and time.
void BlankKVScore(SharedState& state);

// Inserts the working entry into the history by its date, and adds it to the golfer's counters. A
// counter stops at 300. A full history loses its last entry.
void AddKVScore(SharedState& state);

// Moves entry `place` (1 to 300) to its position by date, before entries with the same date.
// Compares only the first entries, as many as counter 1 has counted. The working entry becomes a
// copy of the moved entry.
void RepositionKVScore(SharedState& state, int place);

// Read and write the buffers of the golfer at `place` of the open roster. Raise the errors of
// FileTable.
void ReadKVHistory(SharedState& state, std::int32_t place);
void WriteKVHistory(SharedState& state, std::int32_t place);
void WriteKVGolfer(SharedState& state, std::int32_t place);

// Adds the working entry to the history. Then writes the golfer and the history at `place`, in this
// order. Raises the errors of FileTable.
void PostKVScore(SharedState& state, std::int32_t place);

}  // namespace golf
