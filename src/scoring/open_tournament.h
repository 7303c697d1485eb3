#pragma once

#include <cstdint>

#include "core/shared_state.h"

namespace golf {

// Opens all that scores are worked out from, in the shared objects: Quenby's courses and golfers,
// and the control file, the entries and the teams of a tournament, whose control record is read.
// Points CourseDataPath and StoreDataPath to Quenby's folder. Raises the errors of FileTable.
void OpenTournament(SharedState& state, std::int32_t tournament);

}  // namespace golf
