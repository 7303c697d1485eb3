#include "desktop/grid_widget.h"
#include "desktop/layout_helpers.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/results/team_results_screen.h"

namespace golf {
namespace {

constexpr int kStandingsSeen = 8;  // rows
constexpr int kCardSeen = 9;
constexpr int kWidth = 1140;  // in device-independent pixels
constexpr int kListWidth = 260;

wxSizer* Choices(ScreenPanel& panel, TeamResults& screen) {
  Binding& binding = panel.binding();
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  const auto middle = wxSizerFlags().CentreVertical().Border(wxLEFT, GroupGap(panel));
  wxStaticText* tournament = MakeLabel(binding, &panel, screen.TournamentLabel);
  MakeBold(*tournament);
  row->Add(tournament, wxSizerFlags(1).CentreVertical());
  row->Add(MakeLabel(binding, &panel, screen.LayoutLabel), middle);
  wxChoice* layouts = MakeChoice(binding, &panel, screen.LayoutList);
  layouts->SetMinSize({panel.FromDIP(kListWidth), -1});
  row->Add(layouts, middle);
  row->Add(MakeLabel(binding, &panel, screen.RoundLabel), middle);
  row->Add(MakeChoice(binding, &panel, screen.RoundList), middle);
  return row;
}

wxGrid* MakeTable(ScreenPanel& panel, Grid& control, GridMarks marks, int rows_seen) {
  wxGrid* grid = MakeGrid(panel.binding(), &panel, control, marks, rows_seen);
  grid->SetMinSize({panel.FromDIP(kWidth), grid->GetMinSize().y});
  return grid;
}

}  // namespace

void FillTeamResults(ScreenPanel& panel, TeamResults& screen) {
  Binding& binding = panel.binding();
  const auto button = [&](Button& control) { return MakeButton(binding, &panel, control); };
  const auto below = wxSizerFlags().Expand().Border(wxTOP, CloseGap(panel));
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(Choices(panel, screen), wxSizerFlags().Expand());
  content->Add(MakeTable(panel, screen.grid1, GridMarks::kRows, kStandingsSeen),
               wxSizerFlags(1).Expand().Border(wxTOP, CloseGap(panel)));
  content->Add(MakeLabel(binding, &panel, screen.SortedLabel), below);
  content->Add(MakeLabel(binding, &panel, screen.CardLabel), below);
  content->Add(MakeTable(panel, screen.grid2, GridMarks::kCells, kCardSeen),
               wxSizerFlags(1).Expand().Border(wxTOP, CloseGap(panel)));
  auto* buttons = new wxBoxSizer(wxHORIZONTAL);
  for (Button* control : {&screen.SortButton, &screen.CopyButton, &screen.SaveButton}) {
    buttons->Add(button(*control), wxSizerFlags().Border(wxRIGHT, CloseGap(panel)));
  }
  buttons->Add(ButtonRow({.cancel = button(screen.ExitButton)}), wxSizerFlags(1));
  content->Add(buttons, wxSizerFlags().Expand().Border(wxTOP, GroupGap(panel)));
  FinishWindow(panel, content);
}

}  // namespace golf
