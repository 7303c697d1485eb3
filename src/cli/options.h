#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "app/application.h"
#include "core/date_value.h"

namespace golf {

// Holds the options that are common to several commands.
struct Options {
  std::optional<std::string> install;  // UTF-8; the program's own folder if left out
  std::optional<CivilTime> now;
  RegionalOverrides regional;
  bool json = false;
  bool quiet = false;
  bool dry_run = false;  // for a transfer: change nothing
  std::string log;       // for a transfer: the file for its report, UTF-8; or empty
};

// Returns a function that returns the moment of the option --now, or the local time if that is left
// out.
std::function<DateValue()> ClockOf(const Options& options);

// Creates the application for the install folder of the options and prepares it for its first
// screen. Raises error 76 if the folder does not exist.
std::unique_ptr<Application> StartApplication(const Options& options);

}  // namespace golf
