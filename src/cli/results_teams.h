#pragma once

#include <functional>

#include "cli/json_text.h"
#include "cli/results_command.h"
#include "scoring/standings_table.h"
#include "scoring/team/team_class.h"

namespace golf {

// Calls `action(number)` for each team of the tournament with the team in the first team object. A
// team with golfers that cannot be read is told on standard error.
void ForEachTeam(ResultsRun& run, const std::function<void(int team)>& action);

// Every value of the team in hand for a round, under the name of its member. Errors of the
// calculation travel out.
void AddResults(TeamClass& team, int round, Json& object);

}  // namespace golf
