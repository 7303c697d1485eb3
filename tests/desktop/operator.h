#pragma once

#include <wx/eventfilter.h>
#include <wx/modalhook.h>
#include <wx/timer.h>
#include <wx/uiaction.h>
#include <wx/window.h>

#include <chrono>
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

  Operator();
  ~Operator() override;

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
  void Press(const std::string& name);
  // Clicks a cell of a grid when it is visible and enabled.
  void PressCell(const std::string& name, int row, int column);
  // Waits for a message box, checks its title and text, and clicks the part with this label.
  void PressInBox(const std::string& title, const std::string& text, const std::string& label);
  // Waits until the box of the last step is closed. Another box may be open then.
  void AwaitEndOfBox(const std::string& title);
  // Clicks the heading of a column.
  void PressHeading(const std::string& name, int column);
  // Waits for a message box, checks its title and text, and answers it with a key.
  void Answer(const std::string& title, const std::string& text, int key = WXK_RETURN,
              int modifiers = wxMOD_NONE);
  // Waits for an input box, checks its title and its proposed answer, and types another answer.
  // Checks that it has replaced the proposed one, and presses Enter.
  void AnswerInput(const std::string& title, const std::string& before, const std::string& typed);
  // Types a key when a widget of this name is visible and enabled.
  void Type(const std::string& name, int key);
  // Runs code that may show windows as a separate event.
  void Do(Action action);

  // These act at once, without a condition.
  void ClickNow(const std::string& name);
  void TypeNow(int key, int modifiers = wxMOD_NONE) { simulator_.Char(key, modifiers); }

  // Runs the program until it ends. All steps must have been executed by then.
  void RunProgram();
  // Processes events until the condition is true.
  void RunUntil(const std::string& what, Condition condition);

  // Returns the widget of this name in the newest window that shows one, or null if there is none.
  static wxWindow* Find(const std::string& name);

 private:
  struct Step {
    std::string what;
    Condition condition;
    Action action;
  };

  void Notify() override;
  int Enter(wxDialog* dialog) override;
  void Exit(wxDialog*) override { dialogs_.pop_back(); }
  int FilterEvent(wxEvent& event) override;
  bool PointAt(wxWindow* widget, const wxRect& place);
  void MoveTo(const wxWindow& widget, const wxRect& place);
  void Click();
  void CheckBox(const std::string& title, const std::string& text);
  bool SeesBox() const { return !dialogs_.empty() && dialogs_.back() != nullptr; }

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
  std::chrono::steady_clock::time_point deadline_;
};

}  // namespace golf
