#pragma once

#include <set>

#include "history/change_check.h"

namespace golf {

enum class Direction { kForward, kBack };

struct ApplyOptions {
  Direction direction = Direction::kForward;
  // Compares each place once more before it is written: error 70 if another program has changed it.
  bool untouched = false;
  // These places and files stay as they are.
  std::set<PlaceConflict> skipped = {};
};

// Changes the files of a run to their bytes of after the run, or of before it: writes the places,
// creates and deletes files, sets lengths, and syncs everything that it changed.
void ApplyChanges(RunFiles& files, HistoryFile& history, const ApplyOptions& options);

}  // namespace golf
