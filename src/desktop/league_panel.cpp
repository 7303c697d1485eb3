#include "desktop/league_panel.h"

#include "desktop/layout_helpers.h"
#include "desktop/widgets.h"

namespace golf {

wxPanel* MakeLeaguePanel(ScreenPanel& panel, LeaguePicker& picker) {
  Binding& binding = panel.binding();
  wxPanel* frame = MakeFrame(binding, &panel, picker.Panel);
  wxStaticText* title = MakeLabel(binding, frame, picker.LoadLeagueLabel);
  MakeBold(*title);
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(title, wxSizerFlags().Expand());
  content->Add(MakeListBox(binding, frame, picker.LeagueList, LeaguePicker::HeadingOf),
               wxSizerFlags(1).Expand().Border(wxTOP, CloseGap(panel)));
  content->Add(ButtonRow({.affirmative = MakeButton(binding, frame, picker.OKLEague),
                          .cancel = MakeButton(binding, frame, picker.CancelLeague)}),
               wxSizerFlags().Expand().Border(wxTOP, GroupGap(panel)));
  frame->SetSizer(content);
  return frame;
}

}  // namespace golf
