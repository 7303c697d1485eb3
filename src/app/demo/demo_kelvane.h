#pragma once

#include "core/shared_state.h"

namespace golf {

// Kelvane's rosters of a demonstration install: CLUB18 of eighteen holes and NINE9 of nine, each
// golfer with the scores of two seasons. Errors as FileTable.
void MakeDemoKelvaneRosters(SharedState& state);

}  // namespace golf
