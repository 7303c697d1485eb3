#include "history/run_stage.h"

namespace golf {

RunStage StageOf(HistoryFile& history) {
  if (history.Has(HistoryMark::kLeft)) return RunStage::kLeft;
  if (history.Has(HistoryMark::kClosed)) return RunStage::kClosed;
  const bool back = history.Has(HistoryMark::kPutBack);
  if (!back && history.Has(HistoryMark::kDone)) return RunStage::kDone;
  if (history.IsCutInMarks()) return RunStage::kDamaged;
  const bool committed = history.Has(HistoryMark::kCommitted);
  if (!committed && !history.IsTorn(HistoryMark::kCommitted)) return RunStage::kNeverApplied;
  if (!history.IsWhole()) return RunStage::kDamaged;
  return back ? RunStage::kToBePutBack : RunStage::kToBeFinished;
}

}  // namespace golf
