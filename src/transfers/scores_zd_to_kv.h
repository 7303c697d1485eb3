#pragma once

#include <string>

#include "core/shared_state.h"
#include "transfers/league_score_posting.h"
#include "transfers/run.h"

namespace golf {

// This transfer posts league scores to the score histories of a Kelvane roster. It posts the scores
// of one event, or one of the batches that belong to no event. It matches golfers by their ID
// numbers. The league files do not change: the score history shows which scores were posted before.
struct ScoresZdToKvRequest {
  std::string roster;  // Kelvane's roster, without folder or extension
  int batch = 0;       // 1 to 50: an event; 500 more: the scores before it
};

using ScoresZdToKvReport = LeagueScoreReport;

// The league's five files must be open and its control record in the buffer. Asks about scores that
// a history already has. A golfer who cannot be read is left out. Any other error ends the run.
void Run(SharedState& state, RunHost& host, const ScoresZdToKvRequest& request,
         ScoresZdToKvReport& report);

}  // namespace golf
