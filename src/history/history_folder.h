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

// The name of a history file: "000012-20261122-183005.run" for a run, and "-2" before the ending
// for its second part.
struct HistoryName {
  std::int32_t run = 0;   // the running number
  std::int32_t part = 1;  // a click may have several
  std::string text;
};

// The folder of an install in which its history lies.
class HistoryFolder {
 public:
  explicit HistoryFolder(Platform& platform);

  HistoryGate& gate() { return gate_; }
  const HistoryPaths& paths() const { return paths_; }

  bool Exists();
  // Makes the folder where it is not there.
  void Make();

  // The history files, by rising running numbers and parts. None where there is no folder.
  std::vector<HistoryName> List();
  // The name of the next run's file, or of the next part of the last run.
  HistoryName Next(DateValue moment, bool continues);
  // The name under which a deleted file is kept for a run.
  static std::string KeptName(const HistoryName& run, std::size_t number);

  std::string Path(const HistoryName& name) const { return paths_.history + name.text; }
  // Errors of the platform: 70 where another process has it open.
  std::unique_ptr<HistoryFile> Open(const HistoryName& name, FileAccess access);

  // Deletes a history file and the deleted files that it keeps.
  void Forget(const HistoryName& name);

 private:
  HistoryGate gate_;
  HistoryPaths paths_;
};

}  // namespace golf
