#include "desktop/layout_helpers.h"
#include "desktop/league_panel.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/transfers/zd_to_qb.h"

namespace golf {
namespace {

wxPanel* MakeMain(ScreenPanel& panel, ZDtoQB& screen) {
  Binding& binding = panel.binding();
  wxPanel* frame = MakeFrame(binding, &panel, screen.Frame2);
  const auto group = wxSizerFlags().Expand().Border(wxTOP, GroupGap(panel));
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(MakeLabel(binding, frame, screen.Label1[0]), wxSizerFlags().CentreHorizontal());
  content->Add(SideBySide(panel, {RosterColumn(binding, frame, screen.Label1[1],
                                               screen.LeagueRoster, screen.SourceButton),
                                  RosterColumn(binding, frame, screen.Label1[2],
                                               screen.TournamentRoster, screen.DestButton)}),
               group);
  content->Add(Column({MakeCheckBox(binding, frame, screen.Handicapto18),
                       MakeCheckBox(binding, frame, screen.TransferSubs)}),
               group);
  AddRun(*content, panel, frame,
         {.heading = screen.Label1[3],
          .log = screen.Message,
          .working = screen.Working,
          .count = &screen.WorkingCount,
          .transfer = screen.TransferButton,
          .preview = screen.PreviewButton,
          .leave = screen.CancelButton});
  frame->SetSizer(content);
  return frame;
}

}  // namespace

void FillZDtoQB(ScreenPanel& panel, ZDtoQB& screen) {
  FillWithLeagues(panel, MakeMain(panel, screen), screen.picker);
}

}  // namespace golf
