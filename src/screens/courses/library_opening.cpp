#include "screens/courses/library_opening.h"

#include <string>

#include "stores/course/course_class.h"

namespace golf {

bool OpenUnlessHeld(SharedState& state, ScreenHost& host, const CourseLibrary& library) {
  try {
    OpenCourseLibrary(state, library);
    return true;
  } catch (const NumberedError& error) {
    state.Course().CloseCourseFile();
    if (!error.Is(ErrorNumber::kPermissionDenied)) throw;
  }
  const std::string sibling(library.sibling);
  host.Ask(Box{.title = kCourseLibraryTitle,
               .text = sibling + "'s course library is in use:\r" + CourseFilePath(state, library) +
                       "\r\rClose " + sibling + " and try again.",
               .icon = BoxIcon::kStop});
  return false;
}

}  // namespace golf
