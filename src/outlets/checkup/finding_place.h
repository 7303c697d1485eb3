#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "core/shared_state.h"
#include "outlets/checkup/finding.h"
#include "stores/course/course_library.h"

namespace golf {

struct CoursePlace {
  const CourseLibrary* library;
  std::int32_t course;  // from 1
};
struct KelvaneRosterPlace {
  std::string name;
};
struct QuenbyRosterPlace {
  std::int32_t roster;  // from 1; 0 if the golfer is on no roster or is not known
};
// Is empty if the finding concerns neither a course nor a roster.
using FindingPlace =
    std::variant<std::monostate, CoursePlace, KelvaneRosterPlace, QuenbyRosterPlace>;

// Returns the course or the roster that a finding concerns. A golfer concerns his roster. Reads the
// golfer of a finding in Quenby's golfer file, without changing the buffers of the stores.
FindingPlace PlaceOf(SharedState& state, const Finding& finding);

}  // namespace golf
