#pragma once

#include "core/shared_state.h"

namespace golf {

// Makes the course libraries of a demonstration install. Kelvane has courses of 18 and 9 holes and
// a deleted one. Quenby has outdated copies of two of them and a course of its own. Zandel has two
// courses. The folders must exist and hold no library. Errors as CourseClass.
void MakeDemoCourses(SharedState& state);

}  // namespace golf
