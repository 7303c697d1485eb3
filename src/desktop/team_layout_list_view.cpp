#include "desktop/accessible.h"
#include "desktop/layout_helpers.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/results/team_layout_list.h"

namespace golf {
namespace {

constexpr int kCharacters = 42;
constexpr int kLines = 12;

}  // namespace

void FillTeamLayouts(ScreenPanel& panel, TeamLayouts& screen) {
  Binding& binding = panel.binding();
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(MakeLabel(binding, &panel, screen.ListLabel), wxSizerFlags().Expand());
  wxListBox* list =
      NameAfter(binding, screen.ListLabel, MakeListBox(binding, &panel, screen.LayoutList));
  SetRoom(panel, *list, kCharacters, kLines);
  content->Add(list, wxSizerFlags(1).Expand().Border(wxTOP, CloseGap(panel)));
  const auto button = [&](Button& control) { return MakeButton(binding, panel.foot(), control); };
  AddToFoot(panel, ButtonRow({.affirmative = button(screen.EditButton),
                              .cancel = button(screen.ExitButton),
                              .aside = {button(screen.NewButton), button(screen.DuplicateButton),
                                        button(screen.DeleteButton)}}));
  FinishWindow(panel, content);
}

}  // namespace golf
