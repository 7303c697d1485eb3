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

// Runs a transfer of a screen as a click that changes files, with the operator's input held off.
// After an error that `run` does not take itself all files are closed, the shared objects are new,
// the screen has opened again what its load opens, and the error goes on.
void RunTransfer(Screen& screen, SharedState& state, ScreenHost& host,
                 const std::function<void()>& run);

// How a screen looks while its run copies. Any of them may be left out.
struct RunLook {
  Label* working = nullptr;          // shows what the run is at
  Label* count = nullptr;            // and how far it is
  Button* button = nullptr;          // starts the run
  bool hides_button = false;         // while the run copies
  TextBox* message = nullptr;        // shows the log after the run
  bool shows_log = false;            // in `message`, when the operator is asked
  std::function<void()> begin = {};  // what else changes when the copying begins
};

// Says whether to try a failed commit again.
using CommitRetry = std::function<bool(RunHost&, const CommitFailed&)>;

// The screen's side of a run: it asks through the screen's host, shows the progress, and commits.
// In whatever way the run ends, the labels are empty afterwards, a button that the run hides is
// back and the pointer is normal. After a failed commit, or a run that was stopped, the button and
// the log are as before.
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

  // Makes the run's changes. Where that fails, `retry` says whether to try again. CommitFailed.
  void Commit(const RunReport& report, const CommitRetry& retry = nullptr);

 private:
  Transactions& transactions_;
  ScreenHost& host_;
  RunLook look_;
  bool begun_ = false;
  bool committed_ = false;
  bool button_before_ = false;  // whether it was visible
  std::string message_before_;
};

// Runs a transfer as one transaction: runs, and commits. What the run has done before an error that
// ended it is committed as well, and the error goes on. CommitFailed where nothing has changed.
template <class Request, class AnyReport>
void RunWhole(SharedState& state, ScreenHost& host, RunLook look, RunTitle title,
              const Request& request, AnyReport& report, const CommitRetry& retry = nullptr) {
  ScreenRun run(state, host, std::move(look), std::move(title));
  RunAndCommit([&] { Run(state, run, request, report); }, [&] { run.Commit(report, retry); });
}

}  // namespace golf
