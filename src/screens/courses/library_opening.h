#pragma once

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "stores/course/course_library.h"

namespace golf {

// The title of boxes about a course library.
inline constexpr const char* kCourseLibraryTitle = "Course library";

// Opens a library. If another program has locked it, shows the operator a message and returns
// false. Raises any other error of CourseClass.
bool OpenUnlessHeld(SharedState& state, ScreenHost& host, const CourseLibrary& library);

}  // namespace golf
