#include <utility>

#include "history/transactions.h"

namespace golf {
namespace {

// What the marks of a history file say.
enum class Stand { kFinished, kNeverApplied, kDamaged, kForward, kBack };

Stand StandOf(HistoryFile& history) {
  for (const HistoryMark mark : {HistoryMark::kClosed, HistoryMark::kLeft}) {
    if (history.Has(mark)) return Stand::kFinished;
  }
  const bool back = history.Has(HistoryMark::kPutBack);
  if (!back && history.Has(HistoryMark::kDone)) return Stand::kFinished;
  const bool committed = history.Has(HistoryMark::kCommitted);
  if (history.IsCutInMarks()) return Stand::kDamaged;
  if (!committed && !history.IsTorn(HistoryMark::kCommitted)) return Stand::kNeverApplied;
  if (!history.IsWhole()) return Stand::kDamaged;
  return back ? Stand::kBack : Stand::kForward;
}

// Whether a file that others have open needs no recovery.
bool IsFinishedOrWritten(HistoryFolder& folder, const HistoryName& name) {
  try {
    return StandOf(*folder.Open(name, FileAccess::kReadOnly)) == Stand::kFinished;
  } catch (const NumberedError& error) {
    if (!error.Is(ErrorNumber::kPermissionDenied)) throw;
    return true;
  }
}

std::string Named(const RunTitle& title) {
  return "The run \"" + title.command + "\"" +
         (title.about.empty() ? std::string() : " (" + title.about + ")");
}

}  // namespace

Recovery Transactions::Recover(RecoveryChoice choice) {
  Recovery recovery;
  if (dry_run_) return recovery;
  const std::vector<HistoryName> names = folder_.List();
  for (const HistoryName& name : names) {
    const bool is_newest = &name == &names.back();
    if (!RecoverRun(name, is_newest, choice, recovery)) break;
  }
  return recovery;
}

// False where a run is stuck.
bool Transactions::RecoverRun(const HistoryName& name, bool is_newest, RecoveryChoice choice,
                              Recovery& recovery) {
  std::unique_ptr<HistoryFile> history;
  try {
    history = folder_.Open(name, FileAccess::kAlone);
  } catch (const NumberedError& error) {
    // While a writer is at work nobody can read its file. Others who read one must not keep an
    // unfinished run from being found.
    if (error.Is(ErrorNumber::kPermissionDenied) && IsFinishedOrWritten(folder_, name)) return true;
    throw;
  }
  HistoryGate& gate = folder_.gate();
  ChangeApplier applier(gate, folder_.folders());
  const Stand stand = StandOf(*history);
  if (stand == Stand::kFinished) {
    // The mark must outlast the runs that follow. Only that of the last run may not be synced yet.
    if (is_newest) history->Sync(gate);
    return true;
  }
  if (stand == Stand::kNeverApplied) {
    Discard(std::move(history), name);
    return true;
  }
  if (stand == Stand::kDamaged) {
    if (choice == RecoveryChoice::kLeave) {
      history->Put(gate, HistoryMark::kLeft);
      recovery.finished.push_back(DamagedHistory(history->path()).description() +
                                  " The run that it tells of is left as it is.");
      return true;
    }
    recovery.stuck = name;
    recovery.stuck_text = DamagedHistory(history->path()).description() +
                          " The run that it tells of was interrupted.";
    return false;
  }
  const RunTitle title = history->Title();
  if (!history->Has(HistoryMark::kCommitted) && applier.IsAllOld(*history)) {
    Discard(std::move(history), name);
    return true;
  }
  const std::set<PlaceConflict> conflicts = applier.Conflicts(*history);
  Direction direction = stand == Stand::kBack ? Direction::kBack : Direction::kForward;
  if (!conflicts.empty()) {
    if (choice == RecoveryChoice::kByItself) {
      recovery.stuck = name;
      recovery.stuck_text = Named(title) + " was interrupted, and another program has changed " +
                            conflicts.begin()->path + " since.";
      return false;
    }
    if (choice == RecoveryChoice::kFinish) direction = Direction::kForward;
    if (choice == RecoveryChoice::kPutBack) direction = Direction::kBack;
    if (choice == RecoveryChoice::kLeave) {
      history->Put(gate, HistoryMark::kLeft);
      recovery.finished.push_back(Named(title) + " was interrupted. It is left as it is.");
      return true;
    }
  }
  // The marks stand on the disk before anything is written: a crash may come again.
  history->Sync(gate);
  if (direction == Direction::kBack && stand == Stand::kForward) {
    history->Put(gate, HistoryMark::kPutBack);
  }
  if (direction == Direction::kForward && stand == Stand::kBack) {
    history->Clear(gate, HistoryMark::kDone);  // of before the putting back
    history->Clear(gate, HistoryMark::kPutBack);
  }
  applier.Apply(*history, direction, false, conflicts);
  const bool back = direction == Direction::kBack;
  history->Put(gate, back ? HistoryMark::kClosed : HistoryMark::kDone);
  recovery.finished.push_back(Named(title) + " was interrupted. It is " +
                              (back ? "put back" : "finished") + " now.");
  return true;
}

bool Transactions::IsUnfinished() {
  for (const HistoryName& name : folder_.List()) {
    try {
      const auto history = folder_.Open(name, FileAccess::kReadOnly);
      const Stand stand = StandOf(*history);
      if (stand != Stand::kFinished && stand != Stand::kNeverApplied) return true;
    } catch (const NumberedError&) {
      // A file that is open elsewhere belongs to a run that is at work.
    }
  }
  return false;
}

}  // namespace golf
