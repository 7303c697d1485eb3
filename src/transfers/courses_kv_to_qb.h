#pragma once

#include <cstdint>

#include "core/shared_state.h"
#include "transfers/run.h"

namespace golf {

// Copies the whole Kelvane course library into the Quenby one. A course that was copied before is
// overwritten in place, found by the Kelvane number that it carries; any other is appended. A
// deleted course is copied as well, so that numbers stay linked.
struct CoursesKvToQbRequest {};

struct CoursesKvToQbReport : RunReport {
  std::int16_t added = 0;
  std::int16_t updated = 0;  // courses in use that were overwritten
};

// Stops at the first error. The progress tells the name of a course in use. All files are closed
// and the shared objects are new in the end.
void Run(SharedState& state, RunHost& host, const CoursesKvToQbRequest& request,
         CoursesKvToQbReport& report);

// Writes the three indexes of Quenby's library anew, from its courses in use by name.
void RebuildQuenbyCourseIndexes(SharedState& state);

}  // namespace golf
