#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "screens/file_changes.h"
#include "transfers/run.h"

namespace golf {

// Runs a transfer of a screen as an event that changes files. The host accepts no input until it
// ends. If `run` raises an error, closes all files, creates new shared objects, calls OpenAgain of
// the screen, and raises the error again.
void RunTransfer(Screen& screen, SharedState& state, ScreenHost& host,
                 const std::function<void()>& run);

// Describes the controls of a screen that a run changes. A screen may leave out any of them.
struct RunLook {
  Label* working = nullptr;    // shows what the run is doing
  Label* count = nullptr;      // shows how many items the run has handled
  Button* button = nullptr;    // starts the run
  bool hides_button = false;   // hides `button` while the run copies
  TextBox* message = nullptr;  // shows the log after the run
  bool shows_log = false;      // shows the log in `message` also when the run asks the operator
  std::function<void()> begin = {};  // is called when the copying begins
};

// Is called after a failed commit. Returns true to try it again.
using CommitRetry = std::function<bool(RunHost&, const CommitFailed&)>;

// Implements the host of a run for a screen. It shows the questions and the progress of the run,
// and commits it. When the run has ended in any way, the labels are empty, a button that the run
// hides is visible, and the pointer is normal. After a failed commit, or a run that was stopped,
// the button and the log are restored.
class ScreenRun : public RunHost {
 public:
  ScreenRun(SharedState& state, ScreenHost& host, RunLook look, RunTitle title);
  ScreenRun(const ScreenRun&) = delete;
  ScreenRun& operator=(const ScreenRun&) = delete;
  ~ScreenRun() override;

  void Begin() override;
  void Report(const Progress& progress) override;
  void NoteFault(const NumberedError& fault) override;
  void Group(std::string_view title) override { transactions_.BeginGroup(title); }
  BoxButton Ask(const Box& box) override { return host_.Ask(box); }
  bool AskAgain(const std::string& title, const std::string& text, const std::string& log) override;
  void Beep() override { host_.Beep(); }

  // Commits the run. If the commit fails, calls `retry` to decide whether to try again. Otherwise
  // drops the changes and raises CommitFailed.
  void Commit(const RunReport& report, const CommitRetry& retry = nullptr);

 private:
  Transactions& transactions_;
  ScreenHost& host_;
  RunLook look_;
  bool begun_ = false;
  bool committed_ = false;
  bool button_before_ = false;  // true if it was visible
  std::string message_before_;
};

// Runs a transfer as one transaction and commits it. If an error ends the run, commits what the run
// has done before and raises the error again. Raises CommitFailed if nothing has changed.
template <class Request, class AnyReport>
void RunWhole(SharedState& state, ScreenHost& host, RunLook look, RunTitle title,
              const Request& request, AnyReport& report, const CommitRetry& retry = nullptr) {
  ScreenRun run(state, host, std::move(look), std::move(title));
  RunAndCommit([&] { Run(state, run, request, report); }, [&] { run.Commit(report, retry); });
}

}  // namespace golf
