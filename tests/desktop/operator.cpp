#include "desktop/operator.h"

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/grid.h>
#include <wx/msgdlg.h>
#include <wx/statbmp.h>
#include <wx/textctrl.h>
#include <wx/textdlg.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace golf {
namespace {

constexpr int kTick = 5;                       // milliseconds
constexpr std::chrono::seconds kPatience{60};  // for one step, on a slow machine with sanitizers

bool CanBeUsed(const wxWindow* widget) { return widget != nullptr && widget->IsEnabled(); }

// Returns the text control of an input box, or null for any other dialog.
wxTextCtrl* EntryOf(wxDialog* dialog) {
  if (dynamic_cast<wxTextEntryDialog*>(dialog) == nullptr) return nullptr;
  for (wxWindow* child : dialog->GetChildren()) {
    if (auto* entry = dynamic_cast<wxTextCtrl*>(child)) return entry;
  }
  return nullptr;
}

}  // namespace

Operator::Operator() : deadline_(std::chrono::steady_clock::now() + kPatience) {
  Register();
  wxEvtHandler::AddFilter(this);
  Start(kTick);
}

Operator::~Operator() {
  wxEvtHandler::RemoveFilter(this);
  Unregister();
}

wxWindow* Operator::Find(const std::string& name) {
  for (auto node = wxTopLevelWindows.GetLast(); node != nullptr; node = node->GetPrevious()) {
    wxWindow* found = wxWindow::FindWindowByName(name, node->GetData());
    if (found != nullptr && found->IsShownOnScreen()) return found;
  }
  return nullptr;
}

// Moves the pointer to a place of the widget. Returns true after the widget has received a motion
// event, which means that the window system shows it.
bool Operator::PointAt(wxWindow* widget, const wxRect& place) {
  if (!CanBeUsed(widget)) return false;
  if (target_ != widget) {
    target_ = widget;
    felt_ = false;
    widget->Bind(wxEVT_MOTION, [this](wxMouseEvent& event) {
      event.Skip();
      felt_ = true;
    });
  }
  if (!felt_) MoveTo(*widget, place);
  return felt_;
}

// Moves the pointer to the middle of the place. It never moves to the same point twice, since the
// window system would not report that.
void Operator::MoveTo(const wxWindow& widget, const wxRect& place) {
  nudge_ = 1 - nudge_;
  const wxPoint middle(place.x + place.width / 2 + nudge_, place.y + place.height / 2);
  simulator_.MouseMove(widget.ClientToScreen(middle));
}

void Operator::Click() {
  target_ = nullptr;
  watching_ = true;
  simulator_.MouseClick();
}

void Operator::Press(const std::string& name) {
  When(
      "press " + name,
      [this, name] {
        wxWindow* widget = Find(name);
        return widget != nullptr && PointAt(widget, widget->GetSize());
      },
      [this] { Click(); });
}

void Operator::PressCell(const std::string& name, int row, int column) {
  When(
      "press a cell of " + name,
      [this, name, row, column] {
        auto* grid = dynamic_cast<wxGrid*>(Find(name));
        if (grid == nullptr) return false;
        wxRect cell = grid->CellToRect(row, column);
        cell.SetPosition(grid->CalcScrolledPosition(cell.GetPosition()));
        return PointAt(grid->GetGridWindow(), cell);
      },
      [this] { Click(); });
}

void Operator::PressHeading(const std::string& name, int column) {
  When(
      "press a heading of " + name,
      [this, name, column] {
        auto* grid = dynamic_cast<wxGrid*>(Find(name));
        if (grid == nullptr) return false;
        wxWindow* headings = grid->GetGridColLabelWindow();
        const wxRect cell = grid->CellToRect(0, column);
        return PointAt(headings, {cell.x, 0, cell.width, headings->GetSize().y});
      },
      [this] { Click(); });
}

void Operator::CheckBox(const std::string& title, const std::string& text) {
  const auto& box = dynamic_cast<wxMessageDialogBase&>(*dialogs_.back());
  EXPECT_EQ(box.GetTitle().utf8_string(), title);
  EXPECT_EQ(box.GetMessage().utf8_string(), text);
  const wxWindowList& parts = box.GetChildren();
  EXPECT_TRUE(std::any_of(parts.begin(), parts.end(), [](const wxWindow* part) {
    return part->IsKindOf(wxCLASSINFO(wxStaticBitmap));
  })) << "no icon";
  answered_ = opened_;
}

void Operator::AwaitEndOfBox(const std::string& title) {
  Await("end of box " + title, [this] { return !SeesBox() || opened_ != answered_; });
}

void Operator::PressInBox(const std::string& title, const std::string& text,
                          const std::string& label) {
  When(
      "press " + label,
      [this, label] {
        wxWindow* part = SeesBox() ? wxWindow::FindWindowByLabel(label, dialogs_.back()) : nullptr;
        return part != nullptr && PointAt(part, part->GetSize());
      },
      [=, this] {
        CheckBox(title, text);
        Click();
      });
}

void Operator::Answer(const std::string& title, const std::string& text, int key, int modifiers) {
  When(
      "box " + title, [this] { return SeesBox(); },
      [=, this] {
        CheckBox(title, text);
        TypeNow(key, modifiers);
      });
  AwaitEndOfBox(title);
}

void Operator::AnswerInput(const std::string& title, const std::string& before,
                           const std::string& typed) {
  When(
      "input box " + title,
      [this] {
        const wxTextCtrl* entry = SeesBox() ? EntryOf(dialogs_.back()) : nullptr;
        return entry != nullptr && entry->HasFocus();
      },
      [=, this] {
        EXPECT_EQ(dialogs_.back()->GetTitle().utf8_string(), title);
        EXPECT_EQ(EntryOf(dialogs_.back())->GetValue().utf8_string(), before);
        simulator_.Text(typed.c_str());
      });
  When(
      "the answer " + typed,
      [=, this] { return EntryOf(dialogs_.back())->GetValue().Contains(typed); },
      [=, this] {
        EXPECT_EQ(EntryOf(dialogs_.back())->GetValue().utf8_string(), typed);
        TypeNow(WXK_RETURN);
      });
  Await("end of box " + title, [this] { return !SeesBox(); });
}

void Operator::Type(const std::string& name, int key) {
  When(
      "type into " + name, [name] { return CanBeUsed(Find(name)); },
      [this, key] {
        watching_ = true;
        TypeNow(key);
      });
}

void Operator::Do(Action action) {
  Next([action] { wxTheApp->CallAfter(action); });
}

void Operator::ClickNow(const std::string& name) {
  const wxWindow* widget = Find(name);
  ASSERT_NE(widget, nullptr) << name;
  MoveTo(*widget, widget->GetSize());
  simulator_.MouseClick();
}

void Operator::RunProgram() {
  wxTheApp->OnRun();
  EXPECT_TRUE(steps_.empty()) << "left over: " << steps_.front().what;
}

void Operator::RunUntil(const std::string& what, Condition condition) {
  wxEventLoop loop;
  When(what, std::move(condition), [&] { loop.Exit(); });
  loop.Run();
}

void Operator::Notify() {
  if (std::chrono::steady_clock::now() > deadline_) {
    std::fprintf(stderr, "the operator waits in vain: %s\n",
                 steps_.empty() ? "end of the program" : steps_.front().what.c_str());
    std::_Exit(EXIT_FAILURE);
  }
  if (steps_.empty() || !steps_.front().condition()) return;
  const Step step = std::move(steps_.front());
  steps_.pop_front();
  deadline_ = std::chrono::steady_clock::now() + kPatience;  // for the next step
  step.action();
}

// Adds a dialog to the list. Null is added for a screen's dialog, which is not a box.
int Operator::Enter(wxDialog* dialog) {
  EXPECT_FALSE(in_input_) << "a key or the focus opens " << dialog->GetTitle();
  watching_ = false;
  ++opened_;
  const bool box =
      dynamic_cast<wxMessageDialogBase*>(dialog) != nullptr || EntryOf(dialog) != nullptr;
  dialogs_.push_back(box ? dialog : nullptr);
  return wxID_NONE;
}

// Notes that a key or a change of the focus is being handled. CallAfter runs after the toolkit has
// finished with the event and before any later CallAfter of the program. The press of a button is a
// separate event, also if a key caused it.
int Operator::FilterEvent(wxEvent& event) {
  const wxEventType type = event.GetEventType();
  if (type == wxEVT_BUTTON) watching_ = in_input_ = false;
  for (const wxEventType input :
       {wxEventType(wxEVT_CHAR_HOOK), wxEventType(wxEVT_KEY_DOWN), wxEventType(wxEVT_CHAR),
        wxEventType(wxEVT_SET_FOCUS), wxEventType(wxEVT_KILL_FOCUS)}) {
    if (type != input || !watching_ || in_input_) continue;
    in_input_ = true;
    CallAfter([this] { in_input_ = false; });
  }
  return Event_Skip;
}

}  // namespace golf
