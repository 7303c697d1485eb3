#pragma once

#include <string>
#include <string_view>

namespace golf {

// Contains the folders of an install that the history uses. Each ends in a separator.
struct HistoryPaths {
  std::string install;
  std::string history;
  char separator = '/';

  // Converts the name of a file in the history to its path. A name is relative to the install
  // folder and has "/" between folders.
  std::string Path(std::string_view name) const;
  // Converts a path to a name in the history.
  std::string Name(std::string_view path) const;
  // Returns the folder of a path, with the separator at its end.
  std::string FolderOf(std::string_view path) const;
};

}  // namespace golf
