#pragma once

#include "core/shared_state.h"
#include "forms/screen_host.h"

namespace golf {

// The screen on which the operator transfers the course library. It shows the counts before it
// writes Quenby's course indexes anew.
class KVCoursestoQB : public Screen {
 public:
  static constexpr const char* kName = "KVCoursestoQB";

  explicit KVCoursestoQB(const ScreenContext& context);

  void OnLoad() override;
  Button* LeaveButton() override { return &CancelButton; }

  Label Label1{"Label1"};
  Label TransferLabel{"TransferLabel"};
  Button TransferCourses{"TransferCourses", "&Transfer Courses"};
  Button CancelButton{"CancelButton", "Cancel"};

 private:
  void Transfer();
};

}  // namespace golf
