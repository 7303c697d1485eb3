#pragma once

#include <functional>
#include <memory>
#include <string>

#include "history/history_format.h"
#include "history/history_gate.h"
#include "history/history_paths.h"

namespace golf {

// Opens the files that a run changes.
class RunFiles {
 public:
  // Returns a file that is already open, or null.
  using OpenFile = std::function<std::shared_ptr<PlatformFile>(const std::string& path)>;

  RunFiles(HistoryGate& gate, HistoryPaths paths, OpenFile open = nullptr)
      : gate_(gate), paths_(std::move(paths)), open_(std::move(open)) {}

  HistoryGate& gate() { return gate_; }
  const HistoryPaths& paths() const { return paths_; }

  // Opens a file for reading and writing. Returns null if it does not exist.
  std::shared_ptr<PlatformFile> Open(const std::string& path);
  bool Exists(const std::string& path);

  // Returns the path at which the history keeps a file that the run deletes.
  std::string KeptPath(const HistoryFileEntry& entry) const {
    return paths_.history + entry.kept_as;
  }
  // True if the deletion of the file was applied.
  bool IsKept(const HistoryFileEntry& entry) { return Exists(KeptPath(entry)); }

 private:
  HistoryGate& gate_;
  HistoryPaths paths_;
  OpenFile open_;
};

}  // namespace golf
