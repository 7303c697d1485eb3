#pragma once

#include "core/box.h"

namespace golf {

// Returns the box for a screen of results that has no tournament to show.
inline Box NoActiveTournament() {
  return {.title = "No active tournament",
          .text = "You must have an 'active' tournament to access this report"};
}

}  // namespace golf
