#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "history/history_file.h"
#include "history/history_folder.h"
#include "history/record_kinds.h"
#include "history/transactions.h"

namespace golf {

enum class ChangeKind { kAdded, kChanged, kRemoved, kFileCreated, kFileDeleted, kTextReplaced };

// Returns "added", "changed", "removed", "file-created", "file-deleted" or "text-replaced".
std::string_view NameOf(ChangeKind kind);

// Describes a change of one record or of a whole file, as it is shown to people.
struct RecordChange {
  ChangeKind kind = ChangeKind::kChanged;
  std::string file = {};    // relative to the install folder, with "/"
  std::int64_t record = 0;  // from 1; 0 for a whole file
  std::string title = {};   // the name of the record or of its group
  std::string group = {};   // the title of its group, which is empty for the run as a whole
  std::optional<LayoutInfo> layout = {};
  // The whole record before and after the run. Empty if it did not exist.
  std::string old_bytes = {};
  std::string new_bytes = {};
};

// Calls the given function once for each change. It can be called several times.
using EachChange = std::function<void(const std::function<void(const RecordChange&)>&)>;

// Calls `each` for the changes of a run, in the order of its history file: for each file, then for
// each of its records. Raises DamagedHistory if the history file is damaged.
void ForEachChange(HistoryFile& history, const RecordKinds& kinds,
                   const std::function<void(const RecordChange&)>& each);

// Does the same for the changes that are held. There are none if no transaction is open. Raises
// HoldFailed if they cannot be read.
void ForEachHeldChange(Transactions& transactions, const RecordKinds& kinds,
                       const std::function<void(const RecordChange&)>& each);

// Returns the name of a file without its folder.
std::string_view FileNameOf(std::string_view file);

}  // namespace golf
