#pragma once

#include <string>
#include <string_view>

namespace golf {

// The folders of an install that the history uses. Each ends in a separator.
struct HistoryPaths {
  std::string install;
  std::string history;
  char separator = '/';

  // Converts the name of a file in the history, which has "/" between folders, to its path.
  std::string Path(std::string_view name) const;
  // Converts a path to a name in the history.
  std::string Name(std::string_view path) const;
  // The folder of a path, with its separator.
  std::string FolderOf(std::string_view path) const;
};

}  // namespace golf
