#include <ctime>

#include "core/local_time.h"

namespace golf {

DateValue LocalMoment(std::int64_t seconds) {
  const std::time_t moment = seconds;
  const std::tm* local = std::localtime(&moment);
  return DateFromCivil({local->tm_year + 1900, local->tm_mon + 1, local->tm_mday, local->tm_hour,
                        local->tm_min, local->tm_sec});
}

}  // namespace golf
