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

// An element of a field: of a table the n-th one, the last index varying fastest.
struct FieldElement {
  Field field;
  std::size_t nth = 0;

  std::string_view In(std::string_view record) const {
    return record.substr(field.OffsetOfNth(nth), field.width);
  }
};

// A record that cannot be put back, since somebody has changed since what the run has written in
// it, or refers to it by now; or such a file. It stays as it is with its whole group.
struct UndoConflict {
  std::string file = {};                    // below the install folder, with "/"
  std::int64_t record = 0;                  // from 1; 0 for a whole file
  std::string title = {};                   // the record's, or that of its group
  std::string reason = {};                  // a sentence; empty where `elements` say it all
  std::vector<FieldElement> elements = {};  // what the run has written and what differs now
  // The whole record as the run has left it, and as it is now. Both have its full length where
  // there are elements.
  std::string written = {};
  std::string found = {};
};

struct UndoResult {
  std::vector<UndoConflict> conflicts;
  std::set<std::string> put_back;  // files of which something is as before the run again
  // Files from which others must be worked out anew.
  std::set<std::string> stale;
};

// Begins a transaction and holds in it what puts a run back, through `held`. What is in conflict
// stays as it is with its whole group; the caller drops the transaction where conflicts are to
// refuse the undo. What is as before the run already counts as put back. A run of several parts is
// put back from its last part on.
UndoResult HoldUndo(HeldPlatform& held, HistoryFolder& folder, Transactions& transactions,
                    const RecordKinds& kinds, const HistoryRun& run);

}  // namespace golf
