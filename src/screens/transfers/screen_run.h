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

// Says how a click on a transfer ends.
enum class RunEnding {
  kCommit,
  kPreview,  // shows what would change, and commits if the operator agrees
};

// Runs a transfer of a screen as a click that changes files. The host takes no input meanwhile. If
// `run` raises an exception, closes all files, makes the shared objects again, calls OpenAgain of
// the screen, and raises the exception again.
void RunTransfer(Screen& screen, SharedState& state, ScreenHost& host, RunEnding ending,
                 const std::function<void()>& run);

// Contains the controls that a run changes on its screen. Any member may be left out.
struct RunLook {
  Label* working = nullptr;          // shows what the run does at present
  Label* count = nullptr;            // shows the number of records that are done
  Button* button = nullptr;          // starts the run
  bool hides_button = false;         // the button is hidden while the run copies
  TextBox* message = nullptr;        // shows the log after the run
  bool shows_log = false;            // `message` also shows the log before a question of AskAgain
  std::function<void()> begin = {};  // is called when the copying begins
  bool previewed_later = false;      // the screen itself calls ConfirmPreview after another run
};

// Returns true if a failed commit must be tried again.
using CommitRetry = std::function<bool(RunHost&, const CommitFailed&)>;

// Connects a run to its screen. It asks the operator, shows the progress, and commits. The
// destructor clears the labels, shows a button that the run has hidden, and sets the normal
// pointer. It also restores the button and the message if nothing was committed.
class ScreenRun : public RunHost {
 public:
  ScreenRun(SharedState& state, ScreenHost& host, RunLook look, RunTitle title);
  ScreenRun(const ScreenRun&) = delete;
  ScreenRun& operator=(const ScreenRun&) = delete;
  ~ScreenRun() override;

  void Begin() override;
  void Report(const Progress& progress) override;
  void NoteFault(const NumberedError& fault) override;
  void Group(std::string_view title) override;
  BoxButton Ask(const Box& box) override;
  bool AskAgain(const std::string& title, const std::string& text, const std::string& log) override;
  void Beep() override { host_.Beep(); }

  // Commits the changes of the run. If the commit fails and no file has changed, calls `retry` and
  // tries again if it returns true. Otherwise drops the changes and raises CommitFailed. After the
  // commit it passes what the run has left out to the host, except if the screen itself calls
  // ConfirmPreview.
  void Commit(const RunReport& report, const NumberedError* ended_by,
              const CommitRetry& retry = nullptr);

 private:
  // Returns the name of the golfer that the run works on, or an empty text if the question already
  // names him. The label Working may still show the previous golfer.
  std::string GolferOf(std::string_view question) const;

  SharedState& state_;
  Transactions& transactions_;
  ScreenHost& host_;
  RunLook look_;
  std::string group_;
  bool begun_ = false;
  bool committed_ = false;
  bool button_before_ = false;  // true if the button was visible
  std::string message_before_;
};

// Runs a transfer as one transaction and commits it. If the run raises a numbered error, commits
// the changes made before and raises the error again. Raises CommitFailed if the commit fails.
template <class Request, class AnyReport>
void RunWhole(SharedState& state, ScreenHost& host, RunLook look, RunTitle title,
              const Request& request, AnyReport& report, const CommitRetry& retry = nullptr) {
  ScreenRun run(state, host, std::move(look), std::move(title));
  RunAndCommit([&] { Run(state, run, request, report); },
               [&](const NumberedError* ended_by) { run.Commit(report, ended_by, retry); });
}

}  // namespace golf
