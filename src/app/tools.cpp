#include "app/tools.h"

#include <algorithm>
#include <utility>

#include "screens/courses/course_table.h"
#include "screens/courses/deleted_courses.h"
#include "screens/courses/library_opening.h"
#include "screens/file_changes.h"
#include "screens/rosters/roster_tools.h"
#include "stores/course/course_class.h"
#include "stores/course/course_library.h"

namespace golf {
namespace {

void ShowOpenLibrary(SharedState& state, ScreenHost& host) {
  host.ShowModal(Load<CourseTable>(host));
  state.Course().CloseCourseFile();
}

// Asks whether to open a sibling's own file.
bool IsWanted(ScreenHost& host, const std::string& sibling, const std::string& path) {
  const Box question{.title = kCourseLibraryTitle,
                     .text = "This is " + sibling + "'s own course library:\r" + path +
                             "\r\rWhat you change in it is changed for " + sibling +
                             " as well. Close " + sibling + " before you go on.\r\rOpen it?",
                     .icon = BoxIcon::kQuestion,
                     .buttons = {BoxButton::kYes, BoxButton::kNo},
                     .default_button = 1};
  return host.Ask(question) == BoxButton::kYes;
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

// Shows the rosters of Quenby. If another program has locked their file, shows a message instead.
void ManageQuenbyRosters(SharedState& state, ScreenHost& host) {
  RecoverInterruptedRun(state, host);
  try {
    ShowQuenbyRosters(state, host, RosterUse::kManage);
  } catch (const NumberedError& error) {
    if (!error.Is(ErrorNumber::kPermissionDenied)) throw;
    host.Ask(Box{.title = "Rosters",
                 .text = "Quenby's rosters are in use:\r" + state.QBDataPath +
                         "\r\rClose Quenby and try again.",
                 .icon = BoxIcon::kStop});
  }
}

void ManageKelvaneRosters(SharedState& state, ScreenHost& host) {
  RecoverInterruptedRun(state, host);
  ShowKelvaneRosters(state, host, RosterUse::kManage);
}

void ShowDeletedCourses(SharedState& state, ScreenHost& host) {
  RecoverInterruptedRun(state, host);
  host.ShowModal(Load<DeletedCourses>(host));
}

MenuEntry CourseTool(const CourseLibrary& library) {
  return {
      .caption = std::string(kCourseLibraryTitle) + " of &" + std::string(library.sibling) + "...",
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
  Platform& platform = state.files.platform();
  if (platform.FolderExists(state.KVDataPath)) {
    tools.push_back({.caption = "Rosters of Kel&vane...", .open = ManageKelvaneRosters});
  }
  if (platform.FolderExists(state.QBDataPath)) {
    tools.push_back({.caption = "Rosters of Q&uenby...", .open = ManageQuenbyRosters});
  }
  const std::size_t rosters = tools.size();
  for (const CourseLibrary& library : kCourseLibraries) {
    if (state.files.FileExists(CourseFilePath(state, library))) {
      tools.push_back(CourseTool(library));
    }
  }
  if (tools.size() > rosters) {
    tools.push_back({.caption = "&Deleted courses...", .open = ShowDeletedCourses});
  }
  if (platform.FolderExists(state.QBDataPath)) {
    tools.push_back(ScreenTool("&Results...", "Results"));
    tools.push_back(ScreenTool("Team results &layouts...", "TeamLayouts"));
  }
  const bool has_data = std::ranges::any_of(kCourseLibraries, [&](const CourseLibrary& library) {
    return platform.FolderExists(state.*library.folder);
  });
  if (has_data) {
    tools.push_back(ScreenTool("&Check the data...", "CheckData"));
    tools.push_back(ScreenTool("&Export...", "ExportData"));
  }
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
