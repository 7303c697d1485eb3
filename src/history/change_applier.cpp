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

// Writes the new bytes into a file, or the old bytes if the direction is kBack.
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

  // Writes a place. Writes adjoining places with one call. If `fills_gaps` is true, writes zeros
  // behind the wanted bytes where the place is longer than they are. Otherwise Finish truncates the
  // file there. If `untouched` is true, raises error 70 if another program has changed the place.
  void Write(const HistoryPlace& place, bool untouched, bool fills_gaps) {
    const std::size_t first = place.FirstChanged();
    // Copies the bytes, since Join may read again and overwrite them.
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

  // Leaves a place unchanged. Finish does not truncate the file before its end.
  void Keep(const HistoryPlace& place) { kept_end_ = std::max(kept_end_, place.End()); }

  // Writes the pending bytes and sets the length of the file.
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
  // Prepares the pending bytes for an append at `start`. If the place adjoins the last one, appends
  // the unchanged bytes between them, so that one call writes both places. Otherwise writes the
  // pending bytes.
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
  std::string now_;         // the present bytes of the place in the file
  std::int64_t start_ = 0;  // offset of the pending bytes in the file
  std::string pending_;
  std::int64_t place_end_ = 0;  // end of the last place
  std::int64_t kept_end_ = 0;   // end of the last place that is left unchanged
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

  // Moves a deleted file into the history folder. Also syncs the folders if the file was moved
  // already: the process that moved it may have been killed before the sync.
  void Delete(const HistoryFileEntry& entry) {
    deleted_.push_back(entry);
    folders_.insert(files_.paths().FolderOf(path_));
    folders_.insert(files_.paths().history);
    if (files_.IsKept(entry)) return;
    still_there_.insert(UpperCase(path_));
    if (forward_) files_.gate().Rename(path_, files_.KeptPath(entry));
  }

  // Creates the file, or records that it must be deleted if the direction is kBack. Returns true if
  // the bytes of the file must be written.
  bool Create(const HistoryFileEntry& entry) {
    // Another program has created or changed the file. It is left unchanged.
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
    // An unchanged place behind the old end prevents the truncation of the file. Zeros then replace
    // the added bytes before that place.
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
  std::set<std::string> folders_;      // folders to sync
  std::set<std::string> still_there_;  // files to be deleted that exist, in capitals
  std::string path_;                   // path of the current file
  bool is_open_ = false;               // true if the current file is the last target
};

}  // namespace

void ApplyChanges(RunFiles& files, HistoryFile& history, const ApplyOptions& options) {
  Application(files, options).Run(history);
}

}  // namespace golf
