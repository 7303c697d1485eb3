#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/shared_state.h"
#include "stores/kelvane/kelvane_buffers.h"

namespace golf {

// Kelvane's roster and system files. They are opened under fixed numbers and read into the shared
// buffers. All functions on files raise the errors of FileTable.

inline constexpr int kKelvaneHeaderFile = 1;
inline constexpr int kKelvaneGolferFile = 2;
inline constexpr int kKelvaneScoreFile = 3;
inline constexpr int kKelvaneReportsFile = 5;
inline constexpr int kKelvaneSystemFile = 20;

// Reads the system record. A record of another version is replaced by the defaults, also in the
// file. The file stays open.
void LoadKVSystemFile(SharedState& state);

// Opens the four files of a roster. `roster_name` has no folder or extension. Returns false and
// changes nothing if the name is not a valid file name or there is no ".kv5" file. Other missing
// files are created empty.
bool OpenKVRoster(SharedState& state, std::string_view roster_name);
void CloseKVFiles(SharedState& state);

// Fills the header buffer for a new roster of 9 or 18 holes.
void BuildBlankKVHeader(SharedState& state, std::uint8_t holes);

// Returns true if the record holds a golfer. A free place may hold a former golfer's bytes.
inline bool IsGolfer(const Record<KelvaneGolferLayout>& golfer) {
  return golfer.Get<"Status">() >= 1;
}

// Returns "Ann Smith", or "Golfer #12" for a golfer without a name whose ID is 12.
std::string KVGolferName(const Record<KelvaneGolferLayout>& golfer);

// Returns the number of golfer places of the open roster, free ones included.
std::int32_t KVGolferPlaces(SharedState& state);

}  // namespace golf
