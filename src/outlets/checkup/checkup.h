#pragma once

#include <vector>

#include "core/progress.h"
#include "core/shared_state.h"
#include "outlets/checkup/finding.h"
#include "stores/course/course_library.h"

namespace golf {

// Checks all data of the install and calls `each` for each finding. Changes nothing. Files that are
// missing or unreadable are findings. A program whose folder does not exist is not checked.
// `report` may be null. Raises only what `report` throws.
void CheckInstall(SharedState& state, const EachFinding& each, const ReportProgress& report = {});

// Returns the libraries of which an index is a finding.
std::vector<const CourseLibrary*> LibrariesToRepair(const std::vector<Finding>& findings);

}  // namespace golf
