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
// Maps the names of the screens to the functions that create them.
using ScreenCatalogue = std::map<std::string, ScreenMaker, std::less<>>;

// Implements the common part of all hosts. It keeps the loaded and the shown screens and runs each
// event of the operator. It writes pending changes to the files after each event and before each
// box or screen.
class HostBase : public ScreenHost {
 public:
  // Sets the clock of the shared state to Now of this host. The destructor removes it.
  HostBase(SharedState& state, ScreenCatalogue catalogue);
  ~HostBase() override;

  // Runs one event of the operator. A numbered error that the event does not handle ends the event
  // and is passed to ErrorEndsClick. Does nothing during a run. A given screen stays alive until
  // the event has ended.
  void Operate(const std::function<void()>& event);
  void Operate(Screen& screen, const std::function<void()>& event);
  // Runs an event of a control. Does nothing if the operator cannot reach the control. During a run
  // he reaches only the button that cancels it.
  void Operate(Screen& screen, const Control& control, const std::function<void()>& event);

  // Returns the screen in front, without regard to tip boxes, or null if there is none.
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

  // Is what User() returns. The host does not own it.
  UserProfile* user = nullptr;

  std::string AskForPath(const std::string& title, const std::string& current) override;
  std::string AskForFolder(const std::string& title, const std::string& utf8_current) override;

  void BeginRun() override { in_run_ = true; }
  void EndRun() override { in_run_ = false; }
  void NoteCount(std::string_view name, std::int64_t count) override;
  void NoteFault(const NumberedError& fault) override { faults_.push_back(fault); }
  void NoteRunEnded(const NumberedError& error) override { run_ended_by_ = error; }
  void NoteUnfinishedRun(const std::string& text) override;
  void SuggestRow(Screen&, Grid&, int) override {}
  std::string AfterCancel(const std::string&, const std::string& usual) override { return usual; }
  bool OpensDespite(const std::string&) override { return false; }
  std::string DocumentsFolder() override { return {}; }
  UserProfile* User() override { return user; }
  void EndProcess() override { ended_ = true; }
  std::uint32_t Seed() override;

  // True if a change was refused because of an interrupted run.
  bool met_unfinished_run() const { return met_unfinished_run_; }
  bool in_run() const { return in_run_; }
  // True if the system writes numbers with a decimal comma.
  bool has_decimal_comma() const { return state_.decimal_comma; }
  // These return the counts and the faults of all runs so far.
  const std::vector<std::pair<std::string, std::int64_t>>& counts() const { return counts_; }
  const std::vector<NumberedError>& faults() const { return faults_; }
  // Returns the error that ended a run and that the screen itself showed. If there were several,
  // returns the last one.
  const std::optional<NumberedError>& run_ended_by() const { return run_ended_by_; }
  // True after EndProcess.
  bool ended() const { return ended_; }

 protected:
  SharedState& state() const { return state_; }
  // Removes all screens after EndProcess. A host that is used again must call it.
  void ForgetScreens();

  // Opens the window of a screen that has become the front screen.
  virtual void Open(Screen& screen) = 0;
  // Lets the operator work until the screen is no longer shown.
  virtual void RunModal(Screen& screen) = 0;
  // Closes the window of a screen that has been hidden or unloaded.
  virtual void Close(Screen& screen) = 0;
  virtual BoxButton ShowBox(const Box& box) = 0;
  virtual std::string ShowInputBox(const InputBox& box) = 0;
  virtual std::string ShowPathChoice(const std::string& title, const std::string& current) = 0;
  virtual std::string ShowFolderChoice(const std::string& title,
                                       const std::string& utf8_current) = 0;
  virtual Font ShowFontChoice(std::string_view title, const Font& current) = 0;
  virtual void ErrorEndsClick(const NumberedError& error) = 0;
  // Is called from the handler of the exception Stopped, when a request to end the process has
  // ended a run. The default throws the exception again.
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
