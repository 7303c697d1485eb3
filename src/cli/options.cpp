#include "cli/options.h"

#include <ctime>

namespace golf {

DateValue Moment(const Options& options) {
  if (options.now) return DateFromCivil(*options.now);
  const std::time_t now = std::time(nullptr);
  const std::tm* local = std::localtime(&now);
  return DateFromCivil({local->tm_year + 1900, local->tm_mon + 1, local->tm_mday, local->tm_hour,
                        local->tm_min, local->tm_sec});
}

std::unique_ptr<Application> StartApplication(const Options& options) {
  if (options.install && options.install->empty()) {
    throw NumberedError(ErrorNumber::kPathNotFound, "--install names no folder.");
  }
  auto application = std::make_unique<Application>(MakePlatform(options.install.value_or("")));
  application->Start(Moment(options), options.regional);
  return application;
}

}  // namespace golf
