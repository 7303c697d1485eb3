#pragma once

#include <memory>

#include "core/platform.h"

namespace golf {

// Creates the StopWatch of this system, which Platform::WatchStops returns.
std::unique_ptr<StopWatch> MakeStopWatch();

}  // namespace golf
