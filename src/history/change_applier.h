#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "history/history_file.h"

namespace golf {

// Where history files and the sibling's files lie. Each ends in a separator.
struct HistoryFolders {
  std::string install;
  std::string history;
  char separator = '/';

  // The path of a file whose name in the history has "/" between folders.
  std::string Path(std::string_view name) const;
  std::string Name(std::string_view path) const;
};

enum class Direction { kForward, kBack };

// A place whose bytes are neither those of before the run nor those of after it. Another program
// has changed it. An offset below 0 means the file as a whole: it is gone, there again, or grown.
struct PlaceConflict {
  std::string path;
  std::int64_t offset = -1;
  bool operator<(const PlaceConflict& other) const {
    return std::tie(path, offset) < std::tie(other.path, other.offset);
  }
};

// Brings the files of a run to their bytes of after the run, or of before it.
class ChangeApplier {
 public:
  using OpenFile = std::function<std::shared_ptr<PlatformFile>(const std::string& path)>;

  ChangeApplier(HistoryGate& gate, HistoryFolders folders);
  // The files are taken from `open` where it has them open; a null pointer means that it has not.
  ChangeApplier(HistoryGate& gate, HistoryFolders folders, OpenFile open);

  // Error 70 where a file is not as it was before the run, in its length or at a place of the run.
  void CheckUntouched(HistoryFile& history);

  // The places that are neither old, nor new, nor a mixture of both as a crash leaves it. Behind
  // the old end of a file, missing bytes and zeros count as old; behind the new end, as new.
  std::set<PlaceConflict> Conflicts(HistoryFile& history);
  // Whether all of it is as it was before the run.
  bool IsAllOld(HistoryFile& history);

  // Writes the places, creates and deletes files, sets lengths, and syncs all that was touched.
  // What `skipped` names stays as it is. Compares each place once more where `untouched` is set:
  // error 70 where another program has changed it since.
  void Apply(HistoryFile& history, Direction direction, bool untouched,
             const std::set<PlaceConflict>& skipped = {});

 private:
  class Target;
  enum class Expected { kOld, kMixture };

  std::shared_ptr<PlatformFile> OpenExisting(const std::string& path);
  bool Exists(const std::string& path);
  void Check(HistoryFile& history, Expected expected,
             const std::function<void(PlaceConflict)>& differs);
  void CheckFate(const HistoryFileEntry& file, Expected expected,
                 const std::function<void(PlaceConflict)>& differs);

  HistoryGate& gate_;
  HistoryFolders folders_;
  OpenFile open_;
};

}  // namespace golf
