#pragma once

#include <cstdint>

#include "core/shared_state.h"

namespace golf {

// Opens all files that the calculation of scores needs, in the shared objects: Quenby's courses and
// golfers, and the control file, entries and teams of a tournament. Reads the control record. Sets
// CourseDataPath and StoreDataPath to Quenby's folder. Raises the errors of FileTable.
void OpenTournament(SharedState& state, std::int32_t tournament);

// Returns the active tournament of Quenby's master file. Returns 0 if there is none or if it has no
// control file. Sets StoreDataPath to Quenby's folder.
std::int32_t ActiveTournament(SharedState& state);

}  // namespace golf
