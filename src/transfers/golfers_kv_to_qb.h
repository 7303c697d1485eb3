#pragma once

#include <cstdint>
#include <string>

#include "core/shared_state.h"
#include "transfers/kv_golfer_to_qb.h"
#include "transfers/run.h"

namespace golf {

// Copies the golfers of a Kelvane roster into Quenby's golfer file and onto one of its rosters. A
// golfer whom Quenby has by ID number is updated, any other is added.
struct GolfersKvToQbRequest {
  std::string roster;      // Kelvane's, without folder or extension
  double destination = 0;  // the number of Quenby's roster; 0 for none
  bool marked_only = false;
  GolferToQbChoice choice;
};

struct GolfersKvToQbReport : RunReport {
  std::int32_t updated = 0;
  std::int32_t added = 0;
};

// Raises the errors of opening the files. From then on it carries on over faults: what could not be
// set or saved is left as it was, and whoever cannot be read is left out. The files stay open.
void Run(SharedState& state, RunHost& host, const GolfersKvToQbRequest& request,
         GolfersKvToQbReport& report);

}  // namespace golf
