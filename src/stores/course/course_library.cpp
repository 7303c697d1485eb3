#include "stores/course/course_library.h"

#include <algorithm>

#include "core/text.h"
#include "stores/course/course_class.h"

namespace golf {

const CourseLibrary* FindCourseLibrary(std::string_view program) {
  const auto found = std::find_if(
      kCourseLibraries.begin(), kCourseLibraries.end(),
      [&](const CourseLibrary& known) { return EqualIgnoringCase(known.program, program); });
  return found == kCourseLibraries.end() ? nullptr : &*found;
}

std::string CourseFileName(std::string_view program) { return LowerCase(program) + "crs.dat"; }

std::string CourseFilePath(const SharedState& state, const CourseLibrary& library) {
  return state.*library.folder + CourseFileName(library.program);
}

void OpenCourseLibrary(SharedState& state, const CourseLibrary& library) {
  OpenCourseLibrary(state, state.Course(), library);
}

void OpenCourseLibrary(SharedState& state, CourseClass& course, const CourseLibrary& library) {
  state.CourseDataPath = state.*library.folder;
  course.SetActiveProgram(std::string(library.program));
  course.OpenCourseFile();
}

void RebuildCourseIndexes(SharedState& state, const CourseLibrary& library) {
  CourseClass course(state);
  OpenCourseLibrary(state, course, library);
  course.RebuildCourseIndexes(course.ActiveCoursesByName());
  course.CloseCourseFile();
}

std::string HolesText(int hole_num_flag) {
  if (hole_num_flag < 0) return std::to_string(-hole_num_flag) + (hole_num_flag == -9 ? "B" : "");
  return std::to_string(hole_num_flag) + (hole_num_flag == 9 ? "F" : "");
}

}  // namespace golf
