#include "desktop/layout_helpers.h"
#include "desktop/league_panel.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "transfers/zd_to_qb.h"

namespace golf {
namespace {

wxPanel* MakeMain(ScreenPanel& panel, ZDtoQB& screen) {
  Binding& binding = panel.binding();
  wxPanel* frame = MakeFrame(binding, &panel, screen.Frame2);
  const int gap = GroupGap(panel);
  auto* ends = new wxGridSizer(2, 0, gap);
  ends->Add(
      RosterColumn(binding, frame, screen.Label1[1], screen.LeagueRoster, screen.SourceButton),
      wxSizerFlags().Expand());
  ends->Add(
      RosterColumn(binding, frame, screen.Label1[2], screen.TournamentRoster, screen.DestButton),
      wxSizerFlags().Expand());
  const auto group = wxSizerFlags().Expand().Border(wxTOP, gap);
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(MakeLabel(binding, frame, screen.Label1[0]), wxSizerFlags().CentreHorizontal());
  content->Add(ends, group);
  content->Add(Column({MakeCheckBox(binding, frame, screen.Handicapto18),
                       MakeCheckBox(binding, frame, screen.TransferSubs)}),
               group);
  content->Add(RunLog(binding, frame, screen.Label1[3], screen.Message),
               wxSizerFlags(1).Expand().Border(wxTOP, gap));
  content->Add(RunProgress(panel, frame, screen.Working, screen.WorkingCount), group);
  content->Add(ButtonRow({.affirmative = MakeButton(binding, frame, screen.TransferButton),
                          .cancel = MakeButton(binding, frame, screen.CancelButton)}),
               group);
  frame->SetSizer(content);
  return frame;
}

}  // namespace

void FillZDtoQB(ScreenPanel& panel, ZDtoQB& screen) {
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(MakeMain(panel, screen), wxSizerFlags(1).Expand());
  content->Add(MakeLeaguePanel(panel, screen.picker), wxSizerFlags(1).Expand());
  FinishWindow(panel, content);
}

}  // namespace golf
