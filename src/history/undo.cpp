#include "history/undo.h"

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <utility>

#include "core/existing_file.h"
#include "history/record_changes.h"
#include "history/record_parts.h"

namespace golf {
namespace {

constexpr std::size_t kPiece = std::size_t{64} << 10;

std::string Filled(std::string bytes, std::size_t length) {
  bytes.resize(length);
  return bytes;
}

// Contains a record before the run, as the run has written it, and as it is now. Each string has
// the full length. Missing bytes are zeros.
struct Sides {
  std::string old_bytes;
  std::string written;
  std::string found;
  bool is_added = false;  // the record was free before the run
};

// Returns the elements that were changed since the run. An element that has its old value again
// does not count. Compares all elements of an added record, and of another record those that the
// run has changed. Compares whole elements, so that the undo never mixes bytes of two values.
std::vector<FieldElement> ChangedSince(const LayoutInfo& layout, const Sides& sides) {
  std::vector<FieldElement> changed;
  for (const Field& field : layout.fields) {
    for (std::size_t nth = 0; nth < field.Count(); ++nth) {
      const std::size_t at = field.OffsetOfNth(nth);
      const auto same = [&](const std::string& a, const std::string& b) {
        return a.compare(at, field.width, b, at, field.width) == 0;
      };
      if (same(sides.found, sides.written) || same(sides.found, sides.old_bytes)) continue;
      if (sides.is_added || !same(sides.old_bytes, sides.written)) changed.push_back({field, nth});
    }
  }
  return changed;
}

// Contains data that the parts of a run share.
struct AllParts {
  std::set<std::string> kept_titles;          // of groups that must be left unchanged
  std::set<RecordReference> old_references;   // that are older than the run
  std::map<RecordId, std::string> referring;  // by added record: the name of one that refers to it
  std::set<RecordId> removed;                 // added records that the undo removes
};

// Puts back one part of a run. Records, groups and files that it leaves unchanged are called kept.
class PartUndo {
 public:
  PartUndo(HeldPlatform& held, HistoryFolder& folder, Transactions& transactions,
           const RecordKinds& kinds, HistoryFile& history, AllParts& all, UndoResult& result)
      : held_(held),
        gate_(held),
        folder_(folder),
        transactions_(transactions),
        kinds_(kinds),
        history_(history),
        all_(all),
        result_(result) {}

  void Run() {
    ReadNames();
    Walk([&](const RecordPart& part) { CheckPart(part); }, [&] { CheckFile(); });
    KeepGroups();
    KeepDerived();
    Walk([&](const RecordPart& part) { PutBack(part); }, [&] { BeginFile(); },
         [&] { FinishFile(); });
    PutBackFiles();
  }

 private:
  void ReadNames() {
    history_.Read(
        {.group = [&](ChangeGroup group, std::string_view title) { titles_.emplace(group, title); },
         .file =
             [&](const HistoryFileEntry& entry) {
               if (entry.fate == FileFate::kCreated) created_.insert(entry.path);
             },
         .reference =
             [&](RecordReference reference) { all_.old_references.insert(std::move(reference)); }});
  }

  // Reads the history file and calls `each` for each record part. Calls `begin` before those of
  // each file, and `finish` after them. The members of the current file are set during all these
  // calls.
  void Walk(
      const std::function<void(const RecordPart&)>& each, const std::function<void()>& begin,
      const std::function<void()>& finish = [] {}) {
    RecordParts parts(each);
    bool is_open = false;
    const auto end = [&] {
      parts.Finish();
      if (std::exchange(is_open, false)) finish();
    };
    history_.Read({.file =
                       [&](const HistoryFileEntry& entry) {
                         end();
                         Open(entry);
                         is_open = true;
                         begin();
                         parts.Begin(length_);
                       },
                   .place =
                       [&](const HistoryPlace& place) {
                         parts.Take(place.offset, place.group, place.old_bytes, place.new_bytes);
                       }});
    end();
    file_ = nullptr;
  }

  void Open(const HistoryFileEntry& entry) {
    entry_ = entry;
    path_ = folder_.paths().Path(entry.path);
    layout_ = kinds_.layout_of(FileNameOf(entry.path));
    // A text file counts as one record.
    length_ = layout_ ? layout_->length
                      : static_cast<std::size_t>(
                            std::max({entry.old_length, entry.new_length, std::int64_t{1}}));
    file_ = entry.fate == FileFate::kDeleted
                ? nullptr
                : OpenIfExists(gate_.platform(), path_, FileAccess::kReadWriteShared);
  }

  std::int64_t Offset(std::int64_t record) const {
    return (record - 1) * static_cast<std::int64_t>(length_);
  }

  std::string Now(std::int64_t offset, std::size_t size) {
    std::string now(size, '\0');
    now.resize(file_->ReadAt(offset, now));
    return now;
  }

  bool HasGrown() const { return file_ != nullptr && file_->Length() > entry_.new_length; }
  bool IsDerived() const { return !kinds_.derived_from(entry_.path).empty(); }

  // The first walk finds the conflicts.

  void CheckFile() {
    if (entry_.fate == FileFate::kDeleted) {
      if (IsThere(path_) && !created_.contains(entry_.path)) {
        AddFileConflict("The file that was deleted is there again.");
      } else if (!IsThere(KeptPath(entry_))) {
        AddFileConflict("The deleted file is no longer in the history.");
      }
    } else if (entry_.fate == FileFate::kChanged && file_ == nullptr) {
      AddFileConflict("The file is not there any more.");
    } else if (entry_.fate == FileFate::kCreated && entry_.new_length == 0 && file_ != nullptr &&
               file_->Length() > 0) {
      AddFileConflict("The file that the run has made has been filled since.");
    }
  }

  void AddFileConflict(std::string reason) {
    kept_.insert({entry_.path, 0});
    if (IsDerived()) return;
    result_.conflicts.push_back({.file = entry_.path, .reason = std::move(reason)});
  }

  void CheckPart(const RecordPart& part) {
    if (kept_.contains({entry_.path, 0})) {
      if (!IsDerived()) kept_groups_.insert(part.group);
      return;
    }
    if (file_ == nullptr) return;  // the file that the run has created no longer exists
    const Sides sides = SidesOf(part);
    if (sides.found == sides.old_bytes) return;  // the record is already as before the run
    std::vector<FieldElement> elements;
    std::string reason;
    if (!layout_) {
      if (sides.found != sides.written || HasGrown()) {
        reason = "Another program has changed the file since.";
      }
    } else if (sides.found != sides.written) {
      elements = ChangedSince(*layout_, sides);
    }
    if (layout_ && elements.empty()) reason = ReasonToKeep(part, sides);
    if (!elements.empty() || !reason.empty()) {
      AddConflict(part, sides, std::move(elements), std::move(reason));
    }
  }

  Sides SidesOf(const RecordPart& part) {
    const std::string now = Now(Offset(part.record), length_);
    const std::string whole = Filled(now, length_);
    const std::string before = WholeRecord(part, part.old_bytes, whole);
    Sides sides{.old_bytes = Filled(before, length_),
                .written = Filled(WholeRecord(part, part.new_bytes, whole), length_),
                .found = whole};
    sides.is_added = layout_ && !IsUsed(part.record, sides.old_bytes) &&
                     (before.empty() || IsUsed(part.record, sides.written));
    return sides;
  }

  bool IsUsed(std::int64_t record, const std::string& bytes) const {
    return !kinds_.title_of(entry_.path, record, bytes).empty();
  }

  // Returns why an added record cannot be removed: other records follow it or refer to it. Returns
  // an empty string if it can be removed.
  std::string ReasonToKeep(const RecordPart& part, const Sides& sides) {
    if (!sides.is_added) return {};
    if (part.old_bytes.empty() && HasGrown()) return "Other records follow it by now.";
    if (!IsUsed(part.record, sides.found)) return {};
    const RecordId unit{entry_.path, part.record};
    const auto referring = all_.referring.find(unit);
    if (referring != all_.referring.end()) return referring->second + " refers to it by now.";
    added_.insert(unit);
    return {};
  }

  void AddConflict(const RecordPart& part, const Sides& sides, std::vector<FieldElement> elements,
                   std::string reason) {
    if (IsDerived()) {
      kept_.insert({entry_.path, 0});
      return;
    }
    Keep(part);
    if (part.group != 0) kept_groups_.insert(part.group);
    UndoConflict conflict{.file = entry_.path,
                          .reason = std::move(reason),
                          .elements = std::move(elements),
                          .written = sides.written,
                          .found = sides.found};
    if (layout_) {
      conflict.record = part.record;
      for (const std::string* bytes : {&sides.found, &sides.written, &sides.old_bytes}) {
        if (conflict.title.empty()) {
          conflict.title = kinds_.title_of(entry_.path, part.record, *bytes);
        }
      }
    }
    if (conflict.title.empty()) conflict.title = TitleOf(part.group);
    result_.conflicts.push_back(std::move(conflict));
  }

  void Keep(const RecordPart& part) { kept_.insert({entry_.path, layout_ ? part.record : 0}); }

  // The second walk keeps all records of groups with a conflict, in all parts of the run.
  void KeepGroups() {
    kept_groups_.erase(0);
    std::size_t count = 0;
    do {
      count = kept_groups_.size();
      for (const auto& [group, title] : titles_) {
        if (kept_groups_.contains(group)) all_.kept_titles.insert(title);
        if (all_.kept_titles.contains(title)) kept_groups_.insert(group);
      }
    } while (kept_groups_.size() != count);
    if (kept_groups_.empty()) return;
    Walk(
        [&](const RecordPart& part) {
          if (kept_groups_.contains(part.group)) Keep(part);
        },
        [] {});
  }

  // Keeps derived files that cannot be put back because they or their sources are partly kept. All
  // files of such a source are kept, and the caller must rebuild them.
  void KeepDerived() {
    std::vector<HistoryFileEntry> derived;
    std::set<std::string> kept_files;
    for (const auto& [file, record] : kept_) kept_files.insert(file);
    history_.Read({.file = [&](const HistoryFileEntry& entry) {
      const std::string source = kinds_.derived_from(entry.path);
      if (source.empty()) return;
      derived.push_back(entry);
      if (kept_files.contains(source) || kept_files.contains(entry.path)) {
        result_.stale.insert(source);
      }
    }});
    for (const HistoryFileEntry& entry : derived) {
      if (result_.stale.contains(kinds_.derived_from(entry.path))) kept_.insert({entry.path, 0});
    }
  }

  // The third walk puts the bytes back.

  void BeginFile() {
    // The file can be truncated to its old length only if all records behind that length are
    // removed.
    const std::int64_t first_behind =
        entry_.old_length / static_cast<std::int64_t>(length_) + (layout_ ? 1 : 0);
    const auto behind = kept_.lower_bound({entry_.path, std::max<std::int64_t>(first_behind, 1)});
    keeps_behind_ = HasGrown() || (behind != kept_.end() && behind->file == entry_.path);
    const auto any = kept_.lower_bound({entry_.path, 0});
    keeps_any_ = any != kept_.end() && any->file == entry_.path;
    const bool is_deleted_whole = entry_.fate == FileFate::kCreated && !keeps_any_;
    is_put_back_ = file_ != nullptr && !kept_.contains({entry_.path, 0}) && !is_deleted_whole;
  }

  void PutBack(const RecordPart& part) {
    if (kept_.contains({entry_.path, 0})) return;
    const RecordId unit{entry_.path, layout_ ? part.record : 0};
    if (kept_.contains(unit)) return;
    if (added_.contains(unit)) all_.removed.insert(unit);
    if (!is_put_back_) return;
    result_.put_back.insert(entry_.path);
    const std::int64_t offset = Offset(part.record) + static_cast<std::int64_t>(part.at);
    const std::string now = Now(offset, part.size);
    std::string wanted = now;
    for (std::size_t at = 0; at < part.size; ++at) {
      const bool was_there = at < part.old_bytes.size();
      const bool was_written = at < part.new_bytes.size();
      if (was_there && was_written && part.old_bytes[at] == part.new_bytes[at]) continue;
      if (was_there) wanted.resize(std::max(wanted.size(), at + 1));
      if (at < wanted.size()) wanted[at] = was_there ? part.old_bytes[at] : '\0';
    }
    // FinishFile truncates the file, so the bytes behind the old length need no zeros.
    if (!keeps_behind_) {
      wanted.resize(std::min(wanted.size(), static_cast<std::size_t>(std::max<std::int64_t>(
                                                entry_.old_length - offset, 0))));
    }
    if (wanted.empty() || wanted == now.substr(0, wanted.size())) return;
    BeginGroup(part.group);
    gate_.Write(*file_, offset, wanted);
    NoteGroup(part.group);
  }

  // Returns the first title of a group.
  std::string TitleOf(ChangeGroup group) const {
    const auto title = titles_.lower_bound(group);
    return title == titles_.end() || title->first != group ? std::string() : title->second;
  }

  // Begins the group of the undo that corresponds to a group of the run.
  void BeginGroup(ChangeGroup group) {
    if (const auto held = groups_.find(group); group != 0 && held != groups_.end()) {
      held_.held()->groups().Resume(held->second);
    } else {
      transactions_.BeginGroup(TitleOf(group));
    }
  }
  void NoteGroup(ChangeGroup group) { groups_.emplace(group, held_.held()->groups().Current()); }

  void FinishFile() {
    if (!std::exchange(is_put_back_, false) || keeps_behind_) return;
    if (entry_.new_length > entry_.old_length && file_->Length() > entry_.old_length) {
      result_.put_back.insert(entry_.path);
      transactions_.BeginGroup("");
      gate_.Truncate(*file_, entry_.old_length);
    }
  }

  // Deletes the files that the run has created, and restores those that it has deleted. Must be
  // called after the walks.
  void PutBackFiles() {
    std::vector<HistoryFileEntry> deleted;
    std::vector<HistoryFileEntry> created;
    history_.Read({.file = [&](const HistoryFileEntry& entry) {
      const auto kept = kept_.lower_bound({entry.path, 0});
      if (kept != kept_.end() && kept->file == entry.path) return;
      if (entry.fate == FileFate::kDeleted) deleted.push_back(entry);
      if (entry.fate == FileFate::kCreated) created.push_back(entry);
    }});
    transactions_.BeginGroup("");
    for (const HistoryFileEntry& entry : created) {
      result_.put_back.insert(entry.path);
      const std::string path = folder_.paths().Path(entry.path);
      if (IsThere(path)) gate_.Delete(path);
    }
    for (const HistoryFileEntry& entry : deleted) Restore(entry);
  }

  void Restore(const HistoryFileEntry& entry) {
    result_.put_back.insert(entry.path);
    const auto kept = folder_.gate().platform().Open(KeptPath(entry), FileAccess::kReadOnly);
    const std::string path = folder_.paths().Path(entry.path);
    gate_.Create(path);
    const auto file = gate_.platform().Open(path, FileAccess::kReadWriteShared);
    std::string piece(kPiece, '\0');
    for (std::int64_t at = 0;; at += static_cast<std::int64_t>(kPiece)) {
      const std::size_t size = kept->ReadAt(at, piece);
      if (size > 0) gate_.Write(*file, at, std::string_view(piece).substr(0, size));
      if (size < kPiece) break;
    }
  }

  std::string KeptPath(const HistoryFileEntry& entry) const {
    return folder_.paths().history + entry.kept_as;
  }

  bool IsThere(const std::string& path) { return FileExists(gate_.platform(), path); }

  HeldPlatform& held_;
  HistoryGate gate_;
  HistoryFolder& folder_;
  Transactions& transactions_;
  const RecordKinds& kinds_;
  HistoryFile& history_;
  AllParts& all_;
  UndoResult& result_;
  std::multimap<ChangeGroup, std::string> titles_;
  std::set<std::string> created_;
  std::set<RecordId> added_;  // added records that are removed unless others refer to them
  std::set<RecordId> kept_;
  std::set<ChangeGroup> kept_groups_;
  std::map<ChangeGroup, ChangeGroup> groups_;  // the groups of the undo, by those of the run
  // These members describe the current file of Walk.
  HistoryFileEntry entry_;
  std::string path_;
  std::optional<LayoutInfo> layout_;
  std::size_t length_ = 1;  // bytes of a record
  std::unique_ptr<PlatformFile> file_;
  bool is_put_back_ = false;
  bool keeps_any_ = false;
  bool keeps_behind_ = false;  // true if bytes behind the old length are kept
};

// Finds records that refer to a removed one since the run. Must be called with the undo held, so
// that only references that remain after it count.
void AddReferring(const RecordKinds& kinds, AllParts& all) {
  std::map<std::string, std::set<std::int64_t>> removed;
  for (const RecordId& id : all.removed) removed[id.file].insert(id.record);
  for (const auto& [file, records] : removed) {
    kinds.for_each_reference(
        file, [&](std::string_view from_file, std::int64_t from_record, std::int64_t to_record) {
          if (!records.contains(to_record)) return;
          const RecordReference reference{{std::string(from_file), from_record}, {file, to_record}};
          if (all.old_references.contains(reference)) return;
          std::string name = kinds.referrer_name(reference.from);
          if (!name.empty()) all.referring.emplace(reference.to, std::move(name));
        });
  }
}

RunTitle TitleOfUndo(const HistoryRun& run) {
  const std::string& about = run.title.about;
  return {.command = "undo",
          .about = run.title.command + (about.empty() ? "" : " " + about),
          .undoes = run.run};
}

}  // namespace

UndoResult HoldUndo(HeldPlatform& held, HistoryFolder& folder, Transactions& transactions,
                    const RecordKinds& kinds, const HistoryRun& run) {
  AllParts all;
  while (true) {
    transactions.Begin(TitleOfUndo(run));
    UndoResult result;
    const std::size_t kept_titles = all.kept_titles.size();
    const std::size_t referred = all.referring.size();
    all.removed.clear();
    for (auto part = run.parts.rbegin(); part != run.parts.rend(); ++part) {
      const auto history = folder.Open(*part, FileAccess::kReadOnly);
      PartUndo(held, folder, transactions, kinds, *history, all, result).Run();
    }
    AddReferring(kinds, all);
    // A group that an earlier part keeps must be kept in the later parts, too. The loop then
    // repeats the undo.
    const bool more_stay = run.parts.size() > 1 && all.kept_titles.size() != kept_titles;
    if (!more_stay && all.referring.size() == referred) return result;
  }
}

}  // namespace golf
