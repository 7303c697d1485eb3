#pragma once

#include <cstdint>
#include <string>

#include "core/shared_state.h"
#include "transfers/run.h"

namespace golf {

// This transfer copies names, addresses and handicaps from a Kelvane roster to the records of the
// same golfers in a league, for its current event. It adds no golfers to the league.
struct GolfersKvToZdRequest {
  std::string roster;       // Kelvane's roster, without folder or extension
  std::string league;       // the base of the division
  std::string league_text;  // the name for the log
  int percent = 100;        // percent of the handicap, 10 to 100
  bool halved = false;      // for rounds of 9 holes
};

struct GolfersKvToZdReport : RunReport {
  std::int16_t transferred = 0;  // league records; a golfer may have two
};

// Copies the golfers. Asks the operator first if the current event already has scores. Leaves out a
// golfer who cannot be read. Any other error ends the run. Raises error 9 if the current event is
// outside 1 to 50.
void Run(SharedState& state, RunHost& host, const GolfersKvToZdRequest& request,
         GolfersKvToZdReport& report);

}  // namespace golf
