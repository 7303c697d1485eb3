#pragma once

#include <functional>

#include "core/progress.h"
#include "forms/screen_host.h"

namespace golf {

// Is the part of a screen that runs work without changing files of the install. It contains a label
// that shows the progress and a button that cancels the work.
class CancellableRun {
 public:
  // `leave` is the button that Escape presses outside a run.
  CancellableRun(const ScreenContext& context, Button& leave);

  // Calls `work` with a function that reports the progress. The host takes no input meanwhile,
  // except for CancelButton. Returns false if the operator has cancelled the work. Raises Stopped
  // if the process is requested to end, and passes on what `work` raises.
  bool Run(const std::function<void(const ReportProgress&)>& work);

  Label Working{"Working"};
  Button CancelButton{"CancelButton", "Ca&ncel"};

 private:
  class Begun;

  ScreenContext context_;
  Button& leave_;
  bool is_cancelled_ = false;
};

}  // namespace golf
