#include "desktop/layout_helpers.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/transfers/kv_courses_to_qb.h"

namespace golf {

void FillKVCoursestoQB(ScreenPanel& panel, KVCoursestoQB& screen) {
  Binding& binding = panel.binding();
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(MakeWrappedLabel(binding, &panel, screen.Label1, panel.FromDIP(400)));
  content->AddSpacer(GroupGap(panel));
  content->Add(MakeLabel(binding, &panel, screen.TransferLabel), wxSizerFlags().Expand());
  AddKeepingPlace(*content, *panel.MakeGauge(&panel), CloseGap(panel));
  content->AddStretchSpacer();
  content->Add(ButtonRow({.affirmative = MakeButton(binding, &panel, screen.TransferCourses),
                          .variant = MakeButton(binding, &panel, screen.PreviewButton),
                          .cancel = MakeButton(binding, &panel, screen.CancelButton)}),
               wxSizerFlags().Expand().Border(wxTOP, GroupGap(panel)));
  FinishWindow(panel, content);
}

}  // namespace golf
