#include <utility>

#include "history/change_applier.h"
#include "history/run_stage.h"
#include "history/transactions.h"

namespace golf {
namespace {

// True if a history file that another process has open needs no recovery: its run has ended, or the
// process that runs it still writes the file.
bool IsEndedOrWritten(HistoryFolder& folder, const HistoryName& name) {
  try {
    return HasEnded(StageOf(*folder.Open(name, FileAccess::kReadOnly)));
  } catch (const NumberedError& error) {
    if (!error.Is(ErrorNumber::kPermissionDenied)) throw;
    return true;
  }
}

// Opens the history file of a run exclusively. Returns null if it needs no recovery. Raises error
// 70 if another process has the history file of an interrupted run open.
std::unique_ptr<HistoryFile> OpenAlone(HistoryFolder& folder, const HistoryName& name) {
  try {
    return folder.Open(name, FileAccess::kAlone);
  } catch (const NumberedError& error) {
    if (error.Is(ErrorNumber::kPermissionDenied) && IsEndedOrWritten(folder, name)) return nullptr;
    throw;
  }
}

std::string Named(const RunTitle& title) {
  return "The run \"" + title.command + "\"" +
         (title.about.empty() ? std::string() : " (" + title.about + ")");
}

// Finishes an interrupted run or puts it back.
class RunRecovery {
 public:
  RunRecovery(HistoryFolder& folder, HistoryFile& history, RecoveryChoice choice,
              Recovery& recovery)
      : gate_(folder.gate()),
        files_(gate_, folder.paths()),
        history_(history),
        choice_(choice),
        recovery_(recovery) {}

  // True if no change of the run was applied. The mark kCommitted may be incomplete, so this
  // function compares the files.
  bool IsNeverApplied(RunStage stage) {
    if (stage == RunStage::kNeverApplied) return true;
    const bool to_do = stage == RunStage::kToBeFinished || stage == RunStage::kToBePutBack;
    return to_do && !history_.Has(HistoryMark::kCommitted) && IsAllOld(files_, history_);
  }

  // Recovers a run whose history file is damaged, which the operator must decide.
  void RecoverDamaged() {
    const std::string damaged = DamagedHistory(history_.path()).description();
    if (choice_ != RecoveryChoice::kLeave) {
      return Ask(damaged + " The run that it describes was interrupted.");
    }
    history_.Put(gate_, HistoryMark::kLeft);
    recovery_.finished.push_back(damaged + " The run that it describes is left as it is.");
  }

  void Recover(RunStage stage) {
    const std::string run = Named(history_.Title());
    const std::set<PlaceConflict> conflicts = FindConflicts(files_, history_);
    Direction direction = stage == RunStage::kToBePutBack ? Direction::kBack : Direction::kForward;
    if (!conflicts.empty()) {
      switch (choice_) {
        case RecoveryChoice::kByItself:
          return Ask(run + " was interrupted, and another program has changed " +
                     conflicts.begin()->path + " since.");
        case RecoveryChoice::kLeave:
          history_.Put(gate_, HistoryMark::kLeft);
          recovery_.finished.push_back(run + " was interrupted. It is left as it is.");
          return;
        case RecoveryChoice::kFinish:
          direction = Direction::kForward;
          break;
        case RecoveryChoice::kPutBack:
          direction = Direction::kBack;
      }
    }
    WriteMarks(direction);
    ApplyChanges(files_, history_, {.direction = direction, .skipped = conflicts});
    const bool back = direction == Direction::kBack;
    history_.Put(gate_, back ? HistoryMark::kClosed : HistoryMark::kDone);
    recovery_.finished.push_back(run + " was interrupted. It is " +
                                 (back ? "put back" : "finished") + " now.");
  }

 private:
  void Ask(std::string text) {
    recovery_.stuck = true;
    recovery_.stuck_text = std::move(text);
  }

  // Writes the marks before a file is changed, since another crash may follow. Writes existing
  // marks again, since the interrupted process may not have synced them.
  void WriteMarks(Direction direction) {
    history_.Put(gate_, HistoryMark::kCommitted);
    if (direction == Direction::kBack) {
      history_.Put(gate_, HistoryMark::kPutBack);
    } else if (history_.Has(HistoryMark::kPutBack)) {
      history_.Clear(gate_, HistoryMark::kDone);  // if it was written before kPutBack
      history_.Clear(gate_, HistoryMark::kPutBack);
    }
  }

  HistoryGate& gate_;
  RunFiles files_;
  HistoryFile& history_;
  RecoveryChoice choice_;
  Recovery& recovery_;
};

}  // namespace

Recovery Transactions::Recover(RecoveryChoice choice) {
  Recovery recovery;
  if (dry_run_) return recovery;
  const std::vector<HistoryName> names = folder_.List();
  for (const HistoryName& name : names) {
    auto history = OpenAlone(folder_, name);
    if (history == nullptr) continue;
    const RunStage stage = StageOf(*history);
    if (HasEnded(stage)) {
      // The mark must be on the disk before the next run. Only the mark of the last run may not be
      // synced yet.
      if (&name == &names.back()) history->Sync(folder_.gate());
      continue;
    }
    RunRecovery run(folder_, *history, choice, recovery);
    if (run.IsNeverApplied(stage)) {
      Discard(std::move(history), name);
    } else if (stage == RunStage::kDamaged) {
      run.RecoverDamaged();
    } else {
      run.Recover(stage);
    }
    if (recovery.stuck) break;
  }
  return recovery;
}

bool Transactions::IsUnfinished() {
  for (const HistoryName& name : folder_.List()) {
    try {
      const RunStage stage = StageOf(*folder_.Open(name, FileAccess::kReadOnly));
      if (!HasEnded(stage) && stage != RunStage::kNeverApplied) return true;
    } catch (const NumberedError&) {
      // Another process has the file open, since its run is still in progress.
    }
  }
  return false;
}

}  // namespace golf
