#include "screens/history/change_rows.h"

#include <algorithm>
#include <cstddef>
#include <unordered_map>
#include <utility>

#include "outlets/change_summary.h"
#include "outlets/changed_fields.h"
#include "stores/course/course_layout.h"

namespace golf {
namespace {

ChangeRowKind KindOf(ChangeKind kind) {
  switch (kind) {
    case ChangeKind::kAdded:
    case ChangeKind::kFileCreated:
      return ChangeRowKind::kAdded;
    case ChangeKind::kRemoved:
    case ChangeKind::kFileDeleted:
      return ChangeRowKind::kRemoved;
    default:
      return ChangeRowKind::kChanged;
  }
}

// Collects rows, and returns those of one golfer, course or roster together in the order of their
// first rows.
class GroupedRows {
 public:
  // Begins a change, to which the next rows belong. A change without a group is a group of its own.
  void Begin(const std::string& group) {
    ++changes_;
    current_ = group.empty() ? changes_ : numbers_.emplace(group, changes_).first->second;
  }
  void Add(ChangeRow row) {
    keys_.emplace_back(current_, rows_.size());
    rows_.push_back(std::move(row));
  }

  std::vector<ChangeRow> Take() {
    std::sort(keys_.begin(), keys_.end());
    std::vector<ChangeRow> grouped;
    grouped.reserve(rows_.size());
    for (const auto& [group, row] : keys_) grouped.push_back(std::move(rows_[row]));
    return grouped;
  }

 private:
  std::size_t changes_ = 0;
  std::size_t current_ = 0;
  std::unordered_map<std::string, std::size_t> numbers_;   // of the groups, in their order
  std::vector<std::pair<std::size_t, std::size_t>> keys_;  // of each row: its group, its index
  std::vector<ChangeRow> rows_;
};

}  // namespace

ChangeTable TableOfChanges(SharedState& state, const RecordKinds& kinds,
                           const EachChange& for_each) {
  ChangeTable table;
  GroupedRows rows;
  ChangeSummary summary(kinds);
  ChangeDescriber describer(state);
  bool only_courses = true;
  for_each([&](const RecordChange& change) {
    summary.Add(change);
    if (!kinds.derived_from(change.file).empty()) return;
    only_courses = only_courses && change.layout && change.layout->name == CourseLayout::kName;
    rows.Begin(change.group);
    const ChangeRowKind kind = KindOf(change.kind);
    const std::string title = change.title.empty() ? change.file : change.title;
    if (change.record == 0) rows.Add({kind, title, std::string(NameOf(change.kind)), "", ""});
    for (ChangedField& field : describer.FieldsOf(change)) {
      rows.Add(
          {kind, title, std::move(field.name), std::move(field.before), std::move(field.after)});
    }
  });
  table.counts = summary.Text();
  table.rows = rows.Take();
  if (only_courses && !table.rows.empty()) table.title_heading = "Course";
  return table;
}

ChangeTable TableOfHeldChanges(SharedState& state, const RecordKinds& kinds) {
  return TableOfChanges(
      state, kinds, [&](const auto& each) { ForEachHeldChange(*state.transactions, kinds, each); });
}

ChangeTable TableOfConflicts(SharedState& state, const std::vector<UndoConflict>& conflicts) {
  ChangeTable table;
  const std::size_t count = conflicts.size();
  table.counts =
      std::to_string(count) + (count == 1 ? " record has" : " records have") + " changed since";
  for (const UndoConflict& conflict : conflicts) {
    const std::string title = conflict.title.empty() ? conflict.file : conflict.title;
    if (!conflict.reason.empty()) {
      table.rows.push_back({ChangeRowKind::kConflict, title, conflict.reason, "", ""});
    }
    for (ChangedField& field :
         DescribeElements(conflict.elements, conflict.written, conflict.found, state.DateFormat)) {
      table.rows.push_back({ChangeRowKind::kConflict, title, std::move(field.name),
                            std::move(field.before), std::move(field.after)});
    }
  }
  return table;
}

void AddLeftOut(ChangeTable& table, const LeftOut& left_out) {
  left_out.ForEach([&table](std::string_view title, std::string_view reason) {
    table.rows.push_back(
        {ChangeRowKind::kLeftOut, std::string(title), "Left out", "", std::string(reason)});
  });
  if (left_out.Count() == 0) return;
  table.counts += "; " + std::to_string(left_out.Count()) + " left out";
}

}  // namespace golf
