#pragma once

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "screens/transfers/screen_run.h"

namespace golf {

// Transfers Kelvane's course library to Quenby and shows the numbers of courses added and updated.
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
  Button PreviewButton{"PreviewButton", "Pre&view..."};

 private:
  void Start(RunEnding ending);
  void Transfer();
};

}  // namespace golf
