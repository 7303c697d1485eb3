#pragma once

#include <functional>

#include "cli/json_text.h"
#include "cli/results_command.h"
#include "scoring/standings_table.h"
#include "scoring/team/team_class.h"

namespace golf {

// Reads each team of the tournament into the object Team1 and calls `action(number)`. Reports a
// team that has golfers but cannot be read.
void ForEachTeam(ResultsRun& run, const std::function<void(int team)>& action);

// Adds every value of the current team for a round. The key of a value is the name of its member
// function. Raises the errors of the calculation.
void AddResults(TeamClass& team, int round, Json& object);

}  // namespace golf
