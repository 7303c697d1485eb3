#include "desktop/grid_widget.h"
#include "desktop/layout_helpers.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/results/team_results_screen.h"

namespace golf {
namespace {

constexpr int kStandingsSeen = 8;  // rows
constexpr int kCardSeen = 9;
constexpr int kCharacters = 140;
constexpr int kListCharacters = 26;
constexpr int kTournamentCharacters = 16;

wxSizer* Choices(ScreenPanel& panel, TeamResults& screen) {
  Binding& binding = panel.binding();
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  const auto middle = wxSizerFlags().CentreVertical().Border(wxLEFT, GroupGap(panel));
  wxStaticText* tournament = MakeLabel(binding, &panel, screen.TournamentLabel);
  MakeBold(*tournament);
  SetColumns(*tournament, kTournamentCharacters);
  row->Add(tournament, wxSizerFlags(1).CentreVertical());
  row->Add(MakeLabel(binding, &panel, screen.LayoutLabel), middle);
  wxChoice* layouts = MakeChoice(binding, &panel, screen.LayoutList);
  SetColumns(*layouts, kListCharacters);
  row->Add(layouts, middle);
  row->Add(MakeLabel(binding, &panel, screen.RoundLabel), middle);
  row->Add(MakeChoice(binding, &panel, screen.RoundList), middle);
  return row;
}

wxGrid* MakeTable(ScreenPanel& panel, Grid& control, GridMarks marks, int rows_seen) {
  wxGrid* grid = MakeGrid(panel.binding(), &panel, control, marks, rows_seen);
  SetRoom(panel, *grid, kCharacters, rows_seen);
  return grid;
}

}  // namespace

void FillTeamResults(ScreenPanel& panel, TeamResults& screen) {
  Binding& binding = panel.binding();
  const auto button = [&](Button& control) { return MakeButton(binding, panel.foot(), control); };
  const auto below = wxSizerFlags().Expand().Border(wxTOP, CloseGap(panel));
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(Choices(panel, screen), wxSizerFlags().Expand());
  content->Add(MakeTable(panel, screen.grid1, GridMarks::kRows, kStandingsSeen),
               wxSizerFlags(1).Expand().Border(wxTOP, CloseGap(panel)));
  content->Add(MakeLabel(binding, &panel, screen.SortedLabel), below);
  content->Add(MakeLabel(binding, &panel, screen.CardLabel), below);
  content->Add(MakeTable(panel, screen.grid2, GridMarks::kCells, kCardSeen),
               wxSizerFlags(1).Expand().Border(wxTOP, CloseGap(panel)));
  AddToFoot(panel, ButtonRow({.cancel = button(screen.ExitButton),
                              .aside = {button(screen.SortButton), button(screen.CopyButton),
                                        button(screen.SaveButton)}}));
  FinishWindow(panel, content);
}

}  // namespace golf
