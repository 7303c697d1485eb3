#pragma once

#include <cstdint>
#include <string_view>

namespace golf {

// How far a run has come: `done` of `total`, and what it is at. An empty text leaves what was shown
// before.
struct Progress {
  std::int64_t done = 0;
  std::int64_t total = 0;
  std::string_view doing;
};

}  // namespace golf
