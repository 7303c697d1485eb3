#include "app/tools.h"

#include <utility>

#include "screens/courses/course_table.h"
#include "screens/file_changes.h"
#include "stores/course/course_class.h"
#include "stores/course/course_library.h"

namespace golf {
namespace {

constexpr const char* kCourseLibrary = "Course library";

void ShowOpenLibrary(SharedState& state, ScreenHost& host) {
  host.ShowModal(Load<CourseTable>(host));
  state.Course().CloseCourseFile();
}

// Asks whether to open a sibling's own file.
bool IsWanted(ScreenHost& host, const std::string& sibling, const std::string& path) {
  const Box question{.title = kCourseLibrary,
                     .text = "This is " + sibling + "'s own course library:\r" + path +
                             "\r\rWhat you change in it is changed for " + sibling +
                             " as well. Close " + sibling + " before you go on.\r\rOpen it?",
                     .icon = BoxIcon::kQuestion,
                     .buttons = {BoxButton::kYes, BoxButton::kNo},
                     .default_button = 1};
  return host.Ask(question) == BoxButton::kYes;
}

// Opens the library. If another program has locked it, shows the operator a message and returns
// false.
bool OpenUnlessHeld(SharedState& state, ScreenHost& host, const CourseLibrary& library) {
  try {
    OpenCourseLibrary(state, library);
    return true;
  } catch (const NumberedError& error) {
    state.Course().CloseCourseFile();
    if (!error.Is(ErrorNumber::kPermissionDenied)) throw;
  }
  const std::string sibling(library.sibling);
  host.Ask(Box{.title = kCourseLibrary,
               .text = sibling + "'s course library is in use:\r" + CourseFilePath(state, library) +
                       "\r\rClose " + sibling + " and try again.",
               .icon = BoxIcon::kStop});
  return false;
}

void OpenForOperator(SharedState& state, ScreenHost& host, const CourseLibrary& library) {
  const std::string path = CourseFilePath(state, library);
  if (!IsWanted(host, std::string(library.sibling), path)) return;
  if (!OpenUnlessHeld(state, host, library)) return;
  // The operator may add courses of any number of holes.
  state.Course().Allow18HoleCourses = true;
  state.Course().Allow9HoleCourses = true;
  ShowOpenLibrary(state, host);
}

MenuEntry CourseTool(const CourseLibrary& library) {
  return {.caption = std::string(kCourseLibrary) + " of &" + std::string(library.sibling) + "...",
          .open = [&library](SharedState& state, ScreenHost& host) {
            OpenForOperator(state, host, library);
          }};
}

// Returns a menu entry that opens the screen with this name.
MenuEntry ScreenTool(std::string caption, std::string screen) {
  return {.caption = std::move(caption),
          .open = [screen](SharedState&, ScreenHost& host) { host.ShowModal(host.Load(screen)); }};
}

}  // namespace

std::vector<MenuEntry> Tools(SharedState& state) {
  std::vector<MenuEntry> tools;
  for (const CourseLibrary& library : kCourseLibraries) {
    if (state.files.FileExists(CourseFilePath(state, library))) {
      tools.push_back(CourseTool(library));
    }
  }
  if (!state.files.platform().FolderExists(state.QBDataPath)) return tools;
  tools.push_back(ScreenTool("&Results...", "Results"));
  tools.push_back(ScreenTool("Team results &layouts...", "TeamLayouts"));
  return tools;
}

void ShowCourseTable(SharedState& state, ScreenHost& host, std::string_view program) {
  const CourseLibrary* library = FindCourseLibrary(program);
  if (library == nullptr) {
    throw NumberedError(ErrorNumber::kBadCall,
                        "There is no course library \"" + std::string(program) + "\".");
  }
  RecoverInterruptedRun(state, host);
  OpenCourseLibrary(state, *library);
  ShowOpenLibrary(state, host);
}

}  // namespace golf
