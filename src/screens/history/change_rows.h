#pragma once

#include <string>
#include <vector>

#include "core/left_out.h"
#include "core/shared_state.h"
#include "history/record_changes.h"
#include "history/undo.h"

namespace golf {

enum class ChangeRowKind { kAdded, kChanged, kRemoved, kLeftOut, kConflict };

// Contains one line of a list of changes: a field of a record with two values, or an entry that was
// left out with the reason as the second value.
struct ChangeRow {
  ChangeRowKind kind = ChangeRowKind::kChanged;
  std::string title;  // the golfer, course or roster
  std::string field;
  std::string before;
  std::string after;
};

// Contains the lines of a list of changes, and one line with the counts.
struct ChangeTable {
  std::string counts;
  std::vector<ChangeRow> rows;           // those of one golfer, course or roster follow each other
  std::string title_heading = "Golfer";  // of the column with the titles
};

// Leaves out files such as course indexes, which are derived from other files.
ChangeTable TableOfChanges(SharedState& state, const RecordKinds& kinds,
                           const EachChange& for_each);

// Returns the changes that are held, as a table.
ChangeTable TableOfHeldChanges(SharedState& state, const RecordKinds& kinds);

// Returns what an undo cannot put back, with the values that the run wrote and that exist now.
ChangeTable TableOfConflicts(SharedState& state, const std::vector<UndoConflict>& conflicts);

void AddLeftOut(ChangeTable& table, const LeftOut& left_out);

}  // namespace golf
