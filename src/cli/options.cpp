#include "cli/options.h"

#include <ctime>

#include "core/local_time.h"

namespace golf {

std::function<DateValue()> ClockOf(const Options& options) {
  if (options.now) return [given = DateFromCivil(*options.now)] { return given; };
  // A run reads the clock for each golfer, so the time is converted only once a second.
  return [last = std::time_t{-1}, moment = DateValue{}]() mutable {
    const std::time_t now = std::time(nullptr);
    if (now != last) moment = LocalMoment(last = now);
    return moment;
  };
}

std::unique_ptr<Application> StartApplication(const Options& options) {
  if (options.install && options.install->empty()) {
    throw NumberedError(ErrorNumber::kPathNotFound, "--install names no folder.");
  }
  auto application = std::make_unique<Application>(MakePlatform(options.install.value_or("")));
  if (options.dry_run) application->state().transactions->HoldForGood();
  application->Start(ClockOf(options)(), options.regional);
  return application;
}

}  // namespace golf
