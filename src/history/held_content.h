#pragma once

#include <functional>
#include <string_view>

#include "history/held_platform.h"
#include "history/history_file.h"
#include "history/history_folder.h"

namespace golf {

// Contains the callbacks of ReadHeld.
struct HeldReader {
  std::function<void(ChangeGroup, std::string_view title)> group;
  std::function<void(const HistoryFileEntry&)> file;
  std::function<void(const HeldPlace&, std::string_view code)> place;
  // Returns the length of the records of a file in bytes, or 0 if it has none. Records that a run
  // cuts off become places of their own.
  std::function<std::size_t(std::string_view file)> record_length = nullptr;
};

// Calls the reader for the held changes, in the order of a history file: the groups, then each file
// with its places. Leaves out files that have no net change. A joined group has several titles.
// Raises HoldFailed if held changes cannot be read.
void ReadHeld(HeldChanges& changes, const HistoryPaths& paths, const HeldReader& reader);

}  // namespace golf
