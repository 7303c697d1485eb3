#pragma once

#include <cstdint>

#include "core/date_value.h"

namespace golf {

// Returns the local date and time of a moment, which is in seconds since the beginning of 1970,
// UTC.
DateValue LocalMoment(std::int64_t seconds);

}  // namespace golf
