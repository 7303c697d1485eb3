#include "screens/transfers/kv_courses_to_qb.h"

#include "transfers/courses_kv_to_qb.h"

namespace golf {

KVCoursestoQB::KVCoursestoQB(const ScreenContext& context) : Screen(kName, context) {
  SetCaption("Transfer COURSES from Kelvane to Quenby");
  Add({&Label1, &TransferLabel, &TransferCourses, &CancelButton, &PreviewButton});
  TransferCourses.SetDefault(true);
  CancelButton.SetCancel(true);
  TransferCourses.on_click = [this] { Start(RunEnding::kCommit); };
  PreviewButton.on_click = [this] { Start(RunEnding::kPreview); };
  CancelButton.on_click = [this] { host().Unload(*this); };
}

void KVCoursestoQB::OnLoad() {
  Label1.SetCaption(
      "Click the button below to copy (update) courses from the Kelvane's course library to the "
      "Quenby's course library.");
}

void KVCoursestoQB::Start(RunEnding ending) {
  RunTransfer(*this, state(), host(), ending, [this] { Transfer(); });
}

void KVCoursestoQB::Transfer() {
  CoursesKvToQbReport report;
  RunWhole(state(), host(), {.working = &TransferLabel}, {.command = "courses-kv-to-qb"},
           CoursesKvToQbRequest(), report);
  host().NoteCount("added", report.added);
  host().NoteCount("updated", report.updated);
  host().Ask(Box{.title = "Course transfer complete.",
                 .text = CountsText(report, "\r"),
                 .icon = BoxIcon::kInformation});
  if (report.index_error) throw *report.index_error;
  host().Unload(*this);
}

}  // namespace golf
