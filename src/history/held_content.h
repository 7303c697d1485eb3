#pragma once

#include <functional>
#include <string_view>

#include "history/held_platform.h"
#include "history/history_file.h"
#include "history/history_folder.h"

namespace golf {

// What is told of held changes, net and in the order of a history file. Groups that were joined are
// one.
struct HeldReader {
  std::function<void(ChangeGroup, std::string_view title)> group;
  std::function<void(const HistoryFileEntry&)> file;
  std::function<void(const HeldPlace&, std::string_view code)> place;
};

void ReadHeld(HeldChanges& changes, const HistoryPaths& paths, const HeldReader& reader);

}  // namespace golf
