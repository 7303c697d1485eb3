#include "desktop/layout_helpers.h"
#include "desktop/league_panel.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "stores/zandel/zandel_batches.h"
#include "transfers/zd_to_kv.h"

namespace golf {
namespace {

constexpr int kBatchesWidth = 370;  // for the longest name of a batch, in pixels of a plain screen

// The league with its scores beside the roster that they go to.
wxSizer* Ends(Binding& binding, wxWindow* parent, ZDtoKV& screen) {
  auto* league = new wxBoxSizer(wxVERTICAL);
  league->Add(
      RosterColumn(binding, parent, screen.Label1[2], screen.LeagueRoster, screen.SourceButton),
      wxSizerFlags().Expand());
  wxChoice* batches = MakeChoice(binding, parent, screen.EventList, BatchHeading);
  batches->SetMinSize(parent->FromDIP(wxSize(kBatchesWidth, -1)));
  league->Add(batches, wxSizerFlags().Expand().Border(wxTOP, CloseGap(*parent)));
  auto* ends = new wxGridSizer(2, 0, GroupGap(*parent));
  ends->Add(league, wxSizerFlags().Expand());
  ends->Add(
      RosterColumn(binding, parent, screen.Label1[1], screen.HandicapRoster, screen.DestButton),
      wxSizerFlags().Expand());
  return ends;
}

wxPanel* MakeMain(ScreenPanel& panel, ZDtoKV& screen) {
  Binding& binding = panel.binding();
  wxPanel* frame = MakeFrame(binding, &panel, screen.Frame2);
  const auto group = wxSizerFlags().Expand().Border(wxTOP, GroupGap(panel));
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(Ends(binding, frame, screen), wxSizerFlags().Expand());
  content->Add(RunLog(binding, frame, screen.Label1[0], screen.Message),
               wxSizerFlags(1).Expand().Border(wxTOP, GroupGap(panel)));
  content->Add(MakeLabel(binding, frame, screen.Working), group);
  AddKeepingPlace(*content, *panel.MakeGauge(frame), CloseGap(panel));
  content->Add(ButtonRow({.affirmative = MakeButton(binding, frame, screen.TransferButton),
                          .cancel = MakeButton(binding, frame, screen.ExitButton)}),
               group);
  frame->SetSizer(content);
  return frame;
}

}  // namespace

void FillZDtoKV(ScreenPanel& panel, ZDtoKV& screen) {
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(MakeMain(panel, screen), wxSizerFlags(1).Expand());
  content->Add(MakeLeaguePanel(panel, screen.picker), wxSizerFlags(1).Expand());
  FinishWindow(panel, content);
}

}  // namespace golf
