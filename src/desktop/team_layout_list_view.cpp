#include "desktop/layout_helpers.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/results/team_layout_list.h"

namespace golf {

void FillTeamLayouts(ScreenPanel& panel, TeamLayouts& screen) {
  Binding& binding = panel.binding();
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(MakeLabel(binding, &panel, screen.ListLabel), wxSizerFlags().Expand());
  wxListBox* list = MakeListBox(binding, &panel, screen.LayoutList);
  list->SetMinSize(panel.FromDIP(wxSize(320, 220)));
  content->Add(list, wxSizerFlags(1).Expand().Border(wxTOP, CloseGap(panel)));
  const auto button = [&](Button& control) { return MakeButton(binding, &panel, control); };
  content->Add(ButtonRow({.affirmative = button(screen.EditButton),
                          .cancel = button(screen.ExitButton),
                          .aside = button(screen.NewButton)}),
               wxSizerFlags().Expand().Border(wxTOP, GroupGap(panel)));
  FinishWindow(panel, content);
}

}  // namespace golf
