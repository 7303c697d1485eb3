#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/shared_state.h"
#include "stores/kelvane/kelvane_buffers.h"

namespace golf {

// Kelvane's roster and system files, opened under fixed numbers and read into the shared buffers.
// All raise the numbered errors of FileTable.

inline constexpr int kKelvaneHeaderFile = 1;
inline constexpr int kKelvaneGolferFile = 2;
inline constexpr int kKelvaneScoreFile = 3;
inline constexpr int kKelvaneReportsFile = 5;
inline constexpr int kKelvaneSystemFile = 20;

// Reads the system record; one of another version is replaced by the defaults, in the file too. The
// file stays open.
void LoadKVSystemFile(SharedState& state);

// Opens the four files of a roster (its name without folder or extension). False, with nothing
// touched, if it has no ".kv5" file; the other files come into being empty.
bool OpenKVRoster(SharedState& state, std::string_view roster_name);
void CloseKVFiles(SharedState& state);

// Fills the header buffer for a new roster: 9 or 18 holes.
void BuildBlankKVHeader(SharedState& state, std::uint8_t holes);

// What stands in a free place is left over from somebody.
inline bool IsGolfer(const Record<KelvaneGolferLayout>& golfer) {
  return golfer.Get<"Status">() >= 1;
}

// "Ann Smith", or "Golfer #12" by his ID where he has no name.
std::string KVGolferName(const Record<KelvaneGolferLayout>& golfer);

// Golfer places of the open roster.
std::int32_t KVGolferPlaces(SharedState& state);

}  // namespace golf
