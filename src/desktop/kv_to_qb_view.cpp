#include "desktop/accessible.h"
#include "desktop/layout_helpers.h"
#include "desktop/list_widget.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/transfers/kv_to_qb.h"

namespace golf {
namespace {

constexpr int kRowsSeen = 14;  // of the items

}  // namespace

void FillKVtoQB(ScreenPanel& panel, KVtoQB& screen) {
  Binding& binding = panel.binding();
  auto* rosters = new wxBoxSizer(wxHORIZONTAL);
  rosters->Add(
      RosterColumn(binding, &panel, screen.Label1[0], screen.HandicapRoster, screen.SourceButton),
      wxSizerFlags(1).Expand());
  rosters->Add(MakeLabel(binding, &panel, screen.Label1[2]),
               wxSizerFlags().CentreVertical().Border(wxLEFT | wxRIGHT, GroupGap(panel)));
  rosters->Add(
      RosterColumn(binding, &panel, screen.Label1[1], screen.TournamentRoster, screen.DestButton),
      wxSizerFlags(1).Expand());

  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(rosters, wxSizerFlags().Expand());
  content->AddSpacer(GroupGap(panel));
  content->Add(Column({MakeCheckBox(binding, &panel, screen.MarkedtoPrint),
                       MakeCheckBox(binding, &panel, screen.Convert18Hcpto9Hcp),
                       MakeCheckBox(binding, &panel, screen.Convert9Hcpto18Hcp)}));
  content->AddSpacer(GroupGap(panel));
  content->Add(MakeHeading(&panel, "Items to copy"));
  wxDataViewCtrl* items = MakeList(binding, &panel, screen.grid1, SelectedRows::kOne, kRowsSeen);
  SetRoom(panel, *Named("Items to copy", items));
  content->Add(items, wxSizerFlags(1).Expand().Border(wxTOP, CloseGap(panel)));
  content->AddSpacer(GroupGap(panel));
  content->Add(MakeLabel(binding, &panel, screen.Working), wxSizerFlags().Expand());
  AddKeepingPlace(*content, *panel.MakeGauge(&panel), CloseGap(panel));
  const auto button = [&](Button& control) { return MakeButton(binding, panel.foot(), control); };
  AddToFoot(panel, ButtonRow({.affirmative = button(screen.TransferButton),
                              .variant = button(screen.PreviewButton),
                              .cancel = button(screen.ExitButton)}));
  FinishWindow(panel, content);
}

}  // namespace golf
