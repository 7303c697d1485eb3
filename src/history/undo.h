#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "history/record_kinds.h"
#include "history/run_list.h"
#include "history/transactions.h"

namespace golf {

// A place that a run has changed and that another program has changed since, or that others refer
// to by now. It keeps its whole group as it is.
struct UndoConflict {
  std::string file = {};    // below the install folder, with "/"
  std::int64_t record = 0;  // from 1; 0 for a whole file
  std::string title = {};   // the record's, or that of its group
  std::optional<LayoutInfo> layout = {};
  std::string reason = {};     // a sentence; empty where the bytes say it all
  std::string old_bytes = {};  // the record before the run; empty where there was none
  std::string written = {};    // the record as the run has left it
  std::string found = {};      // as it is now
};

struct UndoResult {
  std::vector<UndoConflict> conflicts;
  // Libraries whose indexes must be made anew, by the paths of the index files.
  std::set<std::string> stale_indexes;
  std::int64_t undone = 0;  // places and files that are put back
};

// Puts back what a run has changed, in the transaction that is open: through `held`, which holds
// it. What is in conflict stays as it is with its whole group; the caller drops the transaction
// where conflicts are to refuse the undo. Bytes that are old already count as put back.
UndoResult HoldUndo(HeldPlatform& held, HistoryFolder& folder, Transactions& transactions,
                    const RecordKinds& kinds, const HistoryRun& run);

}  // namespace golf
