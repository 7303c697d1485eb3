#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

namespace golf {

// Contains the progress of a run: `done` of `total` items, and a text that describes the current
// step. An empty text keeps the previous text on the display.
struct Progress {
  std::int64_t done = 0;
  std::int64_t total = 0;
  std::string_view doing;
};

// Is called often during a run. May throw an exception that ends the run.
using ReportProgress = std::function<void(const Progress&)>;

}  // namespace golf
