#include "history/record_changes.h"

#include <algorithm>

#include "history/held_content.h"
#include "history/record_parts.h"

namespace golf {
namespace {

// Converts the places of a run to changes of records, and calls `each` for them.
class ChangeReporter {
 public:
  ChangeReporter(const RecordKinds& kinds, const std::function<void(const RecordChange&)>& each)
      : kinds_(kinds), each_(each), parts_([this](const RecordPart& part) { Report(part); }) {}

  void Group(ChangeGroup group, std::string_view title) { groups_.emplace(group, title); }

  void File(const HistoryFileEntry& file) {
    Finish();
    change_ = {.file = file.path, .layout = kinds_.layout_of(FileNameOf(file.path))};
    const std::size_t length = change_.layout ? change_.layout->length : 0;
    parts_.Begin(length);
    CountRecords(file, static_cast<std::int64_t>(length));
    switch (file.fate) {
      case FileFate::kCreated:
        return Report(ChangeKind::kFileCreated);
      case FileFate::kDeleted:
        return Report(ChangeKind::kFileDeleted);
      case FileFate::kChanged:
        if (!change_.layout) Report(ChangeKind::kTextReplaced);
    }
  }

  void Place(std::int64_t offset, ChangeGroup group, std::string_view old_bytes,
             std::string_view new_bytes) {
    parts_.Take(offset, group, old_bytes, new_bytes);
  }

  void Finish() {
    parts_.Finish();
    ReportEmptyRecords(records_ + 1);
  }

 private:
  void CountRecords(const HistoryFileEntry& file, std::int64_t length) {
    next_added_ = length == 0 ? 1 : (file.old_length + length - 1) / length + 1;
    records_ = length == 0 ? 0 : file.new_length / length;
  }

  // Reports the added records before `end`. A file that grows gets them without a change of their
  // bytes if a later record is written.
  void ReportEmptyRecords(std::int64_t end) {
    for (; next_added_ < end; ++next_added_) {
      RecordChange change = change_;
      change.kind = ChangeKind::kAdded;
      change.record = next_added_;
      change.new_bytes.resize(change.layout->length);
      change.title = kinds_.title_of(change.file, change.record, change.new_bytes);
      each_(change);
    }
  }

  void Report(const RecordPart& part) {
    ReportEmptyRecords(part.record);
    next_added_ = std::max(next_added_, part.record + 1);
    RecordChange change = change_;
    const std::string unknown(change.layout->length, '\0');
    change.record = part.record;
    change.old_bytes = WholeRecord(part, part.old_bytes, unknown);
    change.new_bytes = WholeRecord(part, part.new_bytes, unknown);
    if (change.old_bytes == change.new_bytes) return;
    const auto text = [&](const auto& text_of, const std::string& bytes) {
      return bytes.empty() ? std::string() : text_of(change.file, part.record, bytes);
    };
    const std::string old_title = text(kinds_.title_of, change.old_bytes);
    const std::string new_title = text(kinds_.title_of, change.new_bytes);
    const bool was_there = !change.old_bytes.empty() && (!old_title.empty() || new_title.empty());
    const bool is_there = !change.new_bytes.empty() && (!new_title.empty() || old_title.empty());
    change.kind = !was_there  ? ChangeKind::kAdded
                  : !is_there ? ChangeKind::kRemoved
                              : ChangeKind::kChanged;
    change.group = groups_[part.group];
    change.title = !new_title.empty() ? new_title : old_title;
    for (const std::string* bytes : {&change.new_bytes, &change.old_bytes}) {
      if (change.title.empty()) change.title = text(kinds_.name_in, *bytes);
    }
    if (change.title.empty()) change.title = change.group;
    each_(change);
  }

  void Report(ChangeKind kind) {
    RecordChange change = change_;
    change.kind = kind;
    each_(change);
  }

  const RecordKinds& kinds_;
  const std::function<void(const RecordChange&)>& each_;
  RecordParts parts_;
  std::map<ChangeGroup, std::string> groups_;
  RecordChange change_;          // the values that all changes of the current file share
  std::int64_t next_added_ = 1;  // the first record behind the old end that is not reported yet
  std::int64_t records_ = 0;     // of the current file after the run
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
  ChangeReporter reporter(kinds, each);
  history.Read(
      {.group = [&](ChangeGroup group, std::string_view title) { reporter.Group(group, title); },
       .file = [&](const HistoryFileEntry& file) { reporter.File(file); },
       .place =
           [&](const HistoryPlace& place) {
             reporter.Place(place.offset, place.group, place.old_bytes, place.new_bytes);
           }});
  reporter.Finish();
}

void ForEachHeldChange(Transactions& transactions, const RecordKinds& kinds,
                       const std::function<void(const RecordChange&)>& each) {
  if (!transactions.IsOpen()) return;
  ChangeReporter reporter(kinds, each);
  HistoryPlace bytes;
  const auto place = [&](const HeldPlace& held, std::string_view code) {
    CodeReader(code).Place(held.old_size, held.new_size, PlaceParts::kWhole, bytes);
    reporter.Place(held.offset, held.group, bytes.old_bytes, bytes.new_bytes);
  };
  ReadHeld(
      *transactions.held().held(), transactions.history().paths(),
      {.group = [&](ChangeGroup group, std::string_view title) { reporter.Group(group, title); },
       .file = [&](const HistoryFileEntry& file) { reporter.File(file); },
       .place = place});
  reporter.Finish();
}

}  // namespace golf
