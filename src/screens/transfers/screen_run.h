#pragma once

#include <functional>
#include <string>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "transfers/run.h"

namespace golf {

// Runs a transfer of a screen: alone in its install (error 70 if another process runs one, with
// nothing changed) and with the operator's input held off. After an error that `run` does not take
// itself all files are closed, the shared objects are new, the screen has opened again what its
// load opens, and the error goes on.
void RunTransfer(Screen& screen, SharedState& state, ScreenHost& host,
                 const std::function<void()>& run);

// How a screen looks while its run copies. Any of them may be left out.
struct RunLook {
  Label* working = nullptr;          // shows what the run is at
  Label* count = nullptr;            // and how far it is
  Button* hidden = nullptr;          // is away meanwhile
  TextBox* log = nullptr;            // shows the log by now when the operator is asked
  std::function<void()> begin = {};  // what else changes when the copying begins
};

// The screen's side of a run: asks through the screen's host, and shows the progress. In whatever
// way the run ends, the labels are empty afterwards, the hidden button is back and the pointer is
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
