#pragma once

#include "core/shared_state.h"

namespace golf {

// Creates Kelvane's rosters of a demonstration install: CLUB18 for 18 holes and NINE9 for 9 holes.
// Each golfer has the scores of two seasons. Raises the errors of FileTable.
void MakeDemoKelvaneRosters(SharedState& state);

}  // namespace golf
