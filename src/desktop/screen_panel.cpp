#include "desktop/screen_panel.h"

#include <wx/dialog.h>
#include <wx/notebook.h>
#include <wx/radiobut.h>

#include <algorithm>
#include <string>

#include "desktop/accessible.h"
#include "desktop/layout_helpers.h"
#include "desktop/wx_text.h"
#include "screens/open_page.h"

namespace golf {
namespace {

constexpr int kGaugeSteps = 1000;
constexpr int kLeftOutColumns = 34;

// Is the toolkit's timer for a timer control. It exists as long as the panel.
class RunningTimer : public wxTimer {
 public:
  RunningTimer(Binding& binding, Timer& control) : binding_(binding), control_(control) {
    control_.Observe([this] { Follow(); });
    Follow();
  }
  void Notify() override {
    if (control_.on_timer) binding_.Operate(control_, control_.on_timer);
  }

 private:
  void Follow() {
    if (control_.IsRunning()) {
      Start(control_.interval());
    } else {
      Stop();
    }
  }

  Binding& binding_;
  Timer& control_;
};

// Contains only the panel, since GTK reports an error for each hidden child of a window that
// scrolls.
class Scroller : public wxScrolledWindow {
 public:
  using wxScrolledWindow::wxScrolledWindow;

 private:
  // The toolkit would scroll to the whole panel. ScreenPanel scrolls to the widget.
  bool ShouldScrollToChildOnFocus(wxWindow*) override { return false; }
};

// True if the tab key stops at a widget. It stops at only one button of a group of options.
bool IsTabStop(wxWindow& widget) {
  if (!widget.AcceptsFocusFromKeyboard()) return false;
  const auto* option = dynamic_cast<wxRadioButton*>(&widget);
  if (option == nullptr || option->GetValue()) return true;
  for (const wxRadioButton* other = option->GetFirstInGroup(); other != nullptr;
       other = other->GetNextInGroup()) {
    if (other->GetValue()) return false;
  }
  return option == option->GetFirstInGroup();
}

// Adds the widgets at which the tab key stops in `window` to `stops`, in the order in which they
// were created.
void CollectTabStops(const wxWindow& window, std::vector<wxWindow*>& stops) {
  for (wxWindow* child : window.GetChildren()) {
    if (!child->IsShown() || !child->IsEnabled() || child->IsTopLevel()) continue;
    if (auto* book = dynamic_cast<wxNotebook*>(child)) {
      stops.push_back(book);
      CollectTabStops(*book->GetCurrentPage(), stops);
    } else if (dynamic_cast<wxPanel*>(child) != nullptr) {
      CollectTabStops(*child, stops);
    } else if (IsTabStop(*child)) {
      stops.push_back(child);
    }
  }
}

}  // namespace

ScreenPanel::ScreenPanel(wxTopLevelWindow& window, HostBase& host, Screen& screen)
    : wxPanel(new Scroller(&window)),
      window_(window),
      host_(host),
      screen_(&screen),
      binding_(host, screen),
      foot_(new wxPanel(&window)) {
  scroller().SetScrollRate(GetCharWidth(), GetCharHeight());
  binding_.on_rearranged = [this] { LayOutAgain(*this); };
  ShowTitle(false);
  window_.Bind(wxEVT_CLOSE_WINDOW, &ScreenPanel::OnClose, this);
  window_.Bind(wxEVT_CHAR_HOOK, &ScreenPanel::OnCharHook, this);
  const auto note_menu = [this](wxMenuEvent& event) {
    menu_is_open_ = event.GetEventType() == wxEVT_MENU_OPEN;
    event.Skip();
  };
  window_.Bind(wxEVT_MENU_OPEN, note_menu);
  window_.Bind(wxEVT_MENU_CLOSE, note_menu);
  FollowTimers();
  Bind(wxEVT_CHILD_FOCUS, [this](wxChildFocusEvent& event) {
    event.Skip();
    ScrollTo(*event.GetWindow());
  });
  Bind(wxEVT_IDLE, [this](wxIdleEvent& event) {
    event.Skip();
    binding_.Refresh();
    if (window_.IsActive() && !menu_is_open_) binding_.RestoreFocus(window_);
  });
}

// Destroys the widgets before the binding, since they send events to it.
ScreenPanel::~ScreenPanel() {
  DestroyChildren();
  foot_->DestroyChildren();
}

wxGauge* ScreenPanel::MakeGauge(wxWindow* parent) {
  gauge_ = new wxGauge(parent, wxID_ANY, kGaugeSteps);
  gauge_->SetName("Progress");
  SetAccessibleName(*gauge_, "Progress");
  gauge_->Hide();
  return gauge_;
}

wxWindow* ScreenPanel::MakeLeftOut(wxWindow* parent) {
  left_out_ = new wxPanel(parent);
  left_out_heading_ = new wxStaticText(left_out_, wxID_ANY, "");
  MakeBold(*left_out_heading_);
  left_out_list_ = new wxTextCtrl(left_out_, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                                  wxTE_MULTILINE | wxTE_DONTWRAP | wxTE_READONLY);
  left_out_list_->SetName("LeftOut");
  MakeMonospaced(*left_out_list_);
  left_out_list_->SetMinSize({TextWidth(*left_out_list_, kLeftOutColumns), -1});
  SetRoom(*this, *left_out_list_);
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(left_out_heading_);
  column->Add(left_out_list_, wxSizerFlags(1).Expand().Border(wxTOP, CloseGap(*this)));
  left_out_->SetSizer(column);
  left_out_->Hide();
  return left_out_;
}

// The heading is the first line of the list's report.
bool ScreenPanel::ShowLeftOut(const LeftOut& left_out) {
  if (left_out_ == nullptr) return false;
  std::string lines;
  left_out.ForEachLine([&lines](std::string_view line) { lines.append(line).append("\n"); });
  const std::size_t heading = std::min(lines.find('\n'), lines.size());
  left_out_heading_->SetLabelText(WxText(lines.substr(0, heading)));
  SetAccessibleName(*left_out_list_, WxText(lines.substr(0, heading)));
  left_out_list_->ChangeValue(WxText(lines.substr(std::min(heading + 1, lines.size()))));
  if (left_out_->Show(!lines.empty())) LayOutAgain(*this);
  return true;
}

void ScreenPanel::SetInRun(bool in_run) {
  if (gauge_ != nullptr) {
    gauge_->SetValue(0);
    gauge_->Show(in_run);
  }
  binding_.HoldInput(in_run);
  if (gauge_ != nullptr) ScrollTo(*gauge_);
  if (log_ != nullptr) ScrollTo(*log_);
}

void ScreenPanel::ShowTitle(bool preview) {
  if (screen_ == nullptr) return;
  const wxString title = (preview ? "Preview - " : "") + WxText(screen_->caption());
  if (window_.GetTitle() != title) window_.SetTitle(title);
}

void ScreenPanel::ShowProgress(const Progress& progress) {
  if (gauge_ == nullptr || progress.total <= 0) return;
  gauge_->SetValue(static_cast<int>(progress.done * kGaugeSteps / progress.total));
}

void ScreenPanel::FollowTimers() {
  for (Control* control : screen_->controls()) {
    auto* timer = dynamic_cast<Timer*>(control);
    if (timer != nullptr) timers_.push_back(std::make_unique<RunningTimer>(binding_, *timer));
  }
}

// Scrolls until the widget and the line above it are visible, or their top left corner if they are
// larger than the visible part.
void ScreenPanel::ScrollTo(const wxWindow& widget) {
  wxScrolledWindow& view = scroller();
  wxRect place(view.ScreenToClient(widget.GetScreenPosition()), widget.GetSize());
  place.y -= GetCharHeight();
  place.height += GetCharHeight();
  const auto units = [](int first, int length, int visible, int unit) {
    if (first < 0) return (first - unit + 1) / unit;
    const int hidden = std::min(first, first + length - visible);
    return hidden <= 0 ? 0 : (hidden + unit - 1) / unit;
  };
  const wxPoint start = view.GetViewStart();
  const wxSize visible = view.GetClientSize();
  wxSize unit;
  view.GetScrollPixelsPerUnit(&unit.x, &unit.y);
  view.Scroll(start.x + units(place.x, place.width, visible.x, unit.x),
              start.y + units(place.y, place.height, visible.y, unit.y));
}

// An event of a timer may call this.
void ScreenPanel::Detach() {
  for (const auto& timer : timers_) timer->Stop();
  for (Control* control : screen_->controls()) control->Observe(nullptr);
  binding_.Release();
  screen_ = nullptr;
}

// Presses the leave buttons of the screen, which decides whether the window closes.
void ScreenPanel::OnClose(wxCloseEvent& event) {
  if (event.CanVeto()) event.Veto();
  const auto press = [this](Button* button) {
    if (button != nullptr) binding_.Operate(*button, [button] { button->Click(); });
  };
  if (screen_ != nullptr) press(screen_->PanelLeaveButton());
  if (screen_ != nullptr) press(screen_->LeaveButton());
}

// Handles F1 and the tab key, and Escape for the screen. While a menu is open, Escape closes the
// menu. In the main window Escape does nothing, since it would end the program.
void ScreenPanel::OnCharHook(wxKeyEvent& event) {
  binding_.RunWaiting();
  const int key = event.GetKeyCode();
  if (key == WXK_TAB && !event.ControlDown() && !event.AltDown()) {
    return MoveFocusByTab(event.ShiftDown());
  }
  if (key == WXK_F1 && !event.HasAnyModifiers()) return ShowHelpSoon();
  const bool leaves =
      key == WXK_ESCAPE && !menu_is_open_ && dynamic_cast<wxDialog*>(&window_) != nullptr;
  if (!leaves || !binding_.OperateKeySoon("Escape")) event.Skip();
}

void ScreenPanel::ShowHelpSoon() {
  if (screen_ == nullptr) return;
  binding_.OperateSoon([this, heading = screen_->name()] { ShowHelp(host_, heading); });
}

// The toolkit's own order leaves out widgets that were hidden when it was determined.
void ScreenPanel::MoveFocusByTab(bool backward) {
  std::vector<wxWindow*> stops;
  CollectTabStops(window_, stops);
  if (stops.empty()) return;
  if (backward) std::reverse(stops.begin(), stops.end());
  auto current = stops.end();
  for (wxWindow* at = FindFocus(); at != nullptr && current == stops.end(); at = at->GetParent()) {
    current = std::find(stops.begin(), stops.end(), at);
  }
  const bool last = current == stops.end() || std::next(current) == stops.end();
  (last ? stops.front() : *std::next(current))->SetFocusFromKbd();
}

}  // namespace golf
