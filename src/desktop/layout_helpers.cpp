#include "desktop/layout_helpers.h"

#include "core/text.h"
#include "desktop/log_buttons.h"
#include "desktop/widgets.h"

namespace golf {
namespace {

constexpr int kLogColumns = 66;
constexpr int kLogLines = 9;

std::string WithoutEdges(const std::string& text) { return std::string(Trim(text)); }

wxSizer* RunLog(Binding& binding, wxWindow* parent, Label& heading, TextBox& log) {
  wxStaticText* title = MakeLabel(binding, parent, heading, WithoutEdges);
  MakeBold(*title);
  wxTextCtrl* box = MakeTextBox(binding, parent, log, wxTE_MULTILINE | wxTE_DONTWRAP);
  wxFont font = box->GetFont();
  font.SetFamily(wxFONTFAMILY_TELETYPE);
  box->SetFont(font);
  box->SetMinSize({kLogColumns * box->GetCharWidth(), kLogLines * box->GetCharHeight()});
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(title, wxSizerFlags().Expand());
  column->Add(box, wxSizerFlags(1).Expand().Border(wxTOP, CloseGap(*parent)));
  column->Add(LogButtons(parent, *box), wxSizerFlags().Expand().Border(wxTOP, CloseGap(*parent)));
  return column;
}

wxSizer* RunProgress(ScreenPanel& panel, wxWindow* parent, const RunControls& run) {
  auto* texts = new wxBoxSizer(wxHORIZONTAL);
  texts->Add(MakeLabel(panel.binding(), parent, run.working), wxSizerFlags(1));
  if (run.count != nullptr) texts->Add(MakeLabel(panel.binding(), parent, *run.count));
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(texts, wxSizerFlags().Expand());
  AddKeepingPlace(*column, *panel.MakeGauge(parent), CloseGap(panel));
  return column;
}

}  // namespace

int CloseGap(const wxWindow& window) { return window.FromDIP(6); }
int GroupGap(const wxWindow& window) { return window.FromDIP(16); }
int EdgeGap(const wxWindow& window) { return window.FromDIP(14); }

wxSizer* Column(std::initializer_list<wxWindow*> controls) {
  auto* column = new wxBoxSizer(wxVERTICAL);
  for (wxWindow* control : controls) {
    // A border is used and not a spacer, so that a hidden control leaves no gap.
    const int gap = column->GetItemCount() > 0 ? CloseGap(*control) : 0;
    column->Add(control, wxSizerFlags().Expand().Border(wxTOP, gap));
  }
  return column;
}

wxSizer* SideBySide(const wxWindow& window, std::initializer_list<wxSizer*> ends) {
  auto* row = new wxGridSizer(2, 0, GroupGap(window));
  for (wxSizer* end : ends) row->Add(end, wxSizerFlags().Expand());
  return row;
}

wxSizer* ButtonRow(const EndButtons& buttons) {
#ifdef __WXMSW__
  const std::initializer_list<wxButton*> order = {buttons.affirmative, buttons.variant,
                                                  buttons.negative, buttons.cancel};
#else
  const std::initializer_list<wxButton*> order = {buttons.negative, buttons.cancel, buttons.variant,
                                                  buttons.affirmative};
#endif
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  if (buttons.aside != nullptr) row->Add(buttons.aside);
  row->AddStretchSpacer();
  for (wxButton* button : order) {
    if (button != nullptr) {
      row->Add(button, wxSizerFlags().Border(wxLEFT, CloseGap(*button)));
    }
  }
  return row;
}

wxSizer* RosterColumn(Binding& binding, wxWindow* parent, Label& heading, TextBox& name,
                      Button& finder) {
  wxStaticText* title = MakeLabel(binding, parent, heading);
  MakeBold(*title);
  wxTextCtrl* box = MakeTextBox(binding, parent, name);
  // The box scrolls to its end when it gets the focus by a key, past the blanks before the number.
  // It scrolls back here when it loses the focus.
  box->Bind(wxEVT_KILL_FOCUS, [box](wxFocusEvent& event) {
    event.Skip();
    box->SetInsertionPoint(0);
  });
  return Column({title, box, MakeButton(binding, parent, finder)});
}

wxSizer* BesideLeftOut(ScreenPanel& panel, wxWindow* parent, wxSizer* log) {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(log, wxSizerFlags(2).Expand());
  row->Add(panel.MakeLeftOut(parent), wxSizerFlags(1).Expand().Border(wxLEFT, GroupGap(panel)));
  return row;
}

void AddRun(wxSizer& content, ScreenPanel& panel, wxWindow* parent, const RunControls& run) {
  Binding& binding = panel.binding();
  const auto group = wxSizerFlags().Expand().Border(wxTOP, GroupGap(panel));
  content.Add(BesideLeftOut(panel, parent, RunLog(binding, parent, run.heading, run.log)),
              wxSizerFlags(1).Expand().Border(wxTOP, GroupGap(panel)));
  content.Add(RunProgress(panel, parent, run), group);
  content.Add(ButtonRow({.affirmative = MakeButton(binding, parent, run.transfer),
                         .variant = MakeButton(binding, parent, run.preview),
                         .cancel = MakeButton(binding, parent, run.leave)}),
              group);
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
