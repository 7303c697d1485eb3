#pragma once

#include <memory>

#include "core/platform.h"

namespace golf {

// Returns the implementation of Platform::WatchStops for this system.
std::unique_ptr<StopWatch> MakeStopWatch();

}  // namespace golf
