#pragma once

#include <string>

#include "core/shared_state.h"
#include "transfers/league_score_posting.h"
#include "transfers/run.h"

namespace golf {

// This transfer posts league scores to the score histories of a Kelvane roster. It posts the scores
// of one event, or one batch of non-event scores. It matches golfers by their ID numbers. It does
// not change the league files. The score history shows which scores were posted before.
struct ScoresZdToKvRequest {
  std::string roster;  // Kelvane's roster, without folder or extension
  int batch = 0;       // 1 to 50: an event; plus 500: the scores before it
};

using ScoresZdToKvReport = LeagueScoreReport;

// Posts the scores. The league's five files must be open, and the control buffer must contain its
// control record. Asks the operator about scores that a history already contains. Leaves out a
// golfer who cannot be read. Any other error ends the run.
void Run(SharedState& state, RunHost& host, const ScoresZdToKvRequest& request,
         ScoresZdToKvReport& report);

}  // namespace golf
