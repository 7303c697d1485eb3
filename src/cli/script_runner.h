#pragma once

#include <istream>
#include <string>
#include <string_view>
#include <vector>

#include "cli/json_listener.h"
#include "cli/script_line.h"
#include "core/shared_state.h"
#include "forms/headless_host.h"

namespace golf {

// Executes a script line by line. A line acts on the screen in front. A click that opens a modal
// screen returns when later lines have closed that screen.
class ScriptRunner {
 public:
  ScriptRunner(SharedState& state, HeadlessHost& host, JsonListener& listener, std::istream& lines);

  // Executes the whole script. Screens that are open at its end are closed by their leave buttons.
  // Raises ScriptError with the number of a line that cannot be executed, and ClickEnded if an
  // event ends with an error.
  void Run();

 private:
  using Words = std::vector<std::string>;
  struct Verb {
    std::string_view word;
    std::size_t least;  // words after it
    std::size_t most;
    void (ScriptRunner::*run)(const Words&);
  };
  static const Verb kVerbs[];

  void FollowUntilGone(Screen& screen);
  bool FollowNextLine();
  void FireTimers();

  void Caller(const Words& words);
  void OpenByName(const Words& words);
  void Click(const Words& words);
  void DoubleClick(const Words& words);
  void SetText(const Words& words);
  void Type(const Words& words);
  void Key(const Words& words);
  void Check(const Words& words);
  void Select(const Words& words);
  void Pick(const Words& words);
  void ChooseTab(const Words& words);
  void Row(const Words& words);
  void Cell(const Words& words);
  void Answer(const Words& words);
  void Show(const Words& words);
  void CloseTop(const Words& words);

  Screen& Top() const;
  Control& Named(const std::string& name) const;
  // Returns the control with this name. Raises ScriptError if it has another type or the operator
  // cannot reach it.
  template <class Kind>
  Kind& Usable(const std::string& name) const;
  // Returns the items of a list or of a drop-down with free text.
  const std::vector<std::string>& ItemsOf(const std::string& name) const;
  void SelectItem(const std::string& name, int index);
  void FocusNext(Screen& screen);

  SharedState& state_;
  HeadlessHost& host_;
  JsonListener& listener_;
  std::istream& lines_;
  int line_ = 0;
};

}  // namespace golf
