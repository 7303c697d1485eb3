#pragma once

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "core/field.h"
#include "history/record_kinds.h"
#include "history/run_list.h"
#include "history/transactions.h"

namespace golf {

// Identifies an element of a field. `nth` is the index of the element in a table, from 0. The last
// index of the table varies fastest. A field that is not a table has one element.
struct FieldElement {
  Field field;
  std::size_t nth = 0;

  std::string_view In(std::string_view record) const {
    return record.substr(field.OffsetOfNth(nth), field.width);
  }
};

// Describes a conflict: a record or file that the undo must leave unchanged with its whole group,
// because it was changed since the run or because others refer to it now.
struct UndoConflict {
  std::string file = {};    // relative to the install folder, with "/"
  std::int64_t record = 0;  // from 1; 0 for a whole file
  std::string title = {};   // the title of the record or of its group
  std::string reason = {};  // a sentence; empty if `elements` gives the whole reason
  std::vector<FieldElement> elements = {};  // elements that have changed since the run
  // The whole record as the run has written it, and as it is now. Both have the full length if
  // `elements` is not empty.
  std::string written = {};
  std::string found = {};
};

struct UndoResult {
  std::vector<UndoConflict> conflicts;
  std::set<std::string> put_back;  // files of which at least one byte is as before the run again
  // Files that are sources of derived files, such as course indexes, that must be rebuilt.
  std::set<std::string> stale;
};

// Begins a transaction and holds the changes that put a run back. Leaves conflicts unchanged with
// their whole groups. The caller must drop the transaction to refuse an undo with conflicts. Bytes
// that are already as before the run count as put back. The last part of the run is put back first.
// Raises DamagedHistory if a history file is damaged.
UndoResult HoldUndo(HeldPlatform& held, HistoryFolder& folder, Transactions& transactions,
                    const RecordKinds& kinds, const HistoryRun& run);

}  // namespace golf
