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

// The operator before a real display: a list of steps, each of which waits until it can be done.
// Mouse and keyboard are those of the window system. Where a step cannot be done in time the whole
// test program ends, for no window can be left in an orderly way then. A window that a step opens
// before the program has returned from a key or a change of the focus is a failure of the test.
class Operator : private wxTimer, private wxModalDialogHook, private wxEventFilter {
 public:
  using Condition = std::function<bool()>;
  using Action = std::function<void()>;

  Operator();
  ~Operator() override;

  // Does something once the condition holds.
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
  // Clicks the widget of this name once it can be seen and used.
  void Press(const std::string& name);
  // The same for a cell of a grid.
  void PressCell(const std::string& name, int row, int column);
  // Waits for a message box, expects its title and text, and answers it by a key.
  void Answer(const std::string& title, const std::string& text, int key = WXK_RETURN);
  // Waits for an input box, expects its title and the answer that stands in it, types another one,
  // expects that it has taken the place of the first, and presses Enter.
  void AnswerInput(const std::string& title, const std::string& before, const std::string& typed);
  // Types a key once a widget of this name can be seen and used.
  void Type(const std::string& name, int key);
  // Runs code that may show windows, as an event of its own.
  void Do(Action action);

  // At once, wherever the widget is.
  void ClickNow(const std::string& name);
  void TypeNow(int key) { simulator_.Char(key); }

  // Runs the program until it ends; all steps must be done then.
  void RunProgram();
  // Lets events come until the condition holds.
  void RunUntil(const std::string& what, Condition condition);

  // The widget of this name in the newest window that shows one; null if none does.
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
  bool SeesBox() const { return !dialogs_.empty() && dialogs_.back() != nullptr; }

  std::deque<Step> steps_;
  std::vector<wxDialog*> dialogs_;
  const wxWindow* target_ = nullptr;  // where the pointer is to go
  bool felt_ = false;
  int nudge_ = 0;
  bool watching_ = false;  // from a key or a click to what it opens
  bool in_input_ = false;  // the program handles a key or a change of the focus
  wxUIActionSimulator simulator_;
  std::chrono::steady_clock::time_point deadline_;
};

}  // namespace golf
