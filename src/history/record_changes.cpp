#include "history/record_changes.h"

#include <algorithm>

namespace golf {
namespace {

// Part of a place that lies in one record; padded to the whole record where the place is shorter.
std::string Part(std::string_view bytes, std::size_t at, std::size_t size) {
  std::string part(bytes.substr(std::min(at, bytes.size()), size));
  const bool is_zero = part.find_first_not_of('\0') == std::string::npos;
  if (part.empty() || (bytes.size() < at + size && is_zero)) return {};
  part.resize(size);
  return part;
}

// Breaks places into records.
class ChangeTeller {
 public:
  ChangeTeller(const RecordKinds& kinds, const std::function<void(const RecordChange&)>& each)
      : kinds_(kinds), each_(each) {}

  void Group(ChangeGroup group, std::string_view title) { groups_.emplace(group, title); }

  void File(const HistoryFileEntry& file) {
    change_ = {.file = file.path, .layout = kinds_.layout_of(FileNameOf(file.path))};
    switch (file.fate) {
      case FileFate::kCreated:
        return Tell(ChangeKind::kFileCreated);
      case FileFate::kDeleted:
        return Tell(ChangeKind::kFileDeleted);
      case FileFate::kChanged:
        if (!change_.layout) Tell(ChangeKind::kTextReplaced);
    }
  }

  void Place(const HistoryPlace& place) {
    if (!change_.layout) return;
    const auto length = static_cast<std::int64_t>(change_.layout->length);
    const std::int64_t first = place.offset / length;
    const std::int64_t last = (place.End() - 1) / length;
    for (std::int64_t record = first; record <= last; ++record) {
      TellRecord(place, record + 1, record * length - place.offset, change_.layout->length);
    }
  }

 private:
  // `at` is where the record begins in the place; below 0 the place begins inside the record.
  void TellRecord(const HistoryPlace& place, std::int64_t record, std::int64_t at,
                  std::size_t length) {
    const auto lead = static_cast<std::size_t>(std::max<std::int64_t>(-at, 0));
    const auto start = static_cast<std::size_t>(std::max<std::int64_t>(at, 0));
    RecordChange change = change_;
    change.record = record;
    change.old_bytes = Part(place.old_bytes, start, length - lead);
    change.new_bytes = Part(place.new_bytes, start, length - lead);
    for (std::string* bytes : {&change.old_bytes, &change.new_bytes}) {
      if (!bytes->empty()) bytes->insert(0, lead, '\0');
    }
    if (change.old_bytes == change.new_bytes) return;
    const auto title = [&](const std::string& bytes) {
      return bytes.empty() ? std::string() : kinds_.title_of(change.file, bytes);
    };
    const std::string old_title = title(change.old_bytes);
    const std::string new_title = title(change.new_bytes);
    change.kind = ChangeKind::kChanged;
    if (old_title.empty() && !new_title.empty()) change.kind = ChangeKind::kAdded;
    if (!old_title.empty() && new_title.empty()) change.kind = ChangeKind::kRemoved;
    if (change.old_bytes.empty()) change.kind = ChangeKind::kAdded;
    change.title = !new_title.empty() ? new_title : old_title;
    if (change.title.empty()) change.title = groups_[place.group];
    each_(change);
  }

  void Tell(ChangeKind kind) {
    RecordChange change = change_;
    change.kind = kind;
    each_(change);
  }

  const RecordKinds& kinds_;
  const std::function<void(const RecordChange&)>& each_;
  std::map<ChangeGroup, std::string> groups_;
  RecordChange change_;  // of the file in hand
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
       .place = [&](const HistoryPlace& place) { teller.Place(place); }});
}

}  // namespace golf
