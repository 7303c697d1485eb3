#include "desktop/layout_helpers.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/transfers/kv_courses_to_qb.h"

namespace golf {
namespace {

constexpr int kCharacters = 50;  // of a line of the text

}  // namespace

void FillKVCoursestoQB(ScreenPanel& panel, KVCoursestoQB& screen) {
  Binding& binding = panel.binding();
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(MakeWrappedLabel(binding, &panel, screen.Label1, TextWidth(panel, kCharacters)));
  content->AddSpacer(GroupGap(panel));
  content->Add(MakeLabel(binding, &panel, screen.TransferLabel), wxSizerFlags().Expand());
  AddKeepingPlace(*content, *panel.MakeGauge(&panel), CloseGap(panel));
  const auto button = [&](Button& control) { return MakeButton(binding, panel.foot(), control); };
  AddToFoot(panel, ButtonRow({.affirmative = button(screen.TransferCourses),
                              .variant = button(screen.PreviewButton),
                              .cancel = button(screen.CancelButton)}));
  FinishWindow(panel, content);
}

}  // namespace golf
