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
// Screens by their names.
using ScreenCatalogue = std::map<std::string, ScreenMaker, std::less<>>;

// What all hosts have in common: which screens are loaded, which are seen, where a click begins and
// ends, and that files are in order whenever the operator may look.
class HostBase : public ScreenHost {
 public:
  // The present moment of the shared state is this host's as long as it lives.
  HostBase(SharedState& state, ScreenCatalogue catalogue);
  ~HostBase() override;

  // Runs what one event of the operator does, on a screen where there is one. A numbered error that
  // nothing in it takes ends it and goes to ErrorEndsClick. In a run nothing is taken in.
  void Operate(const std::function<void()>& event);
  void Operate(Screen& screen, const std::function<void()>& event);
  // The same for an event of one control: nothing happens where the operator cannot reach it.
  void Operate(Screen& screen, const Control& control, const std::function<void()>& event);

  // The screen in front, messages apart; null with none.
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
  void EndProcess() override { ended_ = true; }
  std::uint32_t Seed() override;

  bool in_run() const { return in_run_; }
  // What the runs so far have told.
  const std::vector<std::pair<std::string, std::int64_t>>& counts() const { return counts_; }
  const std::vector<NumberedError>& faults() const { return faults_; }
  // The error that ended the last run that a screen had to end.
  const std::optional<NumberedError>& run_ended_by() const { return run_ended_by_; }
  // True after EndProcess.
  bool ended() const { return ended_; }

 protected:
  SharedState& state() const { return state_; }
  // The process begins anew, for a host that outlives its end.
  void ForgetScreens();

  // Brings the screen up; it stands on top already.
  virtual void Open(Screen& screen) = 0;
  // Lets the operator work until the screen is not shown any more.
  virtual void RunModal(Screen& screen) = 0;
  // Takes the screen down; it is not on the stack any more.
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
  std::vector<Screen*> shown_;  // from the bottom to the top
  std::vector<std::pair<std::string, std::int64_t>> counts_;
  std::vector<NumberedError> faults_;
  std::optional<NumberedError> run_ended_by_;
  bool in_run_ = false;
  bool ended_ = false;
};

}  // namespace golf
