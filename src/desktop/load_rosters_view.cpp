#include "desktop/accessible.h"
#include "desktop/layout_helpers.h"
#include "desktop/list_widget.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/rosters/load_rosters.h"

namespace golf {
namespace {

constexpr int kRowsSeen = 10;
constexpr int kListCharacters = 70;

// The buttons that only a roster has keep their places, so that no other button moves under the
// pointer.
wxSizer* ListButtons(ScreenPanel& panel, LoadRosters& screen) {
  const auto button = [&](Button& control) { return MakeButton(panel.binding(), &panel, control); };
  wxButton* const edit = button(screen.EditButton);
  wxButton* const remove = button(screen.DeleteButton);
  wxSizer* column =
      Column({button(screen.LoadButton), button(screen.NewButton), edit, remove,
              button(screen.RepairButton), button(screen.Help), button(screen.CancelButton)});
  for (wxButton* kept : {edit, remove}) {
    wxSizerItem* const item = column->GetItem(kept);
    if (screen.CanChange()) item->SetFlag(item->GetFlag() | wxRESERVE_SPACE_EVEN_IF_HIDDEN);
  }
  return column;
}

// Lays out the fields of a roster, each with its name before it.
wxSizer* Entry(ScreenPanel& panel, LoadRosters& screen) {
  Binding& binding = panel.binding();
  auto* fields = new wxFlexGridSizer(2, CloseGap(panel), GroupGap(panel));
  fields->AddGrowableCol(1);
  for (std::size_t i = 0; i < screen.Text1.size(); ++i) {
    fields->Add(MakeLabel(binding, &panel, screen.FieldName[i]), wxSizerFlags().CentreVertical());
    fields->Add(
        NameAfter(binding, screen.FieldName[i], MakeTextBox(binding, &panel, screen.Text1[i])),
        wxSizerFlags().Expand());
  }
  const auto button = [&](Button& control) { return MakeButton(binding, panel.foot(), control); };
  AddToFoot(panel, ButtonRow({.affirmative = button(screen.AddEditRosterOK),
                              .negative = button(screen.EditRosterCancel),
                              .cancel = button(screen.AddRosterCancel)}));
  return fields;
}

}  // namespace

void FillLoadRosters(ScreenPanel& panel, LoadRosters& screen) {
  Binding& binding = panel.binding();
  wxDataViewCtrl* rosters = MakeList(binding, &panel, screen.grid1, SelectedRows::kOne, kRowsSeen);
  SetRoom(panel, *NameAfter(binding, screen.FilterLabel, rosters), kListCharacters, kRowsSeen);
  auto* list = new wxBoxSizer(wxHORIZONTAL);
  list->Add(rosters, wxSizerFlags(1).Expand().Border(wxRIGHT, GroupGap(panel)));
  list->Add(ListButtons(panel, screen));
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(Column({MakeLabel(binding, &panel, screen.FilterLabel),
                       MakePathLabel(binding, &panel, screen.DataPathLabel, PathWidth(panel))}),
               wxSizerFlags().Expand());
  content->Add(list, wxSizerFlags(1).Expand().Border(wxTOP, CloseGap(panel)));
  content->Add(Entry(panel, screen), wxSizerFlags().Expand().Border(wxTOP, GroupGap(panel)));
  FinishWindow(panel, content);
}

}  // namespace golf
