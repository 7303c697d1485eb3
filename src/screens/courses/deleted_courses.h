#pragma once

#include <cstdint>
#include <vector>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "stores/course/course_library.h"

namespace golf {

// Lists the deleted courses of a library. The operator can restore one of them. The screen uses the
// shared Course object. With the tag "KV", "QB" or "ZD" it begins with that library.
class DeletedCourses : public Screen {
 public:
  static constexpr const char* kName = "DeletedCourses";

  explicit DeletedCourses(const ScreenContext& context);

  void OnActivate() override;
  void OnUnload() override;
  Button* LeaveButton() override { return &ExitButton; }

  Label LibraryLabel{"LibraryLabel", "&Library"};
  ComboBox LibraryList{"LibraryList"};
  Label ListLabel{"ListLabel", "Deleted &courses"};
  Grid CourseList;
  Label NoteLabel{"NoteLabel"};
  Button RestoreButton{"RestoreButton", "&Restore..."};
  Button ExitButton{"ExitButton", "Close"};

  // These are the columns of the list.
  static constexpr int kNumberColumn = 1;
  static constexpr int kNameColumn = 2;
  static constexpr int kHolesColumn = 3;
  static constexpr int kCityColumn = 4;

 private:
  void OpenLibrary();
  void FillList();
  bool IsWanted(const CourseLibrary& library);
  void Restore();

  std::vector<const CourseLibrary*> libraries_;  // of the items of LibraryList
  bool is_open_ = false;
};

}  // namespace golf
