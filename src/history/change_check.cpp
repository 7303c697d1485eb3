#include "history/change_check.h"

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <optional>

#include "core/text.h"
#include "history/place_comparison.h"
#include "history/place_reader.h"

namespace golf {
namespace {

enum class Expected { kOld, kMixture };

// Compares the files of a run with its history file, and calls `differs` for each unexpected
// difference.
class ChangeCheck {
 public:
  ChangeCheck(RunFiles& files, Expected expected, std::function<void(PlaceConflict)> differs)
      : files_(files), expected_(expected), differs_(std::move(differs)) {}

  void Run(HistoryFile& history) {
    history.Read({.file = [&](const HistoryFileEntry& entry) { Begin(entry); },
                  .place = [&](const HistoryPlace& place) { Check(place); },
                  .parts = PlaceParts::kChanged});
    for (const auto& [key, path] : there_again_) differs_({path, -1});
  }

 private:
  void Begin(const HistoryFileEntry& entry) {
    path_ = files_.paths().Path(entry.path);
    reader_.reset();
    file_ = nullptr;
    if (entry.fate == FileFate::kDeleted) return CheckDeleted(entry);
    if (entry.fate == FileFate::kCreated) {
      there_again_.erase(UpperCase(path_));
      // The run replaces a deleted file by this one. The deleted file is still at this path.
      if (still_there_.contains(UpperCase(path_))) return;
    }
    file_ = files_.Open(path_);
    if (!IsRightAsWhole(entry)) differs_({path_, -1});
    if (file_ != nullptr) reader_.emplace(*file_);
  }

  void CheckDeleted(const HistoryFileEntry& entry) {
    const bool there = files_.Exists(path_);
    if (!files_.IsKept(entry)) {
      still_there_.insert(UpperCase(path_));
      if (!there) differs_({path_, -1});
    } else {
      if (expected_ == Expected::kOld) differs_({path_, -1});
      if (there) there_again_[UpperCase(path_)] = path_;
    }
  }

  // True if the existence and the length of the file are as expected.
  bool IsRightAsWhole(const HistoryFileEntry& entry) {
    const bool is_created = entry.fate == FileFate::kCreated;
    if (file_ == nullptr) return is_created;
    const std::int64_t length = file_->Length();
    const bool grows_or_shrinks = entry.old_length != entry.new_length;
    if (expected_ == Expected::kOld) {
      return !is_created && (!grows_or_shrinks || length == entry.old_length);
    }
    const bool may_grow = !grows_or_shrinks && !is_created;
    return may_grow || length <= std::max(entry.old_length, entry.new_length);
  }

  void Check(const HistoryPlace& place) {
    if (!reader_) return;
    const std::string_view now = reader_->Read(
        place.offset + static_cast<std::int64_t>(place.FirstChanged()), place.ChangedSize());
    const bool right =
        expected_ == Expected::kOld ? IsUntouched(place, now) : IsMixture(place, now);
    if (!right) differs_({path_, place.offset});
  }

  RunFiles& files_;
  Expected expected_;
  std::function<void(PlaceConflict)> differs_;
  std::string path_;
  std::shared_ptr<PlatformFile> file_;
  std::optional<PlaceReader> reader_;
  std::set<std::string> still_there_;               // files to be deleted that exist, in capitals
  std::map<std::string, std::string> there_again_;  // deleted files that exist, by capitals
};

}  // namespace

NumberedError ChangedByOthers(const std::string& path) {
  return {ErrorNumber::kPermissionDenied,
          "Another program has changed " + path + " during the run. Nothing was changed."};
}

void RequireUntouched(RunFiles& files, HistoryFile& history) {
  ChangeCheck(files, Expected::kOld, [](const PlaceConflict& conflict) {
    throw ChangedByOthers(conflict.path);
  }).Run(history);
}

bool IsAllOld(RunFiles& files, HistoryFile& history) {
  bool all_old = true;
  ChangeCheck(files, Expected::kOld, [&](const PlaceConflict&) { all_old = false; }).Run(history);
  return all_old;
}

std::set<PlaceConflict> FindConflicts(RunFiles& files, HistoryFile& history) {
  std::set<PlaceConflict> conflicts;
  ChangeCheck(files, Expected::kMixture, [&](PlaceConflict conflict) {
    conflicts.insert(std::move(conflict));
  }).Run(history);
  return conflicts;
}

}  // namespace golf
