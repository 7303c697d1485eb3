#include "history/transactions.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

#include "core/existing_file.h"
#include "core/resume_next.h"
#include "history/change_applier.h"
#include "history/held_content.h"
#include "history/hold_failed.h"
#include "history/run_stage.h"

namespace golf {
namespace {

constexpr double kDaysKept = 90;
constexpr std::size_t kRunsKept = 50;

// Reports that applying a run has failed, and that putting it back has failed, too.
class RunInterrupted : public NumberedError {
 public:
  explicit RunInterrupted(const NumberedError& cause)
      : NumberedError(ErrorNumber(cause.number()),
                      cause.description() +
                          " The run is interrupted: the next start puts it back, or finishes it.") {
  }
};

void PutBack(RunFiles& files, HistoryFile& history) {
  history.Put(files.gate(), HistoryMark::kPutBack);
  ApplyChanges(files, history,
               {.direction = Direction::kBack, .skipped = FindConflicts(files, history)});
  history.Put(files.gate(), HistoryMark::kClosed);
}

// Appends the numbers of the records in which a place lies. Their length is in bytes.
void AddRecords(std::vector<std::int64_t>& records, const HeldPlace& place, std::int64_t length) {
  const std::int64_t first = place.offset / length + 1;
  const std::int64_t last = (place.End() - 1) / length + 1;
  for (std::int64_t record = first; record <= last; ++record) {
    if (records.empty() || records.back() < record) records.push_back(record);
  }
}

// True if the stamps of all files prove that no other program has changed them during the run. The
// bytes need not be compared then. Application compares them again before it writes them.
bool IsProvenUntouched(const HeldChanges& changes) {
  return changes.deletions().empty() && std::ranges::all_of(changes.files(), [](const auto& file) {
           return file->IsProvenUntouched();
         });
}

NumberedError Replaced(const std::string& path) {
  return {ErrorNumber::kPermissionDenied,
          "Another program has replaced " + path + " during the run. Nothing was changed."};
}

}  // namespace

Transactions::Transactions(HeldPlatform& held, std::function<DateValue()> now, RecordFacts facts)
    : held_(held), folder_(held.real()), now_(std::move(now)), facts_(std::move(facts)) {
  held_.on_change = [this] { CheckStopped(); };
}

void Transactions::BeginClick() {
  committed_in_click_ = 0;
  if (const int signal = std::exchange(missed_signal_, 0); signal != 0) throw Stopped(signal);
  stop_raised_ = false;
  stops_ = folder_.gate().platform().WatchStops();
}

void Transactions::HoldForGood() {
  dry_run_ = true;
  held_.Hold();
}

void Transactions::EndClick() {
  preview_ = false;
  previewed_report_.clear();
  if (IsOpen()) Drop();
  committed_in_click_ = 0;
  if (stops_ != nullptr && !stop_raised_) missed_signal_ = stops_->Signal();
  stops_.reset();
}

void Transactions::CheckStopped() {
  // The remaining parts of a run are finished after its first commit.
  if (stops_ == nullptr || stops_->Signal() == 0 || committed_in_click_ != 0) return;
  stop_raised_ = true;
  throw Stopped(stops_->Signal());
}

void Transactions::Begin(RunTitle title) {
  if (preview_ && IsOpen()) return;
  title_ = std::move(title);
  if (!dry_run_) held_.Hold();
}

void Transactions::BeginGroup(std::string_view title) {
  if (IsOpen()) held_.held()->groups().Begin(title);
}

void Transactions::Drop() {
  if (!dry_run_) held_.Release();
}

std::int32_t Transactions::Commit(std::string_view report) {
  if (!IsOpen()) return 0;
  HeldChanges& changes = *held_.held();
  CheckStopped();
  if (dry_run_) return 0;
  std::string reports = previewed_report_;
  if (!reports.empty() && !report.empty()) reports += "\r\n";
  reports += report;
  if (preview_) {
    previewed_report_ = std::move(reports);
    return 0;
  }
  if (!changes.HasNetChange()) {
    Drop();
    return 0;
  }
  try {
    return CommitChanges(changes, reports);
  } catch (const RunInterrupted& error) {
    throw CommitFailed(error, true);
  } catch (const NumberedError& error) {
    throw CommitFailed(error, false);
  }
}

std::int32_t Transactions::CommitChanges(HeldChanges& changes, std::string_view report) {
  folder_.Make();
  title_.moment = now_();
  title_.continues = committed_in_click_ != 0;
  const HistoryName name = folder_.Next(title_.moment, title_.continues);
  auto history = WriteHistory(name, changes, report);
  Apply(*history, changes);
  Drop();
  history.reset();
  last_committed_ = committed_in_click_ = name.run;
  Prune();
  return name.run;
}

// Writes the history file and syncs it. Raises error 70 if another program has changed the files.
// Deletes the history file after an error.
std::unique_ptr<HistoryFile> Transactions::WriteHistory(const HistoryName& name,
                                                        HeldChanges& changes,
                                                        std::string_view report) {
  HistoryWriter writer(folder_.gate(), folder_.Path(name));
  std::unique_ptr<HistoryFile> history;
  try {
    WriteContent(writer, name, changes, report);
    history = std::make_unique<HistoryFile>(folder_.Path(name), writer.Take());
    folder_.gate().SyncFolder(folder_.paths().history);
    CheckPaths(changes);
    RunFiles files(folder_.gate(), folder_.paths());
    if (!IsProvenUntouched(changes)) RequireUntouched(files, *history);
    return history;
  } catch (const NumberedError&) {
    Discard(std::move(history), name);
    throw;
  } catch (const HoldFailed&) {
    Discard(std::move(history), name);
    throw;
  }
}

// Writes the content of the history file.
void Transactions::WriteContent(HistoryWriter& writer, const HistoryName& name,
                                HeldChanges& changes, std::string_view report) {
  writer.Run(title_);
  std::size_t kept = 0;
  ChangedRecords changed;
  std::vector<std::int64_t>* records = nullptr;
  std::int64_t length = 0;
  ReadHeld(changes, folder_.paths(),
           {.group = [&](ChangeGroup group, std::string_view title) { writer.Group(group, title); },
            .file =
                [&](HistoryFileEntry entry) {
                  if (entry.fate == FileFate::kDeleted) {
                    entry.kept_as = HistoryFolder::KeptName(name, ++kept);
                  }
                  writer.File(entry);
                  length = facts_.length ? static_cast<std::int64_t>(facts_.length(entry.path)) : 0;
                  records = &changed[entry.path];
                },
            .place =
                [&](const HeldPlace& place, std::string_view code) {
                  writer.Place(place, code);
                  if (length > 0) AddRecords(*records, place, length);
                },
            .record_length = facts_.length});
  for (const RecordReference& reference : OldReferences(changed)) writer.Reference(reference);
  writer.Report(report);
  writer.Finish();
}

// Returns the references that exist already to records that the run adds. Returns fewer if they
// cannot be read. An undo then takes the missing ones for new ones, and leaves the records.
std::vector<RecordReference> Transactions::OldReferences(const ChangedRecords& changed) {
  std::vector<RecordReference> references;
  if (!facts_.references_to_free) return references;
  const ResumeNext anyway(nullptr);
  for (const auto& of_file : changed) {
    anyway([&] {
      std::ranges::move(facts_.references_to_free(of_file.first, of_file.second),
                        std::back_inserter(references));
    });
  }
  return references;
}

// Raises error 70 if a path no longer belongs to the file whose changes are held.
void Transactions::CheckPaths(const HeldChanges& changes) {
  const auto identity = [&](const std::string& path) -> std::optional<FileIdentity> {
    const auto file = OpenIfExists(held_.real(), path, FileAccess::kReadOnly);
    if (file == nullptr) return std::nullopt;
    return file->Identity();
  };
  for (const HeldDeletion& deletion : changes.deletions()) {
    if (identity(deletion.path) != deletion.identity) throw Replaced(deletion.path);
  }
  for (const auto& file : changes.files()) {
    const auto now = identity(file->path());
    const bool right = file->is_created() ? !now || changes.IsDeleted(file->path())
                                          : now == file->real()->Identity();
    if (!right) throw Replaced(file->path());
  }
}

// Applies the changes, or puts them back after an error. If the process crashes after the mark
// kCommitted is written, recovery finishes the run.
void Transactions::Apply(HistoryFile& history, HeldChanges& changes) {
  RunFiles files(folder_.gate(), folder_.paths(), [&](const std::string& path) {
    const auto file =
        std::find_if(changes.files().begin(), changes.files().end(),
                     [&](const auto& held) { return !held->is_created() && held->path() == path; });
    return file == changes.files().end() ? nullptr : (*file)->real();
  });
  try {
    history.Put(folder_.gate(), HistoryMark::kCommitted);
    ApplyChanges(files, history, {.direction = Direction::kForward, .untouched = true});
    history.Put(folder_.gate(), HistoryMark::kDone);
  } catch (const NumberedError& error) {
    const NumberedError first = error;
    try {
      PutBack(files, history);
    } catch (const NumberedError&) {
      throw RunInterrupted(first);
    }
    throw first;
  }
}

// Deletes the history file of a run that was not applied. Ignores errors, since a history file
// without marks has no effect.
void Transactions::Discard(std::unique_ptr<HistoryFile> history, const HistoryName& name) {
  history.reset();
  const ResumeNext anyway(nullptr);
  anyway([&] { folder_.gate().Delete(folder_.Path(name)); });
}

// Removes runs that are too old or too many. Does not remove interrupted runs. Ignores errors.
void Transactions::Prune() {
  const ResumeNext anyway(nullptr);
  anyway([&] {
    const std::vector<HistoryName> names = folder_.List();
    std::vector<std::int32_t> runs;
    for (const HistoryName& name : names) {
      if (runs.empty() || runs.back() != name.run) runs.push_back(name.run);
    }
    const std::int32_t oldest_kept = runs.size() > kRunsKept ? runs[runs.size() - kRunsKept] : 0;
    for (const HistoryName& name : names) {
      anyway([&] {
        auto history = folder_.Open(name, FileAccess::kAlone);
        const bool ended = HasEnded(StageOf(*history));
        const bool old = name.run < oldest_kept || history->Title().moment < now_() - kDaysKept;
        history.reset();
        if (ended && old) folder_.Forget(name);
      });
    }
  });
}

}  // namespace golf
