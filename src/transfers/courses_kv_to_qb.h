#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/shared_state.h"
#include "transfers/run.h"

namespace golf {

// This transfer copies the whole Kelvane course library into Quenby's library. A Quenby course
// record contains the number of the Kelvane course that it was copied from. The transfer overwrites
// a course that was copied before, and appends any other course. It also copies deleted courses, so
// that their numbers stay linked.
struct CoursesKvToQbRequest {};

struct CoursesKvToQbReport : RunReport {
  std::int16_t added = 0;
  std::int16_t updated = 0;  // the number of courses in use that were overwritten
  // Contains the error that prevented the rebuild of some or all indexes.
  std::optional<NumberedError> index_error;
};

// Copies the courses and stops at the first error. The progress shows the name of a course in use.
// After the copying it rebuilds the three indexes of Quenby's library from its courses in use,
// sorted by name. At the end it closes all files and makes new shared objects.
void Run(SharedState& state, RunHost& host, const CoursesKvToQbRequest& request,
         CoursesKvToQbReport& report);

// Returns two lines with the numbers of courses that were added and updated, each with its end.
std::string CountsText(const CoursesKvToQbReport& report, std::string_view line_end);

}  // namespace golf
