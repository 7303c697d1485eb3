#include "desktop/league_panel.h"

#include "desktop/accessible.h"
#include "desktop/layout_helpers.h"
#include "desktop/widgets.h"

namespace golf {
namespace {

wxPanel* MakeLeaguePanel(ScreenPanel& panel, LeaguePicker& picker) {
  Binding& binding = panel.binding();
  wxPanel* frame = MakeFrame(binding, &panel, picker.Panel);
  wxStaticText* title = MakeLabel(binding, frame, picker.LoadLeagueLabel);
  MakeBold(*title);
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(title, wxSizerFlags().Expand());
  wxListBox* list = MakeListBox(binding, frame, picker.LeagueList, LeaguePicker::HeadingOf);
  content->Add(NameAfter(binding, picker.LoadLeagueLabel, list),
               wxSizerFlags(1).Expand().Border(wxTOP, CloseGap(panel)));
  AddToFoot(panel, ButtonRow({.affirmative = MakeButton(binding, panel.foot(), picker.OKLEague),
                              .cancel = MakeButton(binding, panel.foot(), picker.CancelLeague)}));
  frame->SetSizer(content);
  return frame;
}

}  // namespace

void FillWithLeagues(ScreenPanel& panel, wxPanel* main, LeaguePicker& picker) {
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(main, wxSizerFlags(1).Expand());
  content->Add(MakeLeaguePanel(panel, picker), wxSizerFlags(1).Expand());
  FinishWindow(panel, content);
}

}  // namespace golf
