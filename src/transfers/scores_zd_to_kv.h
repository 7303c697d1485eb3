#pragma once

#include <string>

#include "core/shared_state.h"
#include "transfers/league_score_posting.h"
#include "transfers/run.h"

namespace golf {

// Posts the scores of a league's event, or a batch of its scores apart from events, into the
// histories of a Kelvane roster. Golfers are matched by their IDs. The league does not change: what
// has been posted before is told from the history.
struct ScoresZdToKvRequest {
  std::string roster;  // Kelvane's, without folder or extension
  int batch = 0;       // 1 to 50 an event, 500 more for the scores before it
};

using ScoresZdToKvReport = LeagueScoreReport;

// The league's five files are open, its control record is in the buffer. Asks about scores that a
// history has already. Whoever cannot be read is left out; any other error ends the run.
void Run(SharedState& state, RunHost& host, const ScoresZdToKvRequest& request,
         ScoresZdToKvReport& report);

}  // namespace golf
