#pragma once

#include <functional>
#include <string>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "transfers/run.h"

namespace golf {

// Runs a transfer of a screen while the host takes no input. Error 70, with nothing changed, if
// another process runs a transfer in this install. If `run` ends with an error, this closes all
// files, makes the shared objects anew, calls the screen's OpenAgain, and raises the error again.
void RunTransfer(Screen& screen, SharedState& state, ScreenHost& host,
                 const std::function<void()>& run);

// How a screen looks while its run copies. Any member may be left out.
struct RunLook {
  Label* working = nullptr;          // shows what the run is doing
  Label* count = nullptr;            // shows how far the run is
  Button* hidden = nullptr;          // hidden during the run
  TextBox* log = nullptr;            // shows the log so far before a question that comes again
  std::function<void()> begin = {};  // called when the copying begins
};

// The screen's side of a run. It asks through the screen's host and shows the progress. When the
// run has ended, in any way, it clears the labels, shows the hidden button and makes the pointer
// normal.
class ScreenRun : public RunHost {
 public:
  ScreenRun(ScreenHost& host, RunLook look) : host_(host), look_(std::move(look)) {}
  ScreenRun(const ScreenRun&) = delete;
  ScreenRun& operator=(const ScreenRun&) = delete;
  ~ScreenRun() override;

  void Begin() override;
  void Report(const Progress& progress) override;
  void NoteFault(const NumberedError& fault) override;
  BoxButton Ask(const Box& box) override { return host_.Ask(box); }
  bool AskAgain(const std::string& title, const std::string& text, const std::string& log) override;
  void Beep() override { host_.Beep(); }

 private:
  ScreenHost& host_;
  RunLook look_;
  bool begun_ = false;
};

}  // namespace golf
