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
};

// Gives the present moment: the one given, or the clock's, in local time.
std::function<DateValue()> ClockOf(const Options& options);

// The program over the install of the options, ready for its first screen. Error 76 where there is
// no such folder.
std::unique_ptr<Application> StartApplication(const Options& options);

}  // namespace golf
