#include "history/change_applier.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "core/text.h"
#include "history/place_comparison.h"
#include "history/place_reader.h"

namespace golf {
namespace {

constexpr std::size_t kMostPending = std::size_t{256} << 10;

bool HasConflict(const std::set<PlaceConflict>& conflicts, const std::string& path) {
  const auto first = conflicts.lower_bound({path, -1});
  return first != conflicts.end() && first->path == path;
}

// A file that gets its bytes of before or after the run.
class Target {
 public:
  Target(HistoryGate& gate, std::shared_ptr<PlatformFile> file, std::string path,
         HistoryFileEntry entry, Direction direction)
      : gate_(gate),
        file_(std::move(file)),
        reader_(*file_),
        path_(std::move(path)),
        entry_(std::move(entry)),
        direction_(direction) {}

  // Writes a place. Places that follow each other are written with one call. With `fills_gaps`,
  // bytes that only the other side has become zeros; otherwise the length of the file ends them.
  void Write(const HistoryPlace& place, bool untouched, bool fills_gaps) {
    const std::size_t first = place.FirstChanged();
    // Reading the bytes between two places may overwrite those of the place.
    now_ = reader_.Read(place.offset + static_cast<std::int64_t>(first), place.ChangedSize());
    if (untouched && !IsUntouched(place, now_)) throw ChangedByOthers(path_);
    const std::string& wanted =
        direction_ == Direction::kForward ? place.new_bytes : place.old_bytes;
    const std::size_t last = first + place.ChangedSize();
    const std::size_t end = fills_gaps ? last : std::min(last, wanted.size());
    if (first >= end) return;
    Join(place, place.offset + static_cast<std::int64_t>(first));
    const std::size_t before = pending_.size();
    pending_.append(now_, 0, end - first);
    pending_.resize(before + end - first);
    for (const ChangedBytes& run : place.changed) {
      const std::size_t run_end = std::min(run.End(), end);
      if (run.at >= run_end) continue;
      const std::size_t copied_end = std::clamp(wanted.size(), run.at, run_end);
      char* const to = pending_.data() + before - first;
      std::copy(wanted.data() + run.at, wanted.data() + copied_end, to + run.at);
      std::fill(to + copied_end, to + run_end, '\0');
    }
  }

  // A place that stays as it is keeps the file long enough to hold it.
  void Keep(const HistoryPlace& place) { kept_end_ = std::max(kept_end_, place.End()); }

  // Writes what is pending and sets the length.
  void Finish() {
    Flush();
    const bool forward = direction_ == Direction::kForward;
    const std::int64_t from = forward ? entry_.old_length : entry_.new_length;
    const std::int64_t to = std::max(forward ? entry_.new_length : entry_.old_length, kept_end_);
    const std::int64_t length = file_->Length();
    const bool is_long = length > to && (from > to || entry_.fate == FileFate::kCreated);
    if (length < to || is_long) gate_.Truncate(*file_, to);
  }

  void Sync() { gate_.Sync(*file_); }

 private:
  // Extends what is pending to the byte at `start`. The unchanged bytes between two records that
  // follow each other are written again, so that one call writes both records.
  void Join(const HistoryPlace& place, std::int64_t start) {
    const std::int64_t end = start_ + std::ssize(pending_);
    const bool follows = !pending_.empty() && place.offset == place_end_ && start >= end &&
                         start - end <= PlaceReader::kCloseGap && pending_.size() < kMostPending;
    place_end_ = place.End();
    if (follows && start > end) {
      const auto gap = static_cast<std::size_t>(start - end);
      const std::string_view between = reader_.Read(end, gap);
      pending_.append(between).append(gap - between.size(), '\0');
    }
    if (follows) return;
    Flush();
    start_ = start;
  }

  void Flush() {
    if (!pending_.empty()) gate_.Write(*file_, start_, pending_);
    pending_.clear();
  }

  HistoryGate& gate_;
  std::shared_ptr<PlatformFile> file_;
  PlaceReader reader_;
  std::string path_;
  HistoryFileEntry entry_;
  Direction direction_;
  std::string now_;         // the changed bytes of a place as the file has them
  std::int64_t start_ = 0;  // of what is pending
  std::string pending_;
  std::int64_t place_end_ = 0;  // of the last place
  std::int64_t kept_end_ = 0;   // of the last place that stays as it is
};

class Application {
 public:
  Application(RunFiles& files, const ApplyOptions& options)
      : files_(files), options_(options), forward_(options.direction == Direction::kForward) {}

  void Run(HistoryFile& history) {
    history.Read({.file = [&](const HistoryFileEntry& entry) { Begin(entry); },
                  .place = [&](const HistoryPlace& place) { Write(place); },
                  .parts = PlaceParts::kChanged});
    Finish();
    if (!forward_) {
      DeleteCreated();
      RestoreDeleted();
    }
    for (const auto& target : targets_) target->Sync();
    for (const std::string& folder : folders_) files_.gate().SyncFolder(folder);
  }

 private:
  void Begin(const HistoryFileEntry& entry) {
    Finish();
    path_ = files_.paths().Path(entry.path);
    if (options_.skipped.contains({path_, -1})) return;
    switch (entry.fate) {
      case FileFate::kDeleted:
        return Delete(entry);
      case FileFate::kCreated:
        if (!Create(entry)) return;
        break;
      case FileFate::kChanged:
        break;
    }
    auto file = files_.Open(path_);
    if (file == nullptr) throw ChangedByOthers(path_);
    targets_.push_back(
        std::make_unique<Target>(files_.gate(), std::move(file), path_, entry, options_.direction));
    is_open_ = true;
  }

  // A deleted file is renamed into the history. Its folders are synced also if a process that was
  // killed has renamed it, since that change may not be on the disk.
  void Delete(const HistoryFileEntry& entry) {
    deleted_.push_back(entry);
    folders_.insert(files_.paths().FolderOf(path_));
    folders_.insert(files_.paths().history);
    if (files_.IsKept(entry)) return;
    still_there_.insert(UpperCase(path_));
    if (forward_) files_.gate().Rename(path_, files_.KeptPath(entry));
  }

  // Returns true if the bytes of the file are to be written.
  bool Create(const HistoryFileEntry& entry) {
    // Another program has created a file of this name. It stays as it is.
    if (HasConflict(options_.skipped, path_)) return false;
    folders_.insert(files_.paths().FolderOf(path_));
    if (!forward_) {
      if (!still_there_.contains(UpperCase(path_))) created_.push_back(entry);
      return false;
    }
    if (!files_.Exists(path_)) files_.gate().Create(path_);
    return true;
  }

  void Write(const HistoryPlace& place) {
    if (!is_open_) return;
    if (options_.skipped.contains({path_, place.offset})) return targets_.back()->Keep(place);
    // A place that stays behind the old end keeps the file long. What was added before that place
    // becomes zeros then.
    const bool fills_gaps = !forward_ && !options_.skipped.empty();
    targets_.back()->Write(place, options_.untouched, fills_gaps);
  }

  void Finish() {
    if (std::exchange(is_open_, false)) targets_.back()->Finish();
  }

  void DeleteCreated() {
    for (const HistoryFileEntry& entry : created_) {
      const std::string path = files_.paths().Path(entry.path);
      if (files_.Exists(path)) files_.gate().Delete(path);
    }
  }

  void RestoreDeleted() {
    for (auto entry = deleted_.rbegin(); entry != deleted_.rend(); ++entry) {
      if (!files_.IsKept(*entry)) continue;
      files_.gate().Rename(files_.KeptPath(*entry), files_.paths().Path(entry->path));
    }
  }

  RunFiles& files_;
  const ApplyOptions& options_;
  const bool forward_;
  std::vector<std::unique_ptr<Target>> targets_;
  std::vector<HistoryFileEntry> created_;
  std::vector<HistoryFileEntry> deleted_;
  std::set<std::string> folders_;      // in which names change
  std::set<std::string> still_there_;  // files that the run deletes, in capitals
  std::string path_;                   // of the file that the history describes now
  bool is_open_ = false;               // whether the last target gets its places
};

}  // namespace

void ApplyChanges(RunFiles& files, HistoryFile& history, const ApplyOptions& options) {
  Application(files, options).Run(history);
}

}  // namespace golf
