#include "history/record_changes.h"

#include "history/held_content.h"
#include "history/record_parts.h"

namespace golf {
namespace {

// Converts the places of a run to changes of records, and calls `each` for them.
class ChangeTeller {
 public:
  ChangeTeller(const RecordKinds& kinds, const std::function<void(const RecordChange&)>& each)
      : kinds_(kinds), each_(each), parts_([this](const RecordPart& part) { Tell(part); }) {}

  void Group(ChangeGroup group, std::string_view title) { groups_.emplace(group, title); }

  void File(const HistoryFileEntry& file) {
    parts_.Finish();
    change_ = {.file = file.path, .layout = kinds_.layout_of(FileNameOf(file.path))};
    parts_.Begin(change_.layout ? change_.layout->length : 0);
    switch (file.fate) {
      case FileFate::kCreated:
        return Tell(ChangeKind::kFileCreated);
      case FileFate::kDeleted:
        return Tell(ChangeKind::kFileDeleted);
      case FileFate::kChanged:
        if (!change_.layout) Tell(ChangeKind::kTextReplaced);
    }
  }

  void Place(std::int64_t offset, ChangeGroup group, std::string_view old_bytes,
             std::string_view new_bytes) {
    parts_.Take(offset, group, old_bytes, new_bytes);
  }

  void Finish() { parts_.Finish(); }

 private:
  void Tell(const RecordPart& part) {
    RecordChange change = change_;
    const std::string unknown(change.layout->length, '\0');
    change.record = part.record;
    change.old_bytes = WholeRecord(part, part.old_bytes, unknown);
    change.new_bytes = WholeRecord(part, part.new_bytes, unknown);
    if (change.old_bytes == change.new_bytes) return;
    const auto title = [&](const std::string& bytes) {
      return bytes.empty() ? std::string() : kinds_.title_of(change.file, part.record, bytes);
    };
    const std::string old_title = title(change.old_bytes);
    const std::string new_title = title(change.new_bytes);
    const bool was_there = !change.old_bytes.empty() && (!old_title.empty() || new_title.empty());
    const bool is_there = !change.new_bytes.empty() && (!new_title.empty() || old_title.empty());
    change.kind = !was_there  ? ChangeKind::kAdded
                  : !is_there ? ChangeKind::kRemoved
                              : ChangeKind::kChanged;
    change.title = !new_title.empty() ? new_title : old_title;
    if (change.title.empty()) change.title = groups_[part.group];
    each_(change);
  }

  void Tell(ChangeKind kind) {
    RecordChange change = change_;
    change.kind = kind;
    each_(change);
  }

  const RecordKinds& kinds_;
  const std::function<void(const RecordChange&)>& each_;
  RecordParts parts_;
  std::map<ChangeGroup, std::string> groups_;
  RecordChange change_;  // the values that all changes of the current file share
};

}  // namespace

std::string_view NameOf(ChangeKind kind) {
  constexpr std::string_view kNames[] = {"added",        "changed",      "removed",
                                         "file-created", "file-deleted", "text-replaced"};
  return kNames[static_cast<std::size_t>(kind)];
}

std::string_view FileNameOf(std::string_view file) { return file.substr(file.rfind('/') + 1); }

void ForEachChange(HistoryFile& history, const RecordKinds& kinds,
                   const std::function<void(const RecordChange&)>& each) {
  ChangeTeller teller(kinds, each);
  history.Read(
      {.group = [&](ChangeGroup group, std::string_view title) { teller.Group(group, title); },
       .file = [&](const HistoryFileEntry& file) { teller.File(file); },
       .place =
           [&](const HistoryPlace& place) {
             teller.Place(place.offset, place.group, place.old_bytes, place.new_bytes);
           }});
  teller.Finish();
}

void ForEachChange(HeldChanges& changes, const HistoryPaths& paths, const RecordKinds& kinds,
                   const std::function<void(const RecordChange&)>& each) {
  ChangeTeller teller(kinds, each);
  HistoryPlace bytes;
  const auto place = [&](const HeldPlace& held, std::string_view code) {
    CodeReader(code).Place(held.old_size, held.new_size, PlaceParts::kWhole, bytes);
    teller.Place(held.offset, held.group, bytes.old_bytes, bytes.new_bytes);
  };
  ReadHeld(changes, paths,
           {.group = [&](ChangeGroup group, std::string_view title) { teller.Group(group, title); },
            .file = [&](const HistoryFileEntry& file) { teller.File(file); },
            .place = place});
  teller.Finish();
}

}  // namespace golf
