#pragma once

#include "history/history_file.h"

namespace golf {

// Says how far a part of a run was applied, according to the marks of its history file.
enum class RunStage {
  kNeverApplied,  // no change was applied
  kToBeFinished,  // interrupted; its changes must be applied
  kToBePutBack,   // interrupted; its changes must be put back
  kDamaged,       // interrupted; its history file is damaged
  kDone,          // every change was applied
  kClosed,        // every change was put back
  kLeft,          // the operator has left an interrupted run as it is
};

// Returns the stage. Reads the whole history file if the run was interrupted. Raises errors of the
// platform, but not DamagedHistory.
RunStage StageOf(HistoryFile& history);

// True if nothing remains to be done about the run.
inline bool HasEnded(RunStage stage) {
  return stage == RunStage::kDone || stage == RunStage::kClosed || stage == RunStage::kLeft;
}

}  // namespace golf
