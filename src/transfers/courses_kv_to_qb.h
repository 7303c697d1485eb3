#pragma once

#include <cstdint>
#include <optional>

#include "core/shared_state.h"
#include "transfers/run.h"

namespace golf {

// This transfer copies the whole Kelvane course library into Quenby's. Each Quenby course carries
// the number of the Kelvane course that it was copied from. A course that was copied before is
// overwritten in place. Any other course is appended. Deleted courses are copied too, so that the
// numbers stay linked.
struct CoursesKvToQbRequest {};

struct CoursesKvToQbReport : RunReport {
  std::int16_t added = 0;
  std::int16_t updated = 0;  // courses in use that were overwritten
  // The error on which the indexes were not rebuilt, or not all of them.
  std::optional<NumberedError> index_error;
};

// Stops at the first error. The progress shows the name of a course in use. When all courses are
// copied, the three indexes of Quenby's library are rebuilt from its courses in use, sorted by
// name. At its end the run closes all files and makes the shared objects anew.
void Run(SharedState& state, RunHost& host, const CoursesKvToQbRequest& request,
         CoursesKvToQbReport& report);

}  // namespace golf
