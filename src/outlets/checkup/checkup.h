#pragma once

#include <vector>

#include "core/shared_state.h"
#include "outlets/checkup/finding.h"
#include "stores/course/course_library.h"

namespace golf {

// Checks all data of the install and calls `each` for each finding. Changes nothing. Files that are
// missing or unreadable are findings. A program whose folder does not exist is not checked.
void CheckInstall(SharedState& state, const EachFinding& each);

// Returns the libraries of which an index is a finding.
std::vector<const CourseLibrary*> LibrariesToRepair(const std::vector<Finding>& findings);

}  // namespace golf
