#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "history/held_platform.h"
#include "history/history_folder.h"
#include "history/stopped.h"

namespace golf {

// A commit has failed. Nothing has changed, or recovery puts it back. No run carries on over it.
class CommitFailed : public NumberedError {
 public:
  CommitFailed(const NumberedError& cause, bool interrupted)
      : NumberedError(cause), interrupted_(interrupted) {}

  // Whether putting back has failed, too. Recovery must come before another commit then.
  bool interrupted() const { return interrupted_; }

 private:
  bool interrupted_;
};

// What became of runs that a crash, a power cut or a kill has interrupted.
struct Recovery {
  std::vector<std::string> finished;  // sentences for the operator, one for each run
  bool stuck = false;                 // whether the operator must decide about a run
  std::string stuck_text = {};        // and why
};

enum class RecoveryChoice { kByItself, kFinish, kPutBack, kLeave };

// Makes each run that changes files a transaction: it happens whole or not at all. A run's changes
// are held until the run commits. The commit writes them into the history first, then into the
// files, so that a crash at any moment can be recovered from.
class Transactions {
 public:
  // `now` is the present moment, for the names of history files.
  Transactions(HeldPlatform& held, std::function<DateValue()> now);

  HistoryFolder& history() { return folder_; }
  HeldPlatform& held() { return held_; }

  // A click that changes files begins. It may have several transactions, which are parts of one run
  // in the history. Requests to end the process are noted until the click ends; one that came after
  // the last commit raises Stopped here.
  void BeginClick();
  // What is still held is dropped.
  void EndClick();
  // Raises Stopped where the process is to end. Called at each change and at each step of a run.
  void CheckStopped();

  // From now on every change of the program is held, and none is ever applied: a dry run. A commit
  // says that it is done, and later runs read the changes of the ones before. Interrupted runs
  // stay.
  void HoldForGood();
  bool IsDryRun() const { return dry_run_; }

  // Begins to hold. Changes that were held before are dropped, but not in a dry run.
  void Begin(RunTitle title);
  bool IsOpen() const { return held_.held() != nullptr; }
  // The changes that follow belong to one golfer, course or roster.
  void BeginGroup(std::string_view title);

  // Applies what is held. Returns the running number of the run in the history, or 0 where nothing
  // changes. CommitFailed means that nothing has changed and that everything is held as before; its
  // error is 70 where another program has changed the files.
  std::int32_t Commit(std::string_view report);
  void Drop();

  // The running number of the last run that was committed; 0 for none.
  std::int32_t last_committed() const { return last_committed_; }

  // Finishes, or puts back, what was interrupted. Comes before anything that changes files, under
  // the run lock. A choice is for a run that cannot be finished by itself.
  Recovery Recover(RecoveryChoice choice = RecoveryChoice::kByItself);
  // Whether a run is unfinished. Changes nothing.
  bool IsUnfinished();

 private:
  std::int32_t CommitChanges(HeldChanges& changes, std::string_view report);
  std::unique_ptr<HistoryFile> WriteHistory(const HistoryName& name, HeldChanges& changes,
                                            std::string_view report);
  void WriteContent(HistoryWriter& writer, const HistoryName& name, HeldChanges& changes,
                    std::string_view report);
  void CheckPaths(const HeldChanges& changes);
  void Apply(HistoryFile& history, HeldChanges& changes);
  void Discard(std::unique_ptr<HistoryFile> history, const HistoryName& name);
  void Prune();

  HeldPlatform& held_;
  HistoryFolder folder_;
  std::function<DateValue()> now_;
  RunTitle title_;
  std::int32_t committed_in_click_ = 0;
  std::int32_t last_committed_ = 0;
  std::unique_ptr<StopWatch> stops_;
  bool dry_run_ = false;
  bool stop_raised_ = false;
  int missed_signal_ = 0;  // that came when the run could not be stopped any more
};

// Runs a statement of an open transaction, then commits. What the statement has changed before a
// numbered error is committed as well, and the error is raised again.
template <class Statement, class Commit>
void RunAndCommit(const Statement& statement, const Commit& commit) {
  try {
    statement();
  } catch (const NumberedError&) {
    commit();
    throw;
  }
  commit();
}

}  // namespace golf
