#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/shared_state.h"

namespace golf {

// Whose course library it is.
struct CourseLibrary {
  std::string_view program;  // as in the names of its files
  std::string_view sibling;  // as people call it
  std::string SharedState::*folder;
};

inline constexpr std::array<CourseLibrary, 3> kCourseLibraries{
    {{"KV", "Kelvane", &SharedState::KVDataPath},
     {"QB", "Quenby", &SharedState::QBDataPath},
     {"ZD", "Zandel", &SharedState::ZDDataPath}}};

inline constexpr const CourseLibrary& kKelvaneCourses = kCourseLibraries[0];
inline constexpr const CourseLibrary& kQuenbyCourses = kCourseLibraries[1];
inline constexpr const CourseLibrary& kZandelCourses = kCourseLibraries[2];

// The library of this program, in any case; null if there is none.
const CourseLibrary* FindCourseLibrary(std::string_view program);

// "kvcrs.dat"
std::string CourseFileName(std::string_view program);
std::string CourseFilePath(const SharedState& state, const CourseLibrary& library);

// Points a course object, or the shared Course, at the library and opens it. CourseDataPath is the
// library's folder then. Errors as CourseClass.
void OpenCourseLibrary(SharedState& state, CourseClass& course, const CourseLibrary& library);
void OpenCourseLibrary(SharedState& state, const CourseLibrary& library);

// "18", "9F" for the front nine and "9B" for the back nine.
std::string HolesText(int hole_num_flag);

}  // namespace golf
