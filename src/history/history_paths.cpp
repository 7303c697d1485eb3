#include "history/history_paths.h"

#include <algorithm>

namespace golf {

std::string HistoryPaths::Path(std::string_view name) const {
  std::string path(name);
  std::replace(path.begin(), path.end(), '/', separator);
  return install + path;
}

std::string HistoryPaths::Name(std::string_view path) const {
  std::string name(path.starts_with(install) ? path.substr(install.size()) : path);
  std::replace(name.begin(), name.end(), separator, '/');
  return name;
}

std::string HistoryPaths::FolderOf(std::string_view path) const {
  return std::string(path.substr(0, path.rfind(separator) + 1));
}

}  // namespace golf
