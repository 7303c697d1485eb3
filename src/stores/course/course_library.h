#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/shared_state.h"

namespace golf {

// The course library of one sibling.
struct CourseLibrary {
  std::string_view program;  // its sign in file names
  std::string_view sibling;  // its name
  std::string SharedState::*folder;
};

inline constexpr std::array<CourseLibrary, 3> kCourseLibraries{
    {{"KV", "Kelvane", &SharedState::KVDataPath},
     {"QB", "Quenby", &SharedState::QBDataPath},
     {"ZD", "Zandel", &SharedState::ZDDataPath}}};

inline constexpr const CourseLibrary& kKelvaneCourses = kCourseLibraries[0];
inline constexpr const CourseLibrary& kQuenbyCourses = kCourseLibraries[1];
inline constexpr const CourseLibrary& kZandelCourses = kCourseLibraries[2];

// Returns the library of `program` without regard to case, or null if there is none.
const CourseLibrary* FindCourseLibrary(std::string_view program);

// "kvcrs.dat"
std::string CourseFileName(std::string_view program);
std::string CourseFilePath(const SharedState& state, const CourseLibrary& library);

// Opens the library in `course`, or in the shared Course. Sets CourseDataPath to the library's
// folder. Raises the errors of CourseClass.
void OpenCourseLibrary(SharedState& state, CourseClass& course, const CourseLibrary& library);
void OpenCourseLibrary(SharedState& state, const CourseLibrary& library);

// Returns "18", "9F" for the front nine or "9B" for the back nine.
std::string HolesText(int hole_num_flag);

}  // namespace golf
