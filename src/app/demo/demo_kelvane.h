#pragma once

#include "core/shared_state.h"

namespace golf {

// Makes Kelvane's rosters of a demonstration install: CLUB18 of 18 holes and NINE9 of 9 holes. Each
// golfer has the scores of two seasons. Errors as FileTable.
void MakeDemoKelvaneRosters(SharedState& state);

}  // namespace golf
