#include "desktop/layout_helpers.h"

#include <wx/display.h>
#include <wx/grid.h>
#include <wx/settings.h>

#include <algorithm>
#include <utility>

#include "core/text.h"
#include "desktop/accessible.h"
#include "desktop/colours.h"
#include "desktop/list_widget.h"
#include "desktop/log_buttons.h"
#include "desktop/widgets.h"

namespace golf {
namespace {

constexpr int kLogColumns = 66;
constexpr int kLogLines = 9;
constexpr int kLeastLines = 4;
constexpr int kLeastColumns = 16;

std::string WithoutEdges(const std::string& text) { return std::string(Trim(text)); }

wxSizer* RunProgress(ScreenPanel& panel, wxWindow* parent, Label& working, Label* count) {
  auto* texts = new wxBoxSizer(wxHORIZONTAL);
  texts->Add(MakeLabel(panel.binding(), parent, working), wxSizerFlags(1));
  if (count != nullptr) texts->Add(MakeLabel(panel.binding(), parent, *count));
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

// Returns the height of a text control that shows this number of lines. Adds half a line for the
// borders and, for a log with long lines, the height of the horizontal scroll bar.
int HeightWithFrame(const wxWindow& text, int lines) {
  const int bar = text.HasFlag(wxHSCROLL) ? wxSystemSettings::GetMetric(wxSYS_HSCROLL_Y, &text) : 0;
  return TextHeight(text, lines) + TextHeight(text, 1) / 2 + bar;
}

int ScrollBarWidth() { return wxSystemSettings::GetMetric(wxSYS_VSCROLL_X); }

// Adds the width of the scroll bar if the size is higher than the limit.
wxSize WithScrollBar(const wxSize& limit, const wxSize& size) {
  return {size.x + (size.y > limit.y ? ScrollBarWidth() : 0), size.y};
}

bool Fits(const wxSize& size, const wxSize& limit) {
  return size.x <= limit.x && size.y <= limit.y;
}

void HalveGaps(wxSizer& sizer) {
  if (auto* grid = dynamic_cast<wxGridSizer*>(&sizer)) {
    grid->SetHGap(grid->GetHGap() / 2);
    grid->SetVGap(grid->GetVGap() / 2);
  }
  for (wxSizerItem* item : sizer.GetChildren()) {
    item->SetBorder(item->GetBorder() / 2);
    if (item->IsSpacer()) item->AssignSpacer(item->GetSpacer() / 2);
    if (item->IsSizer()) HalveGaps(*item->GetSizer());
  }
}

// Halves the gaps of the window and of all windows in it.
void HalveGaps(wxWindow& window) {
  for (wxWindow* child : window.GetChildren()) {
    if (!child->IsTopLevel()) HalveGaps(*child);
  }
  if (window.GetSizer() != nullptr) HalveGaps(*window.GetSizer());
  window.InvalidateBestSize();
}

// The borders at the sides of the row's items become gaps between the rows of the column.
void MakeColumn(wxBoxSizer& row) {
  row.SetOrientation(wxVERTICAL);
  for (wxSizerItem* item : row.GetChildren()) {
    const bool first = item == row.GetChildren().front();
    item->SetFlag((item->GetFlag() & ~wxALL) | (first ? 0 : wxTOP));
  }
}

// Makes the content of the window smaller if the window does not fit on its display.
void FitToDisplay(ScreenPanel& panel) {
  const wxSize most = MostClientSize(panel.window());
  const auto needed = [&] {
    return WithScrollBar(most, NeededSize(panel, &ScreenPanel::Flexible::least));
  };
  if (!panel.is_tight() && !Fits(needed(), most)) {
    panel.SetTight();
    HalveGaps(panel.window());
  }
  const int lacking = needed().x - most.x;
  if (lacking <= 0) return;
  int widest = 0;
  for (wxBoxSizer* row : panel.folding_rows()) widest = std::max(widest, row->CalcMin().x);
  for (wxBoxSizer* row : panel.folding_rows()) {
    if (row->CalcMin().x > widest - lacking) MakeColumn(*row);
  }
}

// Returns the needed size within the limit.
wxSize Within(const wxSize& limit, const wxSize& needed) {
  wxSize size = WithScrollBar(limit, needed);
  size.DecTo(limit);
  return size;
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
int PathWidth(const wxWindow& window) { return TextWidth(window, 24); }
int TextHeight(const wxWindow& window, int lines) { return lines * window.GetCharHeight(); }

void SetColumns(wxControl& widget, int characters) {
  const wxString digits('0', static_cast<std::size_t>(characters));
  const int width = widget.GetTextExtent(digits).x;
  const bool is_text = dynamic_cast<wxStaticText*>(&widget) != nullptr;  // has no frame
  widget.SetMinSize({is_text ? width : widget.GetSizeFromTextSize(width).x, widget.GetMinSize().y});
}

int LineWidth(const ScreenPanel& panel, int characters) {
  return std::min(TextWidth(panel, characters),
                  MostClientSize(panel.window()).x - 2 * EdgeGap(panel) - ScrollBarWidth());
}

void SetRoom(ScreenPanel& panel, wxWindow& widget) {
  const wxSize preferred = widget.GetMinSize();
  int height = HeightWithFrame(widget, kLeastLines);
  if (const auto* list = dynamic_cast<wxDataViewCtrl*>(&widget)) {
    height = ListHeight(*list, kLeastLines);
  } else if (const auto* grid = dynamic_cast<wxGrid*>(&widget)) {
    height = grid->GetColLabelSize() + (kLeastLines + 1) * grid->GetDefaultRowSize();
  }
  const wxSize least(std::min(preferred.x, TextWidth(widget, kLeastColumns)),
                     std::min(preferred.y, height));
  panel.flexible().push_back({&widget, preferred, least});
}

void SetRoom(ScreenPanel& panel, wxWindow& widget, int characters, int lines) {
  wxSize size(TextWidth(widget, characters), TextHeight(widget, lines));
  const bool is_table = dynamic_cast<wxDataViewCtrl*>(&widget) != nullptr ||
                        dynamic_cast<wxGrid*>(&widget) != nullptr;
  if (is_table) {
    size = widget.GetMinSize();
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

wxBoxSizer* ButtonRow(const EndButtons& buttons) {
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
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(aside);
  row->Add(end, wxSizerFlags(1).Expand());
  return row;
}

wxSizer* RosterColumn(Binding& binding, wxWindow* parent, Label& heading, TextBox& name,
                      Button& finder) {
  wxStaticText* title = MakeLabel(binding, parent, heading);
  MakeBold(*title);
  wxTextCtrl* box = NameAfter(binding, heading, MakeTextBox(binding, parent, name));
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

void AddLog(wxSizer& content, ScreenPanel& panel, wxStaticText& heading, wxTextCtrl& log,
            Label& working, Label* count) {
  wxWindow* const parent = log.GetParent();
  MakeBold(heading);
  panel.SetLog(log);
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(&heading, wxSizerFlags().Expand());
  column->Add(&log, wxSizerFlags(1).Expand().Border(wxTOP, CloseGap(panel)));
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(column, wxSizerFlags(2).Expand());
  row->Add(panel.MakeLeftOut(parent), wxSizerFlags(1).Expand().Border(wxLEFT, GroupGap(panel)));
  content.Add(row, wxSizerFlags(1).Expand().Border(wxTOP, GroupGap(panel)));
  auto* below = new wxBoxSizer(wxHORIZONTAL);
  below->Add(LogButtons(parent, log), wxSizerFlags().CentreVertical());
  below->Add(RunProgress(panel, parent, working, count),
             wxSizerFlags(1).CentreVertical().Border(wxLEFT, GroupGap(panel)));
  content.Add(below, wxSizerFlags().Expand().Border(wxTOP, CloseGap(panel)));
}

void AddRun(wxSizer& content, ScreenPanel& panel, wxWindow* parent, const RunControls& run) {
  Binding& binding = panel.binding();
  wxStaticText* heading = MakeLabel(binding, parent, run.heading, WithoutEdges);
  wxTextCtrl* log =
      NameAfter(binding, run.heading, MakeLog(panel, parent, run.log, kLogColumns, kLogLines));
  AddLog(content, panel, *heading, *log, run.working, run.count);
  AddToFoot(panel, ButtonRow({.affirmative = MakeButton(binding, panel.foot(), run.transfer),
                              .variant = MakeButton(binding, panel.foot(), run.preview),
                              .cancel = MakeButton(binding, panel.foot(), run.leave)}));
}

void AddCancellableRun(wxSizer& content, ScreenPanel& panel, Button& start, CancellableRun& run) {
  const auto middle = wxSizerFlags().CentreVertical();
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(MakeButton(panel.binding(), &panel, start), middle);
  row->Add(RunProgress(panel, &panel, run.Working, nullptr),
           wxSizerFlags(1).CentreVertical().Border(wxLEFT, GroupGap(panel)));
  row->Add(MakeButton(panel.binding(), &panel, run.CancelButton),
           wxSizerFlags(middle).Border(wxLEFT, GroupGap(panel)));
  content.Add(row, wxSizerFlags().Expand());
}

wxStaticText* MakeWarning(ScreenPanel& panel, Label& control, int width) {
  wxStaticText* message = MakeWrappedLabel(panel.binding(), &panel, control, width);
  panel.binding().ShowAlso([message, &control, last = std::string()]() mutable {
    if (std::exchange(last, control.caption()) == control.caption()) return;
    if (control.IsShown()) Announce(*message, NameOf(control));
  });
  message->SetForegroundColour(WarningColour(panel.GetBackgroundColour()));
  return message;
}

void AddKeepingPlace(wxSizer& sizer, wxWindow& widget, int gap_above) {
  sizer.Add(&widget, wxSizerFlags().Expand().ReserveSpaceEvenIfHidden().Border(wxTOP, gap_above));
}

void MakeBold(wxWindow& widget) { widget.SetFont(widget.GetFont().Bold()); }

wxStaticText* MakeHeading(wxWindow* parent, const wxString& text) {
  wxStaticText* heading = MakeText(parent, text);
  MakeBold(*heading);
  return heading;
}

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

void AddToFoot(ScreenPanel& panel, wxBoxSizer* buttons) {
  wxPanel& foot = *panel.foot();
  if (foot.GetSizer() == nullptr) {
    foot.SetSizer(new wxBoxSizer(wxVERTICAL));
    foot.GetSizer()->Add(new wxBoxSizer(wxVERTICAL),
                         wxSizerFlags().Expand().Border(wxALL & ~wxTOP, EdgeGap(panel)));
  }
  foot.GetSizer()->GetItem(std::size_t{0})->GetSizer()->Add(buttons, wxSizerFlags().Expand());
  panel.folding_rows().push_back(buttons);
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
  auto* whole = new wxBoxSizer(wxVERTICAL);
  whole->Add(&panel, wxSizerFlags(1).Expand());
  panel.scroller().SetSizer(whole);
  auto* outer = new wxBoxSizer(wxVERTICAL);
  outer->Add(&panel.scroller(), wxSizerFlags(1).Expand());
  outer->Add(panel.foot(), wxSizerFlags().Expand());
  window.SetSizer(outer);
  ShowFoot(*panel.foot());
  FitToDisplay(panel);
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
  FitToDisplay(panel);
  const wxSize needed =
      Within(MostClientSize(window), NeededSize(panel, &ScreenPanel::Flexible::least));
  window.SetMinClientSize(needed);
  wxSize size = window.GetClientSize();
  const bool noted = size == panel.noted_size();
  size.IncTo(needed);
  window.SetClientSize(size);
  if (noted) panel.NoteSize();
  window.Layout();
  panel.scroller().FitInside();
  panel.Layout();
}

}  // namespace golf
