#pragma once

#include <cstdint>

#include "core/shared_state.h"
#include "transfers/run.h"

namespace golf {

// This run copies the handicaps and indexes of Quenby's golfers to their entries in a tournament,
// for all seven rounds.
struct TournamentUpdateRequest {
  std::int32_t tournament = 0;
};

using TournamentUpdateReport = RunReport;

// Copies the values. Leaves out an entry that cannot be read, and stops at any other error. The
// shared Tournament must have the control file of the tournament open. The files stay open.
void Run(SharedState& state, RunHost& host, const TournamentUpdateRequest& request,
         TournamentUpdateReport& report);

}  // namespace golf
