#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/shared_state.h"
#include "transfers/run.h"

namespace golf {

// This transfer copies the golfers of a league, and its substitutes on request, into Quenby's
// golfer file. A golfer whose name Quenby already has is updated. Any other golfer is added to the
// chosen roster.
struct GolfersZdToQbRequest {
  std::string league;      // the base of the division
  double destination = 0;  // the number of Quenby's roster; 0 for none
  bool doubled = false;    // doubles handicaps of 9 holes, for rounds of 18
  bool substitutes = false;
};

struct GolfersZdToQbReport : RunReport {
  std::int16_t updated = 0;
  std::int16_t added = 0;
  std::int32_t long_first_names = 0;      // that Quenby has no room for
  std::optional<NumberedError> given_up;  // the error on which the operator ended the run
};

// Asks whether to retry what an error has ended. False, unasked, where the error is none of the
// disk.
bool AskForRetry(RunHost& host, const NumberedError& error);

// Asks whether to retry a file operation that failed. Without a retry the run ends, and its
// report says what was done. Any other error ends the run too, such as error 9 for a current event
// outside 1 to 50. At its end the run closes all files and makes the shared objects anew.
void Run(SharedState& state, RunHost& host, const GolfersZdToQbRequest& request,
         GolfersZdToQbReport& report);

}  // namespace golf
