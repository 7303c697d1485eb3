#pragma once

#include <cstdint>
#include <memory>

#include "core/shared_state.h"
#include "forms/screen_host.h"

namespace golf {

// Copies the whole Kelvane course library into the Quenby one: a course that was copied before is
// overwritten in place, found by the Kelvane number that it carries, any other is appended. Then
// the Quenby indexes are rebuilt.
class KVCoursestoQB : public Screen {
 public:
  explicit KVCoursestoQB(const ScreenContext& context);

  void OnLoad() override;
  Button* LeaveButton() override { return &CancelButton; }

  Label Label1{"Label1"};
  Label TransferLabel{"TransferLabel"};
  Button TransferCourses{"TransferCourses", "&Transfer Courses"};
  Button CancelButton{"CancelButton", "Cancel"};

 private:
  struct Counts {
    std::int16_t added = 0;
    std::int16_t updated = 0;
  };

  void Transfer();
  Counts CopyCourses();
  void TellCounts(const Counts& counts);
  void RebuildIndexes();
};

}  // namespace golf
