#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "history/held_file_changes.h"
#include "history/history_format.h"
#include "history/history_gate.h"

namespace golf {

// Writes the content of a new history file. The file is open alone while this lives.
class HistoryWriter {
 public:
  // Makes the file. Errors of the platform.
  HistoryWriter(HistoryGate& gate, const std::string& path);

  void Run(const RunTitle& title);
  void Group(ChangeGroup group, std::string_view title);
  void File(const HistoryFileEntry& file);
  // A place of the file that was written last, by rising offsets, with its code.
  void Place(const HeldPlace& place, std::string_view code);
  void Report(std::string_view report);

  // Writes what is left, and the title. The content is on the disk afterwards.
  void Finish();

  // Gives the open file away.
  std::unique_ptr<PlatformFile> Take() { return std::move(file_); }

 private:
  void Portion(HistoryPortion kind, std::string_view bytes);
  void FlushPlaces();
  void FlushGroups();
  void Flush();

  HistoryGate& gate_;
  std::unique_ptr<PlatformFile> file_;
  std::int64_t end_ = kContentStart;
  std::string pending_;  // portions that follow
  std::string places_;
  std::string groups_;
  std::int64_t next_offset_ = 0;
  std::uint64_t changes_ = 0;
};

// A history file that is there. Reads any bytes without harm: DamagedHistory where they are none.
class HistoryFile {
 public:
  HistoryFile(std::string path, std::unique_ptr<PlatformFile> file);

  const std::string& path() const { return path_; }

  bool Has(HistoryMark mark);
  // True where the place of the mark is neither empty nor a whole mark.
  bool IsTorn(HistoryMark mark);
  // Whether the file ends inside the marks. The writer makes it whole up to there in one call.
  bool IsCutInMarks();
  // Writes a mark, or takes it away; it is on the disk afterwards.
  void Put(HistoryGate& gate, HistoryMark mark);
  void Clear(HistoryGate& gate, HistoryMark mark);
  // What was read so far is on the disk afterwards. A process that was killed may have written a
  // mark that was not synced.
  void Sync(HistoryGate& gate) { gate.Sync(*file_); }

  // What is told of the content, in its order. A member that is left out is passed over.
  struct Reader {
    std::function<void(const RunTitle&)> run = nullptr;
    std::function<void(ChangeGroup, std::string_view title)> group = nullptr;
    std::function<void(const HistoryFileEntry&)> file = nullptr;
    std::function<void(const HistoryPlace&)> place = nullptr;
    std::function<void(std::string_view)> report = nullptr;
    PlaceParts parts = PlaceParts::kWhole;
  };
  // Reads the whole content from the first portion to the last.
  void Read(const Reader& reader);
  // Reads the title alone.
  RunTitle Title();
  // The number of places and of deleted files. It is read from the end alone.
  std::int64_t CountChanges();
  // Whether everything can be read.
  bool IsWhole();

 private:
  struct Portion {
    HistoryPortion kind = HistoryPortion::kEnd;
    std::string bytes;
  };
  // Reads the portion at `at` and moves on to the next one.
  Portion ReadPortion(std::int64_t& at);
  RunTitle Title(std::int64_t& at);
  RunTitle TitleOf(const Portion& portion) const;
  HistoryFileEntry EntryOf(const Portion& portion) const;
  void ReadGroups(std::string_view bytes, const Reader& reader) const;
  void ReadPlaces(std::string_view bytes, std::int64_t& next_offset, const Reader& reader);
  void Check(bool right) const {
    if (!right) throw DamagedHistory(path_);
  }

  std::string path_;
  std::unique_ptr<PlatformFile> file_;
};

}  // namespace golf
