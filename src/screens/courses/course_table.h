#pragma once

#include <cstdint>
#include <string_view>

#include "core/shared_state.h"
#include "forms/screen_host.h"

namespace golf {

// Lists the active courses by name. The operator adds, edits and deletes courses. The screen uses
// the shared Course object, whose library must be open. Closing the screen rewrites the library's
// indexes.
class CourseTable : public Screen {
 public:
  static constexpr const char* kName = "CourseTable";

  explicit CourseTable(const ScreenContext& context);

  void OnLoad() override;
  void OnActivate() override;
  void OnUnload() override;
  Button* LeaveButton() override { return &CloseButton; }

  Grid CourseGrid{"CourseGrid", 3};
  Button AddCourseButton{"AddCourseButton", "Add &New Course"};
  Button EditCourseButton{"EditCourseButton", "Ed&it Course"};
  Button DeleteCourseButton{"DeleteCourseButton", "&Delete Course"};
  Button CloseButton{"CloseButton", "&Close"};
  Button Help{"Help", "&Help"};

 private:
  // Lists the courses. Makes the row of the given course active if the course is listed.
  void LoadGrid(std::int32_t course_in_hand);
  std::int32_t ChosenCourse() const;
  bool IsCancelledByWarning(std::string_view what);
  bool FormAccepted(Screen& form);
  void AddCourse();
  void EditCourse();
  void DeleteCourse();
  void Save(const char* command, std::int32_t record);
  void Close();

  bool kelvane_installed_ = false;
  bool form_used_ = false;
};

}  // namespace golf
