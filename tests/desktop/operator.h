#pragma once

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/dataview.h>
#include <wx/eventfilter.h>
#include <wx/evtloop.h>
#include <wx/frame.h>
#include <wx/menu.h>
#include <wx/modalhook.h>
#include <wx/msgdlg.h>
#include <wx/statbmp.h>
#include <wx/textctrl.h>
#include <wx/textdlg.h>
#include <wx/timer.h>
#include <wx/uiaction.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace golf {

// Simulates an operator at a real display, with the mouse and the keyboard of the window system. It
// executes a list of steps, each of which waits for its condition. If a step cannot be done in
// time, the whole test program ends, since the windows cannot be closed properly then. The test
// fails if a step opens a window before the program has returned from a key event or a change of
// the focus.
class Operator : private wxTimer, private wxModalDialogHook, private wxEventFilter {
 public:
  using Condition = std::function<bool()>;
  using Action = std::function<void()>;

  Operator() {
    Register();
    wxEvtHandler::AddFilter(this);
    Start(kTick);
  }
  ~Operator() override {
    wxEvtHandler::RemoveFilter(this);
    Unregister();
  }

  // Adds a step that runs the action when the condition is true.
  void When(const std::string& what, Condition condition, Action action) {
    steps_.push_back({what, std::move(condition), std::move(action)});
  }
  void Await(const std::string& what, Condition condition) {
    When(what, std::move(condition), [] {});
  }
  void Next(Action action) {
    When(
        "action", [] { return true; }, std::move(action));
  }
  // Clicks the widget of this name when it is visible and enabled.
  void Press(const std::string& name) {
    PressWhen(name, [this, name] {
      wxWindow* widget = Find(name);
      return widget != nullptr && PointAt(widget, widget->GetSize());
    });
  }
  // Clicks a cell of a list when it is visible and enabled. Rows and columns count from 0.
  void PressCell(const std::string& name, int row, int column) {
    PressWhen("a cell of " + name, [this, name, row, column] {
      auto* list = dynamic_cast<wxDataViewCtrl*>(Find(name));
      if (list == nullptr) return false;
      return PointAt(list->GetMainWindow(), CellOf(*list, row, column));
    });
  }
  // Clicks the heading of a column when the first cell below it is visible and enabled. The toolkit
  // reports no motion over the headings.
  void PressHeading(const std::string& name, int column) {
    const auto list = [name] { return dynamic_cast<wxDataViewCtrl*>(Find(name)); };
    When(
        "press a heading of " + name,
        [=, this] {
          return list() != nullptr && PointAt(list()->GetMainWindow(), CellOf(*list(), 0, column));
        },
        [=, this] {
          const wxRect cell = CellOf(*list(), 0, column);
          MoveTo(*list()->GetMainWindow(), {cell.x, 0, cell.width, cell.y});
          Click();
        });
  }
  // Opens a menu of the main window, calls `check`, and chooses an entry. Menus and entries count
  // from 0.
  void ChooseInMenu(std::size_t number, std::size_t entry,
                    const std::function<void(const wxMenu&, const wxMenuItem&)>& check) {
    When(
        "the menu", [] { return FrontFrame() != nullptr; },
        [=] {
          wxFrame& frame = *FrontFrame();
          wxMenu& menu = *frame.GetMenuBar()->GetMenu(number);
          wxMenuEvent opened(wxEVT_MENU_OPEN, 0, &menu);
          frame.HandleWindowEvent(opened);
          const wxMenuItem& item = *menu.FindItemByPosition(entry);
          check(menu, item);
          frame.CallAfter([&frame, id = item.GetId()] { frame.ProcessCommand(id); });
        });
  }
  // Presses the button of the menu that ends the program, and runs the program until then.
  void RunToExit() {
    Press("ExitButton");
    RunProgram();
  }
  // Waits for a message box, checks its title and text, and clicks the part with this label.
  void PressInBox(const std::string& title, const std::string& text, const std::string& label) {
    When(
        "press " + label,
        [this, label] {
          auto* part = SeesBox() ? wxWindow::FindWindowByLabel(label, dialogs_.back()) : nullptr;
          return part != nullptr && PointAt(part, part->GetSize());
        },
        [=, this] {
          CheckBox(title, text);
          Click();
        });
  }
  // Waits until the box of the last step is closed. Another box may be open then.
  void AwaitEndOfBox(const std::string& title) {
    Await("end of box " + title, [this] { return !SeesBox() || opened_ != answered_; });
  }
  // Waits for a message box, checks its title and text, and answers it with a key.
  void Answer(const std::string& title, const std::string& text, int key = WXK_RETURN,
              int modifiers = wxMOD_NONE) {
    When(
        "box " + title, [this] { return SeesBox(); },
        [=, this] {
          CheckBox(title, text);
          TypeNow(key, modifiers);
        });
    AwaitEndOfBox(title);
  }
  // Waits for an input box, checks its title and its proposed answer, and types another answer.
  // Checks that it has replaced the proposed one, and presses Enter.
  void AnswerInput(const std::string& title, const std::string& before, const std::string& typed) {
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
          answered_ = opened_;
          TypeNow(WXK_RETURN);
        });
    AwaitEndOfBox(title);
  }
  // Types a key when a widget of this name is visible and enabled.
  void Type(const std::string& name, int key) {
    When(
        "type into " + name, [name] { return CanBeUsed(Find(name)); },
        [this, key] {
          watching_ = true;
          TypeNow(key);
        });
  }
  // Runs code that may show windows as a separate event.
  void Do(Action action) {
    Next([action] { wxTheApp->CallAfter(action); });
  }

  // These act at once, without a condition.
  void ClickNow(const std::string& name) {
    const wxWindow* widget = Find(name);
    ASSERT_NE(widget, nullptr) << name;
    MoveTo(*widget, widget->GetSize());
    simulator_.MouseClick();
  }
  void TypeNow(int key, int modifiers = wxMOD_NONE) { simulator_.Char(key, modifiers); }

  // Runs the program until it ends. All steps must have been executed by then.
  void RunProgram() {
    wxTheApp->OnRun();
    EXPECT_TRUE(steps_.empty()) << "left over: " << steps_.front().what;
  }
  // Processes events until the condition is true.
  void RunUntil(const std::string& what, Condition condition) {
    wxEventLoop loop;
    When(what, std::move(condition), [&] { loop.Exit(); });
    loop.Run();
  }

  // Returns the widget of this name in the newest window that shows one, or null if there is none.
  static wxWindow* Find(const std::string& name) {
    for (auto node = wxTopLevelWindows.GetLast(); node != nullptr; node = node->GetPrevious()) {
      wxWindow* found = wxWindow::FindWindowByName(name, node->GetData());
      if (found != nullptr && found->IsShownOnScreen()) return found;
    }
    return nullptr;
  }

  // Returns the model of a list, with all rows of the list.
  static const wxDataViewVirtualListModel& ModelOf(const wxDataViewCtrl& list) {
    return dynamic_cast<const wxDataViewVirtualListModel&>(*list.GetModel());
  }
  // Returns the text of a cell in the list of this name, or an empty text if there is none. Rows
  // and columns count from 0; a negative row counts from the end.
  static std::string CellText(const std::string& name, int row, unsigned column) {
    const auto* list = dynamic_cast<wxDataViewCtrl*>(Find(name));
    if (list == nullptr || ModelOf(*list).GetCount() == 0) return "";
    const int rows = static_cast<int>(ModelOf(*list).GetCount());
    wxVariant text;
    ModelOf(*list).GetValueByRow(text, static_cast<unsigned>(row < 0 ? rows + row : row),
                                 list->GetColumn(column)->GetModelColumn());
    return text.GetString().utf8_string();
  }
  static unsigned RowCount(const std::string& name) {
    return ModelOf(dynamic_cast<wxDataViewCtrl&>(*Find(name))).GetCount();
  }

 private:
  static constexpr int kTick = 5;                       // milliseconds
  static constexpr std::chrono::seconds kPatience{60};  // for a step on a slow machine

  struct Step {
    std::string what;
    Condition condition;
    Action action;
  };

  static wxRect CellOf(const wxDataViewCtrl& list, int row, int column) {
    return list.GetItemRect(ModelOf(list).GetItem(static_cast<unsigned>(row)),
                            list.GetColumn(static_cast<unsigned>(column)));
  }
  // Returns the main window, or null if a dialog is open in front of it.
  static wxFrame* FrontFrame() {
    auto* frame = dynamic_cast<wxFrame*>(wxGetTopLevelParent(Find("ExitButton")));
    return frame == nullptr || frame->GetMenuBar() == nullptr ? nullptr : frame;
  }
  static bool CanBeUsed(const wxWindow* widget) { return widget != nullptr && widget->IsEnabled(); }
  // Returns the text control of an input box, or null for any other dialog.
  static wxTextCtrl* EntryOf(wxDialog* dialog) {
    if (dynamic_cast<wxTextEntryDialog*>(dialog) == nullptr) return nullptr;
    for (wxWindow* child : dialog->GetChildren()) {
      if (auto* entry = dynamic_cast<wxTextCtrl*>(child)) return entry;
    }
    return nullptr;
  }
  bool SeesBox() const { return !dialogs_.empty() && dialogs_.back() != nullptr; }

  // Executes the next step if its condition is true.
  void Notify() override {
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
  int Enter(wxDialog* dialog) override {
    EXPECT_FALSE(in_input_) << "a key or the focus opens " << dialog->GetTitle();
    watching_ = false;
    ++opened_;
    const bool box =
        dynamic_cast<wxMessageDialogBase*>(dialog) != nullptr || EntryOf(dialog) != nullptr;
    dialogs_.push_back(box ? dialog : nullptr);
    return wxID_NONE;
  }
  void Exit(wxDialog*) override { dialogs_.pop_back(); }

  // Notes that a key or a change of the focus is being handled. CallAfter runs after the toolkit
  // has finished with the event and before any later CallAfter of the program. The press of a
  // button is a separate event, also if a key caused it.
  int FilterEvent(wxEvent& event) override {
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

  void PressWhen(const std::string& what, Condition condition) {
    When("press " + what, std::move(condition), [this] { Click(); });
  }
  // Moves the pointer to a place of the widget. Returns true after the widget has received a motion
  // event, which means that the window system shows it.
  bool PointAt(wxWindow* widget, const wxRect& place) {
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
  void MoveTo(const wxWindow& widget, const wxRect& place) {
    nudge_ = 1 - nudge_;
    const wxPoint middle(place.x + place.width / 2 + nudge_, place.y + place.height / 2);
    simulator_.MouseMove(widget.ClientToScreen(middle));
  }
  void Click() {
    target_ = nullptr;
    watching_ = true;
    simulator_.MouseClick();
  }
  void CheckBox(const std::string& title, const std::string& text) {
    const auto& box = dynamic_cast<wxMessageDialogBase&>(*dialogs_.back());
    EXPECT_EQ(box.GetTitle().utf8_string(), title);
    EXPECT_EQ(box.GetMessage().utf8_string(), text);
#ifdef __WXGTK__  // elsewhere the system draws the icon
    const wxWindowList& parts = box.GetChildren();
    EXPECT_TRUE(std::any_of(parts.begin(), parts.end(), [](const wxWindow* part) {
      return part->IsKindOf(wxCLASSINFO(wxStaticBitmap));
    })) << "no icon";
#endif
    answered_ = opened_;
  }

  std::deque<Step> steps_;
  std::vector<wxDialog*> dialogs_;
  int opened_ = 0;                    // the number of dialogs so far
  int answered_ = 0;                  // the last one of them that was answered
  const wxWindow* target_ = nullptr;  // the widget that the pointer must reach
  bool felt_ = false;
  int nudge_ = 0;
  bool watching_ = false;  // true from a key or a click to the window that it opens
  bool in_input_ = false;  // true while the program handles a key or a change of the focus
  wxUIActionSimulator simulator_;
  std::chrono::steady_clock::time_point deadline_ = std::chrono::steady_clock::now() + kPatience;
};

}  // namespace golf
