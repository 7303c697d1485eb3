#include "desktop/accessible.h"
#include "desktop/layout_helpers.h"
#include "desktop/league_panel.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/transfers/zd_to_kv.h"
#include "stores/zandel/zandel_batches.h"

namespace golf {
namespace {

constexpr int kBatchCharacters = 40;  // of the longest name of a batch

// Lays out the league and its batches of scores beside the roster that receives them.
wxSizer* Ends(ScreenPanel& panel, wxWindow* parent, ZDtoKV& screen) {
  Binding& binding = panel.binding();
  auto* league = new wxBoxSizer(wxVERTICAL);
  league->Add(
      RosterColumn(binding, parent, screen.Label1[2], screen.LeagueRoster, screen.SourceButton),
      wxSizerFlags().Expand());
  league->Add(MakeText(parent, "Scores to transfer"),
              wxSizerFlags().Border(wxTOP, CloseGap(*parent)));
  wxChoice* batches =
      Named("Scores to transfer", MakeChoice(binding, parent, screen.EventList, BatchHeading));
  SetColumns(*batches, kBatchCharacters);
  SetRoom(panel, *batches);
  league->Add(batches, wxSizerFlags().Expand().Border(wxTOP, CloseGap(*parent)));
  return SideBySide(*parent, {league, RosterColumn(binding, parent, screen.Label1[1],
                                                   screen.HandicapRoster, screen.DestButton)});
}

wxPanel* MakeMain(ScreenPanel& panel, ZDtoKV& screen) {
  wxPanel* frame = MakeFrame(panel.binding(), &panel, screen.Frame2);
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(Ends(panel, frame, screen), wxSizerFlags().Expand());
  AddRun(*content, panel, frame,
         {.heading = screen.Label1[0],
          .log = screen.Message,
          .working = screen.Working,
          .count = nullptr,
          .transfer = screen.TransferButton,
          .preview = screen.PreviewButton,
          .leave = screen.ExitButton});
  frame->SetSizer(content);
  return frame;
}

}  // namespace

void FillZDtoKV(ScreenPanel& panel, ZDtoKV& screen) {
  FillWithLeagues(panel, MakeMain(panel, screen), screen.picker);
}

}  // namespace golf
