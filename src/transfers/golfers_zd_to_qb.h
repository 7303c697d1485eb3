#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/shared_state.h"
#include "transfers/run.h"

namespace golf {

// Brings the golfers of a league, and its substitutes if that is wanted, into Quenby's golfer file.
// A golfer whom Quenby has by name is updated, any other joins the roster chosen.
struct GolfersZdToQbRequest {
  std::string league;      // its base
  double destination = 0;  // the number of Quenby's roster; 0 for none
  bool doubled = false;    // handicaps of 9 holes, for rounds of 18
  bool substitutes = false;
};

struct GolfersZdToQbReport : RunReport {
  std::int16_t updated = 0;
  std::int16_t added = 0;
  std::optional<NumberedError> given_up;  // on which the operator ended the run
};

// Asks whether an operation on a file that fails is to be tried again; otherwise the run ends there
// and reports what was done. Any other error ends it, such as error 9 for a current event outside 1
// to 50. All files are closed and the shared objects are new in the end.
void Run(SharedState& state, RunHost& host, const GolfersZdToQbRequest& request,
         GolfersZdToQbReport& report);

}  // namespace golf
