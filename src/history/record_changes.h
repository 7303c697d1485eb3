#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "history/held_platform.h"
#include "history/history_file.h"
#include "history/history_folder.h"
#include "history/record_kinds.h"

namespace golf {

enum class ChangeKind { kAdded, kChanged, kRemoved, kFileCreated, kFileDeleted, kTextReplaced };

// "added", "changed", "removed", "file-created", "file-deleted", "text-replaced".
std::string_view NameOf(ChangeKind kind);

// A change as it is shown to people: of one record, or of a whole file.
struct RecordChange {
  ChangeKind kind = ChangeKind::kChanged;
  std::string file = {};    // below the install folder, with "/"
  std::int64_t record = 0;  // from 1; 0 for a whole file
  std::string title = {};   // the record's, or that of its group
  std::optional<LayoutInfo> layout = {};
  // The whole record before and after; empty where there was none.
  std::string old_bytes = {};
  std::string new_bytes = {};
};

// Tells of a run's changes in the order of its history file: each file, and in it each record.
void ForEachChange(HistoryFile& history, const RecordKinds& kinds,
                   const std::function<void(const RecordChange&)>& each);

// The same of changes that are held, as their history file will tell of them.
void ForEachChange(HeldChanges& changes, const HistoryPaths& paths, const RecordKinds& kinds,
                   const std::function<void(const RecordChange&)>& each);

// The name of a file without its folder.
std::string_view FileNameOf(std::string_view file);

}  // namespace golf
