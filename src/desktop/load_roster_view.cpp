#include "desktop/accessible.h"
#include "desktop/layout_helpers.h"
#include "desktop/list_widget.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/rosters/load_roster.h"

namespace golf {
namespace {

constexpr int kRowsSeen = 10;

wxSizer* Folder(ScreenPanel& panel, LoadRoster& screen) {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(MakeLabel(panel.binding(), &panel, screen.Label1),
           wxSizerFlags().Border(wxRIGHT, CloseGap(panel)));
  row->Add(MakePathLabel(panel.binding(), &panel, screen.DataPathLabel, PathWidth(panel)),
           wxSizerFlags(1));
  return row;
}

wxSizer* NewRoster(ScreenPanel& panel, LoadRoster& screen) {
  Binding& binding = panel.binding();
  wxStaticText* title = MakeLabel(binding, &panel, screen.InputTitle);
  MakeBold(*title);
  wxStaticText* label = MakeLabel(binding, &panel, screen.NameLabel);
  wxSizer* column = Column(
      {title, label,
       NameAfter(binding, screen.NameLabel, MakeTextBox(binding, &panel, screen.NewRosterName))});
  AddToFoot(panel, ButtonRow({.affirmative = MakeButton(binding, panel.foot(), screen.OK2Button),
                              .cancel = MakeButton(binding, panel.foot(), screen.Cancel2Button)}));
  return column;
}

}  // namespace

void FillLoadRoster(ScreenPanel& panel, LoadRoster& screen) {
  Binding& binding = panel.binding();
  auto* list = new wxBoxSizer(wxHORIZONTAL);
  wxDataViewCtrl* rosters = MakeList(binding, &panel, screen.grid1, SelectedRows::kOne, kRowsSeen);
  SetRoom(panel, *Named("Rosters", rosters));
  list->Add(rosters, wxSizerFlags(1).Expand().Border(wxRIGHT, GroupGap(panel)));
  list->Add(Column({MakeButton(binding, &panel, screen.LoadButton),
                    MakeButton(binding, &panel, screen.NewButton),
                    MakeButton(binding, &panel, screen.DeleteButton),
                    MakeButton(binding, &panel, screen.RepairButton),
                    MakeButton(binding, &panel, screen.CancelButton)}));
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(Folder(panel, screen), wxSizerFlags().Expand());
  content->Add(list, wxSizerFlags(1).Expand().Border(wxTOP, CloseGap(panel)));
  content->Add(NewRoster(panel, screen), wxSizerFlags().Expand().Border(wxTOP, CloseGap(panel)));
  FinishWindow(panel, content);
}

}  // namespace golf
