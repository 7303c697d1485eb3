#include "desktop/labelled.h"

#include "desktop/accessible.h"
#include "desktop/layout_helpers.h"
#include "desktop/widgets.h"

namespace golf {
namespace {

void AddLabel(wxSizer& content, ScreenPanel& panel, Label& label) {
  const int gap = content.IsEmpty() ? 0 : GroupGap(panel);
  content.Add(MakeFieldLabel(panel.binding(), &panel, label),
              wxSizerFlags().Expand().Border(wxTOP, gap));
}

void AddBelow(wxSizer& content, ScreenPanel& panel, wxWindow& widget, const Room& room) {
  SetRoom(panel, widget, room.characters, room.lines);
  content.Add(&widget, wxSizerFlags(room.share).Expand().Border(wxTOP, CloseGap(panel)));
}

}  // namespace

void AddLabelledList(wxSizer& content, ScreenPanel& panel, Label& label, Grid& grid,
                     SelectedRows selected, const Room& room) {
  AddLabel(content, panel, label);
  wxDataViewCtrl* list = MakeList(panel.binding(), &panel, grid, selected, room.lines);
  AddBelow(content, panel, *NameAfter(panel.binding(), label, list), room);
}

void AddLabelledText(wxSizer& content, ScreenPanel& panel, Label& label, TextBox& text,
                     const Room& room) {
  AddLabel(content, panel, label);
  wxTextCtrl* box = MakeTextBox(panel.binding(), &panel, text, wxTE_MULTILINE);
  AddBelow(content, panel, *NameAfter(panel.binding(), label, box), room);
}

}  // namespace golf
