#pragma once

#include "core/shared_state.h"

namespace golf {

// Creates the course libraries of a demonstration install. Kelvane has courses of 18 and 9 holes
// and a deleted one. Quenby has outdated copies of two of them and a course of its own. Zandel has
// two courses. The folders must exist and contain no library. Raises the errors of CourseClass.
void MakeDemoCourses(SharedState& state);

}  // namespace golf
