#include "desktop/layout_helpers.h"

#include <wx/display.h>
#include <wx/grid.h>
#include <wx/settings.h>

#include <algorithm>

#include "core/text.h"
#include "desktop/log_buttons.h"
#include "desktop/widgets.h"

namespace golf {
namespace {

constexpr int kLogColumns = 66;
constexpr int kLogLines = 9;
constexpr int kLeastLines = 4;
constexpr int kLeastColumns = 16;

std::string WithoutEdges(const std::string& text) { return std::string(Trim(text)); }

wxSizer* RunLog(ScreenPanel& panel, wxWindow* parent, Label& heading, TextBox& log) {
  wxStaticText* title = MakeLabel(panel.binding(), parent, heading, WithoutEdges);
  MakeBold(*title);
  wxTextCtrl* box = MakeLog(panel, parent, log, kLogColumns, kLogLines);
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

// Returns the display of the window's parent, since the window may have no place yet.
wxDisplay DisplayOf(const wxTopLevelWindow& window) {
  const wxWindow* const parent = window.GetParent();
  return wxDisplay(parent == nullptr ? &window : parent);
}

// Sets the minimum size of each flexible widget and returns the client size that the window needs.
wxSize NeededSize(ScreenPanel& panel, wxSize ScreenPanel::Flexible::*size) {
  for (const ScreenPanel::Flexible& flexible : panel.flexible()) {
    flexible.widget->SetMinSize(flexible.*size);
    flexible.widget->InvalidateBestSize();
  }
  const wxSize foot = panel.foot()->IsShown() ? panel.foot()->GetSizer()->CalcMin() : wxSize();
  const wxSize content = panel.GetSizer()->CalcMin();
  return {std::max(content.x, foot.x), content.y + foot.y};
}

// Returns the needed size within the limit. A size that is cut leaves space for the scroll bar.
wxSize Within(const wxSize& limit, wxSize needed) {
  if (needed.y > limit.y) needed.x += wxSystemSettings::GetMetric(wxSYS_VSCROLL_X);
  needed.DecTo(limit);
  return needed;
}

void ShowFoot(wxPanel& foot) {
  const auto& buttons = foot.GetChildren();
  foot.Show(std::any_of(buttons.begin(), buttons.end(),
                        [](const wxWindow* button) { return button->IsShown(); }));
}

}  // namespace

int CloseGap(const wxWindow& window) { return window.FromDIP(6); }
int GroupGap(const wxWindow& window) { return window.FromDIP(16); }
int EdgeGap(const wxWindow& window) { return window.FromDIP(14); }

int TextWidth(const wxWindow& window, int characters) { return characters * window.GetCharWidth(); }
int TextHeight(const wxWindow& window, int lines) { return lines * window.GetCharHeight(); }

void SetColumns(wxControl& widget, int characters) {
  const wxString digits('0', static_cast<std::size_t>(characters));
  widget.SetMinSize(
      {widget.GetSizeFromTextSize(widget.GetTextExtent(digits).x).x, widget.GetMinSize().y});
}

void SetRoom(ScreenPanel& panel, wxWindow& widget) {
  const wxSize preferred = widget.GetMinSize();
  int height = TextHeight(widget, kLeastLines + 1);  // with the border
  if (const auto* grid = dynamic_cast<wxGrid*>(&widget)) {
    height = grid->GetColLabelSize() + (kLeastLines + 1) * grid->GetDefaultRowSize();
  }
  const wxSize least(std::min(preferred.x, TextWidth(widget, kLeastColumns)),
                     std::min(preferred.y, height));
  panel.flexible().push_back({&widget, preferred, least});
}

void SetRoom(ScreenPanel& panel, wxWindow& widget, int characters, int lines) {
  wxSize size(TextWidth(widget, characters), TextHeight(widget, lines));
  if (const auto* grid = dynamic_cast<wxGrid*>(&widget)) {
    size = grid->GetMinSize();
    if (characters > 0) size.x = TextWidth(widget, characters);
  }
  widget.SetMinSize(size);
  SetRoom(panel, widget);
}

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
  auto* aside = new wxBoxSizer(wxHORIZONTAL);
  auto* end = new wxBoxSizer(wxHORIZONTAL);
  wxButton* before = nullptr;
  const auto add = [&before](wxBoxSizer& row, wxButton* button, int side) {
    if (button == nullptr) return;
    row.Add(button, wxSizerFlags().Border(side, CloseGap(*button)));
    if (before != nullptr) button->MoveAfterInTabOrder(before);
    before = button;
  };
  for (wxButton* button : buttons.aside) add(*aside, button, wxRIGHT);
  end->AddStretchSpacer();
  for (wxButton* button : order) add(*end, button, wxLEFT);
  const auto& window = dynamic_cast<wxTopLevelWindow&>(*wxGetTopLevelParent(before));
  const int width = aside->CalcMin().x + end->CalcMin().x + 2 * EdgeGap(window);
  auto* row = new wxBoxSizer(width > MostClientSize(window).x ? wxVERTICAL : wxHORIZONTAL);
  row->Add(aside);
  row->Add(end, wxSizerFlags(row->GetOrientation() == wxHORIZONTAL ? 1 : 0).Expand());
  return row;
}

wxSizer* RosterColumn(Binding& binding, wxWindow* parent, Label& heading, TextBox& name,
                      Button& finder) {
  wxStaticText* title = MakeLabel(binding, parent, heading);
  MakeBold(*title);
  wxTextCtrl* box = MakeTextBox(binding, parent, name);
  // The toolkit selects the text and scrolls to its end when the box gets the focus. The operator
  // would see only the number that follows many blanks.
  for (const auto& type : {wxEVT_SET_FOCUS, wxEVT_KILL_FOCUS}) {
    box->Bind(type, [box](wxFocusEvent& event) {
      event.Skip();
      box->CallAfter([box] { box->SetInsertionPoint(0); });
    });
  }
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
  content.Add(BesideLeftOut(panel, parent, RunLog(panel, parent, run.heading, run.log)),
              wxSizerFlags(1).Expand().Border(wxTOP, GroupGap(panel)));
  content.Add(RunProgress(panel, parent, run), group);
  AddToFoot(panel, ButtonRow({.affirmative = MakeButton(binding, panel.foot(), run.transfer),
                              .variant = MakeButton(binding, panel.foot(), run.preview),
                              .cancel = MakeButton(binding, panel.foot(), run.leave)}));
}

void AddKeepingPlace(wxSizer& sizer, wxWindow& widget, int gap_above) {
  sizer.Add(&widget, wxSizerFlags().Expand().ReserveSpaceEvenIfHidden().Border(wxTOP, gap_above));
}

void MakeBold(wxWindow& widget) { widget.SetFont(widget.GetFont().Bold()); }

void MakeMonospaced(wxWindow& widget) {
  wxFont font = widget.GetFont();
  font.SetFamily(wxFONTFAMILY_TELETYPE);
  widget.SetFont(font);
}

wxTextCtrl* MakeLog(ScreenPanel& panel, wxWindow* parent, TextBox& control, int characters,
                    int lines) {
  wxTextCtrl* log = MakeTextBox(panel.binding(), parent, control, wxTE_MULTILINE | wxTE_DONTWRAP);
  MakeMonospaced(*log);
  SetRoom(panel, *log, characters, lines);
  return log;
}

void AddToFoot(ScreenPanel& panel, wxSizer* buttons) {
  wxPanel& foot = *panel.foot();
  if (foot.GetSizer() == nullptr) {
    foot.SetSizer(new wxBoxSizer(wxVERTICAL));
    foot.GetSizer()->Add(new wxBoxSizer(wxVERTICAL),
                         wxSizerFlags().Expand().Border(wxALL & ~wxTOP, EdgeGap(panel)));
  }
  foot.GetSizer()->GetItem(std::size_t{0})->GetSizer()->Add(buttons, wxSizerFlags().Expand());
}

// The title bar of a window that has not been shown is unknown, so its height is estimated.
wxSize MostClientSize(const wxTopLevelWindow& window) {
  wxSize frame = window.GetSize() - window.GetClientSize();
  frame.IncTo({2 * CloseGap(window), TextHeight(window, 2) + CloseGap(window)});
  return DisplayOf(window).GetClientArea().GetSize() - frame;
}

void FinishWindow(ScreenPanel& panel, wxSizer* content) {
  auto* edge = new wxBoxSizer(wxVERTICAL);
  edge->Add(content, wxSizerFlags(1).Expand().Border(wxALL, EdgeGap(panel)));
  panel.SetSizer(edge);
  panel.binding().Refresh();
  wxTopLevelWindow& window = panel.window();
  auto* outer = new wxBoxSizer(wxVERTICAL);
  outer->Add(&panel, wxSizerFlags(1).Expand());
  outer->Add(panel.foot(), wxSizerFlags().Expand());
  window.SetSizer(outer);
  ShowFoot(*panel.foot());
  const wxSize most = MostClientSize(window);
  window.SetClientSize(Within(most, NeededSize(panel, &ScreenPanel::Flexible::preferred)));
  window.SetMinClientSize(Within(most, NeededSize(panel, &ScreenPanel::Flexible::least)));
  window.Layout();
}

void MoveOntoDisplay(wxTopLevelWindow& window, wxPoint place) {
  const wxRect area = DisplayOf(window).GetClientArea();
  const wxPoint last = area.GetBottomRight() + wxPoint(1, 1) - window.GetSize();
  window.Move(std::max(area.x, std::min(place.x, last.x)),
              std::max(area.y, std::min(place.y, last.y)));
}

void LayOutAgain(ScreenPanel& panel) {
  wxTopLevelWindow& window = panel.window();
  if (window.GetSizer() == nullptr) return;
  ShowFoot(*panel.foot());
  panel.InvalidateBestSize();
  const wxSize needed =
      Within(MostClientSize(window), NeededSize(panel, &ScreenPanel::Flexible::least));
  window.SetMinClientSize(needed);
  wxSize size = window.GetClientSize();
  const bool noted = size == panel.noted_size();
  size.IncTo(needed);
  window.SetClientSize(size);
  if (noted) panel.NoteSize();
  window.Layout();
  panel.FitInside();
}

}  // namespace golf
