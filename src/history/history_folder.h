#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/date_value.h"
#include "history/history_file.h"
#include "history/history_paths.h"

namespace golf {

// Describes the name of a history file: "000012-20261122-183005.run" for the first part of a run,
// and "000012-20261122-183005-2.run" for the second part.
struct HistoryName {
  std::int32_t run = 0;   // the running number of the run, from 1
  std::int32_t part = 1;  // the number of the part, from 1
  std::string text;
};

// Manages the history files in the history folder of an install. Raises errors of the platform.
class HistoryFolder {
 public:
  explicit HistoryFolder(Platform& platform);

  HistoryGate& gate() { return gate_; }
  const HistoryPaths& paths() const { return paths_; }

  bool Exists();
  // Creates the folder if it does not exist.
  void Make();

  // Returns the history files, by rising running numbers and parts. Returns none if the folder does
  // not exist.
  std::vector<HistoryName> List();
  // Returns the name for the first part of the next run, or for the next part of the last run if
  // `continues` is true.
  HistoryName Next(DateValue moment, bool continues);
  // Returns the name under which the history folder keeps a file that the run deletes. `number` is
  // unique among the deleted files of the run.
  static std::string KeptName(const HistoryName& run, std::size_t number);

  std::string Path(const HistoryName& name) const { return paths_.history + name.text; }
  // Opens a history file. Raises error 70 if another process has it open exclusively, or has it
  // open at all if `access` is kAlone.
  std::unique_ptr<HistoryFile> Open(const HistoryName& name, FileAccess access);

  // Deletes a history file and the deleted files that are kept for it.
  void Forget(const HistoryName& name);

 private:
  HistoryGate gate_;
  HistoryPaths paths_;
};

}  // namespace golf
