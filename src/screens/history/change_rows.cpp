#include "screens/history/change_rows.h"

#include <algorithm>
#include <map>
#include <utility>

#include "history/transactions.h"
#include "outlets/change_summary.h"
#include "outlets/changed_fields.h"

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

// Moves the rows of one title together, in the order of the titles' first rows.
void GroupByTitle(std::vector<ChangeRow>& rows) {
  std::map<std::string, std::size_t> order;
  std::vector<std::pair<std::size_t, std::size_t>> keys;  // of the title, and of the row
  for (const ChangeRow& row : rows) {
    keys.emplace_back(order.emplace(row.title, order.size()).first->second, keys.size());
  }
  std::sort(keys.begin(), keys.end());
  std::vector<ChangeRow> grouped;
  grouped.reserve(rows.size());
  for (const auto& [title, row] : keys) grouped.push_back(std::move(rows[row]));
  rows = std::move(grouped);
}

}  // namespace

ChangeTable TableOfChanges(SharedState& state, const RecordKinds& kinds,
                           const EachChange& for_each) {
  ChangeTable table;
  ChangeSummary summary(kinds);
  ChangeDescriber describer(state);
  for_each([&](const RecordChange& change) {
    summary.Add(change);
    if (!kinds.derived_from(change.file).empty()) return;
    const ChangeRowKind kind = KindOf(change.kind);
    const std::string title = change.title.empty() ? change.file : change.title;
    if (change.record == 0) {
      table.rows.push_back({kind, title, std::string(NameOf(change.kind)), "", ""});
    }
    for (ChangedField& field : describer.FieldsOf(change)) {
      table.rows.push_back(
          {kind, title, std::move(field.name), std::move(field.before), std::move(field.after)});
    }
  });
  table.counts = summary.Text();
  GroupByTitle(table.rows);
  return table;
}

ChangeTable TableOfHeldChanges(SharedState& state, const RecordKinds& kinds) {
  Transactions& transactions = *state.transactions;
  return TableOfChanges(state, kinds, [&](const auto& each) {
    if (!transactions.IsOpen()) return;
    ForEachChange(*transactions.held().held(), transactions.history().paths(), kinds, each);
  });
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
