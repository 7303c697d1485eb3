#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/shared_state.h"
#include "transfers/run.h"

namespace golf {

// This transfer copies the golfers of a league, and on request its substitutes, into Quenby's
// golfer file. It updates a golfer whose name Quenby already has. It adds any other golfer to the
// chosen roster.
struct GolfersZdToQbRequest {
  std::string league;      // the base of the division
  double destination = 0;  // the number of Quenby's roster; 0: none
  bool doubled = false;    // doubles handicaps of 9 holes, for rounds of 18
  bool substitutes = false;
};

struct GolfersZdToQbReport : RunReport {
  std::int16_t updated = 0;
  std::int16_t added = 0;
  std::int32_t long_first_names = 0;      // first names that are too long for Quenby's field
  std::optional<NumberedError> given_up;  // the error after which the operator ended the run
};

// Asks the operator whether to retry after a disk error. Returns false without asking for any other
// error.
bool AskForRetry(RunHost& host, const NumberedError& error);

// Copies the golfers. Asks whether to retry a file operation that failed. The run ends if the
// operator does not retry, and the report contains what was done. Any other error also ends the
// run, for example error 9 if the current event is outside 1 to 50. At the end the run closes all
// files and makes new shared objects.
void Run(SharedState& state, RunHost& host, const GolfersZdToQbRequest& request,
         GolfersZdToQbReport& report);

}  // namespace golf
