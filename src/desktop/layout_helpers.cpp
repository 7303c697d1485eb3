#include "desktop/layout_helpers.h"

#include "desktop/widgets.h"

namespace golf {

int CloseGap(const wxWindow& window) { return window.FromDIP(6); }
int GroupGap(const wxWindow& window) { return window.FromDIP(16); }
int EdgeGap(const wxWindow& window) { return window.FromDIP(14); }

wxSizer* Column(std::initializer_list<wxWindow*> controls) {
  auto* column = new wxBoxSizer(wxVERTICAL);
  for (wxWindow* control : controls) {
    // A border, not a spacer: a control that is hidden leaves no gap.
    const int gap = column->GetItemCount() > 0 ? CloseGap(*control) : 0;
    column->Add(control, wxSizerFlags().Expand().Border(wxTOP, gap));
  }
  return column;
}

wxSizer* ButtonRow(const EndButtons& buttons) {
#ifdef __WXMSW__
  const std::initializer_list<wxButton*> order = {buttons.affirmative, buttons.negative,
                                                  buttons.cancel};
#else
  const std::initializer_list<wxButton*> order = {buttons.negative, buttons.cancel,
                                                  buttons.affirmative};
#endif
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->AddStretchSpacer();
  for (wxButton* button : order) {
    if (button != nullptr) {
      row->Add(button, wxSizerFlags().Border(wxLEFT, CloseGap(*button)));
    }
  }
  return row;
}

wxSizer* RosterColumn(ScreenPanel& panel, Label& heading, TextBox& name, Button& finder) {
  Binding& binding = panel.binding();
  wxStaticText* title = MakeLabel(binding, &panel, heading);
  MakeBold(*title);
  return Column({title, MakeTextBox(binding, &panel, name), MakeButton(binding, &panel, finder)});
}

void AddKeepingPlace(wxSizer& sizer, wxWindow& widget, int gap_above) {
  sizer.Add(&widget, wxSizerFlags().Expand().ReserveSpaceEvenIfHidden().Border(wxTOP, gap_above));
}

void MakeBold(wxWindow& widget) { widget.SetFont(widget.GetFont().Bold()); }

void FinishWindow(ScreenPanel& panel, wxSizer* content) {
  auto* edge = new wxBoxSizer(wxVERTICAL);
  edge->Add(content, wxSizerFlags(1).Expand().Border(wxALL, EdgeGap(panel)));
  panel.SetSizer(edge);
  panel.binding().Refresh();
  auto* outer = new wxBoxSizer(wxVERTICAL);
  outer->Add(&panel, wxSizerFlags(1).Expand());
  panel.window().SetSizerAndFit(outer);
}

void LayOutAgain(ScreenPanel& panel) {
  wxTopLevelWindow& window = panel.window();
  if (window.GetSizer() == nullptr) return;
  panel.InvalidateBestSize();
  const wxSize needed = window.GetSizer()->ComputeFittingClientSize(&window);
  window.SetMinClientSize(needed);
  wxSize size = window.GetClientSize();
  size.IncTo(needed);
  window.SetClientSize(size);
  window.Layout();
}

}  // namespace golf
