#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "history/held_platform.h"
#include "history/history_folder.h"
#include "history/record_reference.h"
#include "history/stopped.h"

namespace golf {

// The comments in src/history use these terms:
// - A run is one action of the operator that changes files, such as a transfer or an undo. It has
//   one or more transactions.
// - A transaction applies all of its changes or none of them.
// - A part is one committed transaction of a run. Each part has its own history file.
// - A place is a range of bytes of a file that a run changes, usually a record. Its old bytes are
//   those before the run. Its new bytes are those after the run.
// - A group is a set of changes that belong to one golfer, course or roster.
// - A held change is stored in memory or in a scratch file until the commit.
// - To commit is to write the held changes into a history file and then to apply them. To apply
//   them is to write them into the files.
// - A mark is a block of a history file that records a step of the commit or of the recovery.
// - To put back is to roll back: to restore the old bytes, lengths and names of files.
// - A conflict is a place, record or file that must be left unchanged, because another program or a
//   later run has changed it or refers to it.
// - A run is interrupted if a crash or an error ended it after the beginning of its commit and
//   before its end.

// Reports that a commit has failed. No file has changed if interrupted() is false. A run must not
// continue after this error, although it is a NumberedError.
class CommitFailed : public NumberedError {
 public:
  CommitFailed(const NumberedError& cause, bool interrupted)
      : NumberedError(cause), interrupted_(interrupted) {}

  // True if putting back has failed, too. Recover must then be called before the next commit.
  bool interrupted() const { return interrupted_; }

 private:
  bool interrupted_;
};

// Reports what Recover has done with interrupted runs.
struct Recovery {
  std::vector<std::string> finished;  // one sentence for each run that was recovered or left
  bool stuck = false;                 // true if the operator must decide about a run
  std::string stuck_text = {};        // the reason, as a sentence
};

// Says how to recover a run that has conflicts. With kByItself, Recover changes nothing in such a
// run and reports that the operator must decide. If the history file is damaged, only kLeave has an
// effect.
enum class RecoveryChoice { kByItself, kFinish, kPutBack, kLeave };

// Contains what the commit must know about the records of a file. Members may be null.
struct RecordFacts {
  // Returns the length of the records in bytes, or 0 if the file has none.
  std::function<std::size_t(std::string_view file)> length = nullptr;
  // Returns the references to those of the records that are free on the disk. The numbers of the
  // records are sorted.
  std::function<std::vector<RecordReference>(std::string_view file,
                                             const std::vector<std::int64_t>& records)>
      references_to_free = nullptr;
};

// Executes the transactions of runs. Holds the changes of a transaction until its commit. The
// commit writes them into the history first, then into the files, so that recovery is possible
// after a crash at any moment.
class Transactions {
 public:
  // `now` returns the present date and time, which the names of history files contain.
  Transactions(HeldPlatform& held, std::function<DateValue()> now, RecordFacts facts = {});

  HistoryFolder& history() { return folder_; }
  HeldPlatform& held() { return held_; }

  // Begins a click, which is an event of the operator that changes files. All transactions until
  // EndClick are parts of one run. Requests to end the process are recorded until EndClick. Raises
  // Stopped if such a request arrived in the click before, but was too late to stop it.
  void BeginClick();
  // Ends the click. Drops changes that are still held.
  void EndClick();
  // Raises Stopped if the process is requested to end and no transaction of the click was committed
  // yet. Is called before each change and at each step of a run.
  void CheckStopped();

  // Begins a dry run, which lasts until the process ends. All changes are held and none is applied.
  // Commit only calls CheckStopped and returns 0. Later runs read the changes of earlier ones.
  // Recover does nothing.
  void HoldForGood();
  bool IsDryRun() const { return dry_run_; }

  // Begins a preview, which lasts until EndPreview or EndClick. All transactions of the click
  // become one: Begin keeps the changes that are held, and Commit adds its report to those before
  // and returns 0. The next Commit after EndPreview commits everything.
  void BeginPreview() { preview_ = true; }
  void EndPreview() { preview_ = false; }
  bool IsPreview() const { return preview_; }

  // Begins a transaction. Drops changes that were held before, except in a dry run or a preview.
  void Begin(RunTitle title);
  bool IsOpen() const { return held_.held() != nullptr; }
  // True if the current click has committed a transaction.
  bool HasCommitted() const { return committed_in_click_ != 0; }
  // Begins a group for the following changes. They belong to the run as a whole if `title` is
  // empty.
  void BeginGroup(std::string_view title);

  // Commits the held changes. Returns the running number of the run in the history, or 0 if nothing
  // changes. Raises CommitFailed if the commit fails. The changes are still held then. Its number
  // is 70 if another program has changed the files. Raises HoldFailed if the held changes cannot be
  // read, and Stopped like CheckStopped.
  std::int32_t Commit(std::string_view report);
  // Drops the held changes, except in a dry run.
  void Drop();

  // Returns the running number of the last run that was committed, or 0 if there is none.
  std::int32_t last_committed() const { return last_committed_; }

  // Finishes interrupted runs, or puts them back. The caller must hold the lock of LockRun and must
  // not have changed files yet. Raises error 70 if another process has the history file of an
  // interrupted run open.
  Recovery Recover(RecoveryChoice choice = RecoveryChoice::kByItself);
  // True if a run is interrupted. Changes nothing. Ignores history files that cannot be opened or
  // read.
  bool IsUnfinished();

 private:
  // The numbers of the changed records of each file, sorted.
  using ChangedRecords = std::map<std::string, std::vector<std::int64_t>>;

  std::int32_t CommitChanges(HeldChanges& changes, std::string_view report);
  std::unique_ptr<HistoryFile> WriteHistory(const HistoryName& name, HeldChanges& changes,
                                            std::string_view report);
  void WriteContent(HistoryWriter& writer, const HistoryName& name, HeldChanges& changes,
                    std::string_view report);
  std::vector<RecordReference> OldReferences(const ChangedRecords& changed);
  void CheckPaths(const HeldChanges& changes);
  void Apply(HistoryFile& history, HeldChanges& changes);
  void Discard(std::unique_ptr<HistoryFile> history, const HistoryName& name);
  void Prune();

  HeldPlatform& held_;
  HistoryFolder folder_;
  std::function<DateValue()> now_;
  RecordFacts facts_;
  RunTitle title_;
  std::int32_t committed_in_click_ = 0;
  std::int32_t last_committed_ = 0;
  std::unique_ptr<StopWatch> stops_;
  bool dry_run_ = false;
  bool preview_ = false;
  std::string previewed_report_;  // of the transactions of a preview
  bool stop_raised_ = false;
  int missed_signal_ = 0;  // a request that came too late to stop a run; 0 for none
};

// Runs a statement in an open transaction, then commits. If the statement raises a numbered error,
// commits the changes that it has made before, and raises the error again. `commit` gets that error
// or null.
template <class Statement, class Commit>
void RunAndCommit(const Statement& statement, const Commit& commit) {
  try {
    statement();
  } catch (const NumberedError& error) {
    commit(&error);
    throw;
  }
  commit(nullptr);
}

}  // namespace golf
