#pragma once

#include "core/shared_state.h"

namespace golf {

// The course libraries of a demonstration install: Kelvane's with courses of eighteen and nine
// holes and a deleted one; Quenby's with copies that are out of date and a course of its own;
// Zandel's. Their folders must be there and hold no library. Errors as CourseClass.
void MakeDemoCourses(SharedState& state);

}  // namespace golf
