#pragma once

#include <chrono>

#include "forms/screen_host.h"

namespace golf {

// Shows the progress of a run on a line of standard error. Shows nothing if standard error is not a
// terminal.
class ProgressBar {
 public:
  explicit ProgressBar(bool wanted);

  void Show(const Progress& progress);
  // Erases the line.
  void Clear();

 private:
  using Clock = std::chrono::steady_clock;

  bool shows_;
  bool drawn_ = false;
  Clock::time_point next_{};
};

}  // namespace golf
