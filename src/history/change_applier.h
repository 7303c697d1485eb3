#pragma once

#include <set>

#include "history/change_check.h"

namespace golf {

enum class Direction { kForward, kBack };

struct ApplyOptions {
  Direction direction = Direction::kForward;
  // Compares each place before it is written. Raises error 70 if another program has changed it.
  bool untouched = false;
  // These places and files are left unchanged.
  std::set<PlaceConflict> skipped = {};
};

// Applies a run's changes, or puts them back if the direction is kBack. Writes the places, creates
// and deletes files, sets lengths, and syncs everything that it has changed. Raises error 70 if a
// file that the run changes does not exist.
void ApplyChanges(RunFiles& files, HistoryFile& history, const ApplyOptions& options);

}  // namespace golf
