#pragma once

#include "history/history_file.h"

namespace golf {

// How far a run has got, by the marks of its history file.
enum class RunStage {
  kNeverApplied,  // no file has been changed
  kToBeFinished,  // interrupted: its changes must be applied
  kToBePutBack,   // interrupted: its changes must be put back
  kDamaged,       // the history file does not say what the run has changed
  kDone,          // every change was applied
  kClosed,        // every change was put back
  kLeft,          // the operator has left an interrupted run as it is
};

// Reads the whole history file of a run that has not ended. Raises errors of the platform only.
RunStage StageOf(HistoryFile& history);

// True if nothing remains to be done about the run.
inline bool HasEnded(RunStage stage) {
  return stage == RunStage::kDone || stage == RunStage::kClosed || stage == RunStage::kLeft;
}

}  // namespace golf
