#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "app/application.h"
#include "core/date_value.h"

namespace golf {

// The global options.
struct Options {
  std::optional<std::string> install;  // UTF-8; the program's own folder if left out
  std::optional<CivilTime> now;
  RegionalOverrides regional;
  bool json = false;
  bool quiet = false;
  bool dry_run = false;  // of a transfer: nothing is changed
  std::string log;       // of a transfer: the file for its report, UTF-8; empty for none
};

// Returns a clock: the given moment, or the local time.
std::function<DateValue()> ClockOf(const Options& options);

// Returns the program on the install of the options, ready for its first screen. Error 76 if there
// is no such folder.
std::unique_ptr<Application> StartApplication(const Options& options);

}  // namespace golf
