#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/shared_state.h"

namespace golf {

// Identifies the course library of one of the three programs.
struct CourseLibrary {
  std::string_view program;  // its abbreviation in file names
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

// Returns the name of the course file of `program`, for example "kvcrs.dat".
std::string CourseFileName(std::string_view program);
std::string CourseFilePath(const SharedState& state, const CourseLibrary& library);

// Open the library in `course`, or in the shared Course. Set CourseDataPath to the folder of the
// library. Raise the errors of CourseClass.
void OpenCourseLibrary(SharedState& state, CourseClass& course, const CourseLibrary& library);
void OpenCourseLibrary(SharedState& state, const CourseLibrary& library);

// Writes the three indexes of a library anew from its active courses, sorted by name. Sets
// CourseDataPath to the folder of the library. Raises the errors of CourseClass.
void RebuildCourseIndexes(SharedState& state, const CourseLibrary& library);

// Returns "18" for 18 holes, "9F" for the front nine and "9B" for the back nine.
std::string HolesText(int hole_num_flag);

}  // namespace golf
