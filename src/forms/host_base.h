#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "history/stopped.h"

namespace golf {

using ScreenMaker = std::function<std::shared_ptr<Screen>(const ScreenContext&)>;
// The screens by their names.
using ScreenCatalogue = std::map<std::string, ScreenMaker, std::less<>>;

// The common part of all hosts. It keeps the loaded and the shown screens, delimits each event of
// the operator, and writes waiting changes to the files whenever the operator may look at them.
class HostBase : public ScreenHost {
 public:
  // Sets the clock of the shared state to this host's Now for the life of the host.
  HostBase(SharedState& state, ScreenCatalogue catalogue);
  ~HostBase() override;

  // Runs one event of the operator, of a screen if one is given. A numbered error that the event
  // does not handle ends it and goes to ErrorEndsClick. Does nothing during a run.
  void Operate(const std::function<void()>& event);
  void Operate(Screen& screen, const std::function<void()>& event);
  // Runs an event of one control. Does nothing if the operator cannot reach the control.
  void Operate(Screen& screen, const Control& control, const std::function<void()>& event);

  // Returns the screen in front, leaving out message boxes with a memory. Null if there is none.
  Screen* Top() const;
  bool IsShown(const Screen& screen) const;
  bool IsShown(std::string_view name) const;

  bool HasScreen(std::string_view name) const override;
  Screen& Load(std::string_view name) override;
  void ShowModal(Screen& screen) override;
  void Show(Screen& screen) override;
  void Hide(Screen& screen) override;
  void Unload(Screen& screen) override;

  BoxButton Ask(const Box& box) override;
  std::string Ask(const InputBox& box) override;
  Font AskForFont(std::string_view title, const Font& current) override;

  void BeginRun() override { in_run_ = true; }
  void EndRun() override { in_run_ = false; }
  void NoteCount(std::string_view name, std::int64_t count) override;
  void NoteFault(const NumberedError& fault) override { faults_.push_back(fault); }
  void NoteRunEnded(const NumberedError& error) override { run_ended_by_ = error; }
  void NoteUnfinishedRun(const std::string& text) override;
  void EndProcess() override { ended_ = true; }
  std::uint32_t Seed() override;

  // Whether a change was refused because an interrupted run stands in the way.
  bool met_unfinished_run() const { return met_unfinished_run_; }
  bool in_run() const { return in_run_; }
  // Return the counts and the faults of all runs so far.
  const std::vector<std::pair<std::string, std::int64_t>>& counts() const { return counts_; }
  const std::vector<NumberedError>& faults() const { return faults_; }
  // Returns the error that ended the last run whose screen handled its error itself.
  const std::optional<NumberedError>& run_ended_by() const { return run_ended_by_; }
  // True after EndProcess.
  bool ended() const { return ended_; }

 protected:
  SharedState& state() const { return state_; }
  // Forgets all screens after EndProcess, for a host that is used again.
  void ForgetScreens();

  // Opens the window of a screen that has become the top one.
  virtual void Open(Screen& screen) = 0;
  // Lets the operator work until the screen is no longer shown.
  virtual void RunModal(Screen& screen) = 0;
  // Closes the window of a screen that has been taken off the stack.
  virtual void Close(Screen& screen) = 0;
  virtual BoxButton ShowBox(const Box& box) = 0;
  virtual std::string ShowInputBox(const InputBox& box) = 0;
  virtual Font ShowFontChoice(std::string_view title, const Font& current) = 0;
  virtual void ErrorEndsClick(const NumberedError& error) = 0;
  // A request to end the process has ended a run. Called while Stopped is handled, which goes on
  // where this raises it again.
  virtual void RunStopped() { throw; }

 private:
  void BringUp(Screen& screen);
  void Drop(Screen& screen);

  SharedState& state_;
  ScreenCatalogue catalogue_;
  std::vector<std::shared_ptr<Screen>> loaded_;
  std::vector<Screen*> shown_;  // bottom first
  std::vector<std::pair<std::string, std::int64_t>> counts_;
  std::vector<NumberedError> faults_;
  std::optional<NumberedError> run_ended_by_;
  bool in_run_ = false;
  bool met_unfinished_run_ = false;
  bool ended_ = false;
};

}  // namespace golf
