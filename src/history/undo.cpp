#include "history/undo.h"

#include <algorithm>
#include <map>
#include <memory>
#include <utility>

#include "history/record_changes.h"

namespace golf {
namespace {

constexpr std::size_t kPiece = std::size_t{64} << 10;

std::size_t SizeOf(const HistoryPlace& place) {
  return std::max(place.old_bytes.size(), place.new_bytes.size());
}

// Whether each changed byte is as the run has left it, or as it was before.
bool IsAsLeft(const HistoryPlace& place, std::string_view now) {
  const auto equals = [&](const std::string& side, std::size_t at) {
    return at < side.size() ? at < now.size() && now[at] == side[at] : at >= now.size();
  };
  return std::all_of(place.changed.begin(), place.changed.end(), [&](const ChangedBytes& run) {
    for (std::size_t at = run.at; at < run.at + run.size; ++at) {
      if (!equals(place.new_bytes, at) && !equals(place.old_bytes, at)) return false;
    }
    return true;
  });
}

// Puts one part of a run back.
class PartUndo {
 public:
  PartUndo(HeldPlatform& held, HistoryFolder& folder, Transactions& transactions,
           const RecordKinds& kinds, HistoryFile& history, UndoResult& result)
      : gate_(held),
        folder_(folder),
        transactions_(transactions),
        kinds_(kinds),
        history_(history),
        result_(result) {}

  void Run() {
    FindConflicts();
    KeepGroups();
    PutBackPlaces();
    PutBackFiles();
  }

 private:
  // A place by its file and offset; an offset of -1 is the file as a whole.
  using Place = std::pair<std::string, std::int64_t>;

  void Open(const HistoryFileEntry& entry) {
    entry_ = entry;
    path_ = folder_.folders().Path(entry.path);
    file_ = nullptr;
    if (entry.fate == FileFate::kDeleted) return;
    try {
      file_ = gate_.platform().Open(path_, FileAccess::kReadWriteShared);
    } catch (const NumberedError& error) {
      if (!error.Is(ErrorNumber::kFileNotFound)) throw;
    }
  }

  std::string Now(const HistoryPlace& place) {
    std::string now(SizeOf(place), '\0');
    now.resize(file_->ReadAt(place.offset, now));
    return now;
  }

  bool GrewSince() { return file_ != nullptr && file_->Length() > entry_.new_length; }

  // First walk: what cannot be put back.
  void FindConflicts() {
    history_.Read(
        {.group = [&](ChangeGroup group, std::string_view title) { titles_.emplace(group, title); },
         .file = [&](const HistoryFileEntry& entry) { CheckFile(entry); },
         .place = [&](const HistoryPlace& place) { CheckPlace(place); }});
  }

  void CheckFile(const HistoryFileEntry& entry) {
    Open(entry);
    const auto conflict = [&](std::string reason) {
      kept_.insert({entry.path, -1});
      result_.conflicts.push_back({.file = entry.path, .reason = std::move(reason)});
    };
    switch (entry.fate) {
      case FileFate::kDeleted:
        if (IsThere(path_)) return conflict("The file that was deleted is there again.");
        if (!IsKept(entry)) return conflict("The deleted file is no longer in the history.");
        break;
      case FileFate::kChanged:
        if (file_ == nullptr) return conflict("The file is not there any more.");
        break;
      case FileFate::kCreated:
        if (GrewSince()) conflict("The file that the run has made has grown since.");
    }
  }

  void CheckPlace(const HistoryPlace& place) {
    if (file_ == nullptr || kept_.contains({entry_.path, -1})) return;
    const std::string now = Now(place);
    const bool is_added = place.old_bytes.empty();
    if (!IsAsLeft(place, now)) return AddConflict(place, now, "");
    if (is_added && entry_.fate == FileFate::kChanged && GrewSince()) {
      return AddConflict(place, now, "Other records follow it by now.");
    }
    const std::string referring = ReferredBy(place, now);
    if (!referring.empty()) AddConflict(place, now, referring + " refers to it by now.");
  }

  // Only what the run has added, and what is still as it left it, can be missed by others.
  std::string ReferredBy(const HistoryPlace& place, const std::string& now) {
    const auto layout = kinds_.layout_of(FileNameOf(entry_.path));
    if (!layout || now.size() != layout->length || place.new_bytes.size() != now.size()) return {};
    if (!place.old_bytes.empty() && !kinds_.title_of(entry_.path, place.old_bytes).empty()) {
      return {};
    }
    if (kinds_.title_of(entry_.path, now).empty()) return {};
    const auto length = static_cast<std::int64_t>(layout->length);
    return kinds_.referred_by(entry_.path, place.offset / length + 1, now);
  }

  void AddConflict(const HistoryPlace& place, const std::string& now, std::string reason) {
    const std::string_view name = FileNameOf(entry_.path);
    if (kinds_.is_derived(name)) {
      kept_.insert({entry_.path, -1});
      result_.stale_indexes.insert(entry_.path);
      return;
    }
    kept_.insert({entry_.path, place.offset});
    if (entry_.fate == FileFate::kCreated) kept_.insert({entry_.path, -1});
    if (place.group != 0) kept_groups_.insert(place.group);
    UndoConflict conflict{.file = entry_.path,
                          .layout = kinds_.layout_of(name),
                          .reason = std::move(reason),
                          .old_bytes = place.old_bytes,
                          .written = place.new_bytes,
                          .found = now};
    if (conflict.layout) {
      conflict.record = place.offset / static_cast<std::int64_t>(conflict.layout->length) + 1;
      conflict.title = kinds_.title_of(entry_.path, now);
    }
    if (conflict.title.empty()) conflict.title = titles_[place.group];
    result_.conflicts.push_back(std::move(conflict));
  }

  // Second walk: everything of a group that is in conflict stays.
  void KeepGroups() {
    if (kept_groups_.empty()) return;
    history_.Read({.file = [&](const HistoryFileEntry& entry) { entry_ = entry; },
                   .place =
                       [&](const HistoryPlace& place) {
                         if (!kept_groups_.contains(place.group)) return;
                         kept_.insert({entry_.path, place.offset});
                         if (entry_.fate == FileFate::kCreated) kept_.insert({entry_.path, -1});
                       }});
  }

  // Third walk: the bytes.
  void PutBackPlaces() {
    history_.Read({.file =
                       [&](const HistoryFileEntry& entry) {
                         FinishFile();
                         Open(entry);
                         kept_end_ = 0;
                         is_in_hand_ = file_ != nullptr && entry.fate == FileFate::kChanged &&
                                       !kept_.contains({entry.path, -1});
                         if (is_in_hand_) FindKeptEnd();
                       },
                   .place =
                       [&](const HistoryPlace& place) {
                         if (is_in_hand_) PutBack(place);
                       }});
    FinishFile();
  }

  // Behind the old end the file can only be cut where nothing stays.
  void FindKeptEnd() {
    const auto behind = kept_.upper_bound({entry_.path, entry_.old_length - 1});
    for (auto place = behind; place != kept_.end() && place->first == entry_.path; ++place) {
      kept_end_ = entry_.new_length;
    }
  }

  void PutBack(const HistoryPlace& place) {
    if (kept_.contains({entry_.path, place.offset})) return;
    const std::string now = Now(place);
    std::string wanted = now;
    for (const ChangedBytes& run : place.changed) {
      for (std::size_t at = run.at; at < run.at + run.size; ++at) {
        if (at < place.old_bytes.size()) {
          wanted.resize(std::max(wanted.size(), at + 1));
          wanted[at] = place.old_bytes[at];
        } else if (at < wanted.size()) {
          wanted[at] = '\0';
        }
      }
    }
    ++result_.undone;
    // What the cut will take away needs no zeros.
    if (kept_end_ == 0) wanted.resize(std::min(wanted.size(), OldSize(place)));
    if (wanted.empty() || wanted == now) return;
    transactions_.BeginGroup(titles_[place.group]);
    gate_.Write(*file_, place.offset, wanted);
  }

  std::size_t OldSize(const HistoryPlace& place) const {
    return static_cast<std::size_t>(std::clamp<std::int64_t>(
        entry_.old_length - place.offset, 0, static_cast<std::int64_t>(SizeOf(place))));
  }

  void FinishFile() {
    if (!is_in_hand_) return;
    is_in_hand_ = false;
    const bool grew = entry_.new_length > entry_.old_length;
    if (grew && kept_end_ == 0 && file_->Length() > entry_.old_length) {
      transactions_.BeginGroup("");
      gate_.Truncate(*file_, entry_.old_length);
    }
  }

  // Last, files that were created go and those that were deleted come back.
  void PutBackFiles() {
    std::vector<HistoryFileEntry> deleted;
    transactions_.BeginGroup("");
    history_.Read({.file = [&](const HistoryFileEntry& entry) {
      if (kept_.contains({entry.path, -1})) return;
      if (entry.fate == FileFate::kDeleted) deleted.push_back(entry);
      if (entry.fate != FileFate::kCreated) return;
      if (const std::string path = folder_.folders().Path(entry.path); IsThere(path)) {
        file_ = nullptr;
        gate_.Delete(path);
        ++result_.undone;
      }
    }});
    for (const HistoryFileEntry& entry : deleted) BringBack(entry);
  }

  void BringBack(const HistoryFileEntry& entry) {
    const auto kept = folder_.gate().platform().Open(folder_.folders().history + entry.kept_as,
                                                     FileAccess::kReadOnly);
    const std::string path = folder_.folders().Path(entry.path);
    gate_.Create(path);
    const auto file = gate_.platform().Open(path, FileAccess::kReadWriteShared);
    std::string piece(kPiece, '\0');
    for (std::int64_t at = 0;; at += static_cast<std::int64_t>(kPiece)) {
      const std::size_t size = kept->ReadAt(at, piece);
      if (size > 0) gate_.Write(*file, at, std::string_view(piece).substr(0, size));
      if (size < kPiece) break;
    }
    ++result_.undone;
  }

  bool IsThere(const std::string& path) {
    try {
      gate_.platform().Open(path, FileAccess::kReadOnly);
      return true;
    } catch (const NumberedError& error) {
      if (!error.Is(ErrorNumber::kFileNotFound)) throw;
      return false;
    }
  }

  bool IsKept(const HistoryFileEntry& entry) {
    return IsThere(folder_.folders().history + entry.kept_as);
  }

  HistoryGate gate_;
  HistoryFolder& folder_;
  Transactions& transactions_;
  const RecordKinds& kinds_;
  HistoryFile& history_;
  UndoResult& result_;
  std::map<ChangeGroup, std::string> titles_;
  std::set<Place> kept_;
  std::set<ChangeGroup> kept_groups_;
  HistoryFileEntry entry_;  // in hand
  std::string path_;
  std::unique_ptr<PlatformFile> file_;
  bool is_in_hand_ = false;
  std::int64_t kept_end_ = 0;
};

}  // namespace

UndoResult HoldUndo(HeldPlatform& held, HistoryFolder& folder, Transactions& transactions,
                    const RecordKinds& kinds, const HistoryRun& run) {
  UndoResult result;
  for (auto part = run.parts.rbegin(); part != run.parts.rend(); ++part) {
    const auto history = folder.Open(*part, FileAccess::kReadOnly);
    PartUndo(held, folder, transactions, kinds, *history, result).Run();
  }
  return result;
}

}  // namespace golf
