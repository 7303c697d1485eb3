#pragma once

#include <functional>

#include "cli/results_command.h"

namespace golf {

// Reads each team of the tournament into the object Team1 and calls `action(number)`. Reports a
// team that has golfers but cannot be read.
void ForEachTeam(ResultsRun& run, const std::function<void(int team)>& action);

}  // namespace golf
