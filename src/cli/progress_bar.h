#pragma once

#include <chrono>

#include "forms/screen_host.h"

namespace golf {

// A line on standard error that tells how far a run has come; nothing where that is no terminal.
class ProgressBar {
 public:
  explicit ProgressBar(bool wanted);

  void Show(const Progress& progress);
  // Takes the line away.
  void Clear();

 private:
  using Clock = std::chrono::steady_clock;

  bool shows_;
  bool drawn_ = false;
  Clock::time_point next_{};
};

}  // namespace golf
