#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/shared_state.h"
#include "stores/kelvane/kelvane_buffers.h"

namespace golf {

// These functions open and read Kelvane's roster and system files. The files have fixed numbers and
// are read into the shared buffers. All functions on files raise the errors of FileTable.

inline constexpr int kKelvaneHeaderFile = 1;
inline constexpr int kKelvaneGolferFile = 2;
inline constexpr int kKelvaneScoreFile = 3;
inline constexpr int kKelvaneReportsFile = 5;
inline constexpr int kKelvaneSystemFile = 20;

// Reads the system record. Replaces a record of another version by the defaults, in the buffer and
// in the file. Leaves the file open.
void LoadKVSystemFile(SharedState& state);

// Opens the four files of a roster. `roster_name` has no folder or extension. Returns false and
// changes nothing if the name is not a valid file name or there is no ".kv5" file. Creates the
// other files if they are missing.
bool OpenKVRoster(SharedState& state, std::string_view roster_name);
void CloseKVFiles(SharedState& state);

// Fills the header buffer for a new roster of 9 or 18 holes.
void BuildBlankKVHeader(SharedState& state, std::uint8_t holes);

// Returns true if the record contains a golfer. A free place may contain the bytes of a deleted
// golfer.
inline bool IsGolfer(const Record<KelvaneGolferLayout>& golfer) {
  return golfer.Get<"Status">() >= 1;
}

// Returns "Ann Smith", or a text such as "Golfer #12" with the ID if the name is blank.
std::string KVGolferName(const Record<KelvaneGolferLayout>& golfer);
// Returns "Smith, Ann", or the name as above if a part of it is blank.
std::string KVGolferNameLF(const Record<KelvaneGolferLayout>& golfer);

// Reads a place of the open roster into the golfer buffer. Returns the name as KVGolferNameLF, or
// an empty text if the place is free.
std::string ReadKVGolferNameLF(SharedState& state, std::int64_t place);

// Returns the number of golfer places of the open roster, including free places.
std::int32_t KVGolferPlaces(SharedState& state);

}  // namespace golf
