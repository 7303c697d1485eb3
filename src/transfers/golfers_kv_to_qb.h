#pragma once

#include <cstdint>
#include <string>

#include "core/shared_state.h"
#include "transfers/kv_golfer_to_qb.h"
#include "transfers/run.h"

namespace golf {

// This transfer copies the golfers of a Kelvane roster into Quenby's golfer file and adds them to
// one of Quenby's rosters. It updates a golfer whose ID number Quenby already has. It adds any
// other golfer.
struct GolfersKvToQbRequest {
  std::string roster;      // Kelvane's roster, without folder or extension
  double destination = 0;  // the number of Quenby's roster; 0: none
  bool marked_only = false;
  GolferToQbChoice choice;
};

struct GolfersKvToQbReport : RunReport {
  std::int32_t updated = 0;
  std::int32_t added = 0;
};

// Raises the errors of opening the files. After that the run continues after a fault. A value that
// cannot be set or saved stays unchanged. A golfer who cannot be read is left out. The files stay
// open.
void Run(SharedState& state, RunHost& host, const GolfersKvToQbRequest& request,
         GolfersKvToQbReport& report);

}  // namespace golf
