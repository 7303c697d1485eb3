#include "history/change_applier.h"

#include <algorithm>
#include <cstring>
#include <optional>

#include "core/text.h"

namespace golf {
namespace {

constexpr std::size_t kFirstWindow = std::size_t{16} << 10;
constexpr std::size_t kWindow = std::size_t{256} << 10;
constexpr std::int64_t kCloseGap = 4 << 10;

NumberedError ChangedByOthers(const std::string& path) {
  return {ErrorNumber::kPermissionDenied,
          "Another program has changed " + path + " during the run. Nothing was changed."};
}

// Reads places of a file by rising offsets. Places that lie close together are read with one call.
class PlaceReader {
 public:
  explicit PlaceReader(PlatformFile& file) : file_(file) {}

  // Fewer bytes than asked for at the end of the file.
  std::string_view Read(std::int64_t offset, std::size_t size) {
    const bool inside = offset >= at_ && offset + static_cast<std::int64_t>(size) <=
                                             at_ + static_cast<std::int64_t>(window_.size());
    if (!inside) {
      const bool is_close = offset - last_end_ <= kCloseGap;
      ahead_ = is_close ? std::clamp(ahead_ * 2, kFirstWindow, kWindow) : 0;
      at_ = offset;
      try {
        Fill(std::max(size, ahead_));
      } catch (const NumberedError&) {
        if (ahead_ <= size) throw;
        Fill(size);  // bytes behind the place may be those that cannot be read
      }
    }
    last_end_ = offset + static_cast<std::int64_t>(size);
    const auto start = static_cast<std::size_t>(offset - at_);
    return std::string_view(window_).substr(0, held_).substr(std::min(start, held_), size);
  }

 private:
  void Fill(std::size_t size) {
    window_.clear();
    held_ = 0;
    std::string window(size, '\0');
    held_ = file_.ReadAt(at_, window);
    window_.swap(window);
  }

  PlatformFile& file_;
  std::string window_;
  std::int64_t at_ = 0;
  std::size_t held_ = 0;
  std::int64_t last_end_ = 0;
  std::size_t ahead_ = 0;
};

// `now` are the bytes that the file has now, from the byte `from` of the place on.
bool IsOld(const HistoryPlace& place, std::size_t at, std::string_view now, std::size_t from) {
  if (at - from >= now.size()) return at >= place.old_bytes.size();
  const char byte = now[at - from];
  return at < place.old_bytes.size() ? byte == place.old_bytes[at] : byte == '\0';
}

bool IsNew(const HistoryPlace& place, std::size_t at, std::string_view now, std::size_t from) {
  if (at - from >= now.size()) return at >= place.new_bytes.size();
  const char byte = now[at - from];
  return at < place.new_bytes.size() ? byte == place.new_bytes[at] : byte == '\0';
}

// As IsOld for each changed byte, a run of bytes at a time where it can be.
bool IsUntouched(const HistoryPlace& place, std::string_view now, std::size_t from) {
  const std::size_t both = std::min(now.size() + from, place.old_bytes.size());
  return std::all_of(place.changed.begin(), place.changed.end(), [&](const ChangedBytes& run) {
    if (run.at + run.size <= both) {
      return std::memcmp(now.data() + run.at - from, place.old_bytes.data() + run.at, run.size) ==
             0;
    }
    if (now.size() + from <= run.at && place.old_bytes.size() <= run.at) return true;
    for (std::size_t at = run.at; at < run.at + run.size; ++at) {
      if (!IsOld(place, at, now, from)) return false;
    }
    return true;
  });
}

bool IsMixture(const HistoryPlace& place, std::string_view now, std::size_t from) {
  return std::all_of(place.changed.begin(), place.changed.end(), [&](const ChangedBytes& run) {
    for (std::size_t at = run.at; at < run.at + run.size; ++at) {
      if (!IsOld(place, at, now, from) && !IsNew(place, at, now, from)) return false;
    }
    return true;
  });
}

std::size_t PlaceSize(const HistoryPlace& place) {
  return std::max(place.old_bytes.size(), place.new_bytes.size());
}

bool HasConflict(const std::set<PlaceConflict>& conflicts, const std::string& path) {
  const auto first = conflicts.lower_bound({path, -1});
  return first != conflicts.end() && first->path == path;
}

std::string FolderOf(const std::string& path, char separator) {
  return path.substr(0, path.rfind(separator) + 1);
}

}  // namespace

std::string HistoryFolders::Path(std::string_view name) const {
  std::string path(name);
  std::replace(path.begin(), path.end(), '/', separator);
  return install + path;
}

std::string HistoryFolders::Name(std::string_view path) const {
  std::string name(path.starts_with(install) ? path.substr(install.size()) : path);
  std::replace(name.begin(), name.end(), separator, '/');
  return name;
}

// A file that is being brought to its bytes of before or after the run.
class ChangeApplier::Target {
 public:
  Target(HistoryGate& gate, std::shared_ptr<PlatformFile> file, HistoryFileEntry entry,
         Direction direction, bool untouched)
      : gate_(gate),
        file_(std::move(file)),
        reader_(*file_),
        entry_(std::move(entry)),
        direction_(direction),
        untouched_(untouched) {}

  // Places that follow each other are written with one call.
  void Take(const HistoryPlace& place, bool fills_gaps) {
    std::string wanted = direction_ == Direction::kForward ? place.new_bytes : place.old_bytes;
    if (fills_gaps) wanted.resize(PlaceSize(place));
    const std::size_t first = place.changed.front().at;
    const std::size_t last = place.changed.back().at + place.changed.back().size;
    // Reading the bytes may forget those that were read before.
    const std::string now(
        reader_.Read(place.offset + static_cast<std::int64_t>(first), last - first));
    if (untouched_ && !IsUntouched(place, now, first)) throw ChangedByOthers(entry_.path);
    const std::size_t end = std::min(last, wanted.size());
    if (first >= end) return;  // the length sees to it
    Join(place, place.offset + static_cast<std::int64_t>(first));
    const std::size_t before = pending_.size();
    pending_.append(now, 0, end - first);
    pending_.resize(before + end - first);
    for (const ChangedBytes& run : place.changed) {
      if (run.at >= end) continue;
      const std::size_t size = std::min(run.size, end - run.at);
      pending_.replace(before + run.at - first, size, wanted, run.at, size);
    }
  }

  // `kept_end` is the end of the last place that stays as it is.
  void Finish(std::int64_t kept_end) {
    Flush();
    const bool forward = direction_ == Direction::kForward;
    const std::int64_t from = forward ? entry_.old_length : entry_.new_length;
    const std::int64_t to = std::max(forward ? entry_.new_length : entry_.old_length, kept_end);
    const std::int64_t length = file_->Length();
    const bool is_long = length > to && (from > to || entry_.fate == FileFate::kCreated);
    if (length < to || is_long) gate_.Truncate(*file_, to);
  }

  void Sync() { gate_.Sync(*file_); }

 private:
  // Brings what is pending to the byte at `start`: the bytes between two records that follow each
  // other are written as they are, in one call with both.
  void Join(const HistoryPlace& place, std::int64_t start) {
    const std::int64_t end = start_ + std::ssize(pending_);
    const bool follows = !pending_.empty() && place.offset == place_end_ && start >= end &&
                         start - end <= kCloseGap && pending_.size() < kWindow;
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
  HistoryFileEntry entry_;
  Direction direction_;
  bool untouched_;
  std::int64_t start_ = 0;
  std::string pending_;
  std::int64_t place_end_ = 0;  // of the last place
};

ChangeApplier::ChangeApplier(HistoryGate& gate, HistoryFolders folders)
    : ChangeApplier(gate, std::move(folders), nullptr) {}

ChangeApplier::ChangeApplier(HistoryGate& gate, HistoryFolders folders, OpenFile open)
    : gate_(gate), folders_(std::move(folders)), open_(std::move(open)) {}

std::shared_ptr<PlatformFile> ChangeApplier::OpenExisting(const std::string& path) {
  if (open_) {
    if (auto file = open_(path)) return file;
  }
  try {
    return gate_.platform().Open(path, FileAccess::kReadWriteShared);
  } catch (const NumberedError& error) {
    if (error.Is(ErrorNumber::kFileNotFound)) return nullptr;
    throw;
  }
}

bool ChangeApplier::Exists(const std::string& path) {
  try {
    gate_.platform().Open(path, FileAccess::kReadOnly);
    return true;
  } catch (const NumberedError& error) {
    if (error.Is(ErrorNumber::kFileNotFound)) return false;
    throw;
  }
}

void ChangeApplier::CheckUntouched(HistoryFile& history) {
  Check(history, Expected::kOld,
        [](const PlaceConflict& conflict) { throw ChangedByOthers(conflict.path); });
}

std::set<PlaceConflict> ChangeApplier::Conflicts(HistoryFile& history) {
  std::set<PlaceConflict> conflicts;
  Check(history, Expected::kMixture,
        [&](PlaceConflict conflict) { conflicts.insert(std::move(conflict)); });
  return conflicts;
}

bool ChangeApplier::IsAllOld(HistoryFile& history) {
  bool all_old = true;
  Check(history, Expected::kOld, [&](const PlaceConflict&) { all_old = false; });
  return all_old;
}

void ChangeApplier::Check(HistoryFile& history, Expected expected,
                          const std::function<void(PlaceConflict)>& differs) {
  std::shared_ptr<PlatformFile> file;
  std::optional<PlaceReader> reader;
  std::string path;
  std::set<std::string> still_there;               // files that the run deletes, in capitals
  std::map<std::string, std::string> there_again;  // files that it has deleted, by capitals
  const auto begin = [&](const HistoryFileEntry& entry) {
    path = folders_.Path(entry.path);
    reader.reset();
    if (entry.fate == FileFate::kCreated) there_again.erase(UpperCase(path));
    file = nullptr;
    // The file that takes the place of a deleted one is not there before the other one is gone.
    if (entry.fate == FileFate::kCreated && still_there.contains(UpperCase(path))) return;
    CheckFate(entry, expected, differs);
    if (entry.fate == FileFate::kDeleted) {
      if (!Exists(folders_.history + entry.kept_as)) {
        still_there.insert(UpperCase(path));
      } else if (Exists(path)) {
        there_again[UpperCase(path)] = path;
      }
      return;
    }
    file = OpenExisting(path);
    if (file != nullptr) reader.emplace(*file);
  };
  const auto take = [&](const HistoryPlace& place) {
    if (!reader) return;
    const std::size_t first = place.changed.front().at;
    const std::size_t last = place.changed.back().at + place.changed.back().size;
    const std::string_view now =
        reader->Read(place.offset + static_cast<std::int64_t>(first), last - first);
    const bool right =
        expected == Expected::kOld ? IsUntouched(place, now, first) : IsMixture(place, now, first);
    if (!right) differs({path, place.offset});
  };
  history.Read({.file = begin, .place = take, .parts = PlaceParts::kChanged});
  for (const auto& [key, again] : there_again) differs({again, -1});
}

// A file as a whole: whether it is there, and its length.
void ChangeApplier::CheckFate(const HistoryFileEntry& entry, Expected expected,
                              const std::function<void(PlaceConflict)>& differs) {
  const std::string path = folders_.Path(entry.path);
  const bool crashed = expected == Expected::kMixture;
  bool right = true;
  if (entry.fate == FileFate::kDeleted) {
    const bool kept = Exists(folders_.history + entry.kept_as);
    const bool there = Exists(path);
    right = kept ? crashed : there;
  } else if (const auto file = OpenExisting(path); file == nullptr) {
    right = entry.fate == FileFate::kCreated;
  } else {
    const std::int64_t length = file->Length();
    const bool grows_or_shrinks = entry.old_length != entry.new_length;
    const std::int64_t longest = std::max(entry.old_length, entry.new_length);
    if (crashed) {
      const bool may_grow = !grows_or_shrinks && entry.fate == FileFate::kChanged;
      right = may_grow || length <= longest;
    } else {
      right = entry.fate == FileFate::kChanged && (!grows_or_shrinks || length == entry.old_length);
    }
  }
  if (!right) differs({path, -1});
}

void ChangeApplier::Apply(HistoryFile& history, Direction direction, bool untouched,
                          const std::set<PlaceConflict>& skipped) {
  const bool forward = direction == Direction::kForward;
  // A place that stays behind the old end keeps the file long. What was added before it becomes
  // zeros then.
  const bool fills_gaps = !forward && !skipped.empty();
  std::vector<std::unique_ptr<Target>> targets;
  std::vector<HistoryFileEntry> created;
  std::vector<HistoryFileEntry> deleted;
  std::set<std::string> folders;      // in which names change
  std::set<std::string> still_there;  // files that the run deletes, in capitals
  std::string path;
  std::int64_t kept_end = 0;
  bool open = false;
  const auto finish = [&] {
    if (open) targets.back()->Finish(kept_end);
    open = false;
    kept_end = 0;
  };
  const auto begin = [&](const HistoryFileEntry& entry) {
    finish();
    path = folders_.Path(entry.path);
    if (skipped.contains({path, -1})) return;
    // Another program has made a file of this name. It stays as it is.
    if (entry.fate == FileFate::kCreated && HasConflict(skipped, path)) return;
    if (entry.fate == FileFate::kDeleted) {
      deleted.push_back(entry);
      const bool is_kept = Exists(folders_.history + entry.kept_as);
      if (!is_kept) still_there.insert(UpperCase(path));
      // Also where a process that was killed has renamed it: its change may not be synced.
      folders.insert(FolderOf(path, folders_.separator));
      folders.insert(folders_.history);
      if (forward && !is_kept) gate_.Rename(path, folders_.history + entry.kept_as);
      return;
    }
    if (entry.fate == FileFate::kCreated) {
      folders.insert(FolderOf(path, folders_.separator));
      if (!forward) {
        if (!still_there.contains(UpperCase(path))) created.push_back(entry);
        return;
      }
      if (!Exists(path)) gate_.Create(path);
    }
    auto file = OpenExisting(path);
    if (file == nullptr) throw ChangedByOthers(path);
    targets.push_back(
        std::make_unique<Target>(gate_, std::move(file), entry, direction, untouched));
    open = true;
  };
  const auto take = [&](const HistoryPlace& place) {
    if (!open) return;
    if (skipped.contains({path, place.offset})) {
      kept_end = std::max(kept_end, place.End());
    } else {
      targets.back()->Take(place, fills_gaps);
    }
  };
  history.Read({.file = begin, .place = take, .parts = PlaceParts::kChanged});
  finish();
  for (const HistoryFileEntry& entry : created) {
    if (const std::string made = folders_.Path(entry.path); Exists(made)) gate_.Delete(made);
  }
  if (!forward) {
    for (auto entry = deleted.rbegin(); entry != deleted.rend(); ++entry) {
      const std::string kept = folders_.history + entry->kept_as;
      if (Exists(kept)) gate_.Rename(kept, folders_.Path(entry->path));
    }
  }
  for (const auto& target : targets) target->Sync();
  for (const std::string& folder : folders) gate_.SyncFolder(folder);
}

}  // namespace golf
