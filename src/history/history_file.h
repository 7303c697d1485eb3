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
#include "history/record_reference.h"

namespace golf {

// Writes a new history file without marks. Keeps the file open exclusively until it is taken or
// this object is destroyed. Raises errors of the platform.
class HistoryWriter {
 public:
  // Creates the file. Raises error 70 if another process writes a history file of this name.
  HistoryWriter(HistoryGate& gate, const std::string& path);

  // Writes the title of the run. Must be called first.
  void Run(const RunTitle& title);
  void Group(ChangeGroup group, std::string_view title);
  void File(const HistoryFileEntry& file);
  // Writes a place of the last file, with its code. Places must come by rising offsets.
  void Place(const HeldPlace& place, std::string_view code);
  // Writes a reference that is older than the run to a record that the run has added.
  void Reference(const RecordReference& reference);
  void Report(std::string_view report);

  // Writes the rest of the content and the first block, and syncs the file.
  void Finish();

  // Returns the open file.
  std::unique_ptr<PlatformFile> Take() { return std::move(file_); }

 private:
  void Portion(HistoryPortion kind, std::string_view bytes);
  void FlushAll();
  void FlushGroups();
  void FlushPlaces();
  void FlushReferences();
  void FlushBytes(HistoryPortion kind, std::string& bytes);
  void Flush();

  HistoryGate& gate_;
  std::unique_ptr<PlatformFile> file_;
  std::int64_t end_ = kContentStart;
  std::string pending_;  // portions to be written at `end_`
  std::string places_;
  std::string groups_;
  std::string references_;
  std::int64_t next_offset_ = 0;
  std::uint64_t changes_ = 0;
};

// Reads an existing history file and writes its marks. Functions that read the content raise
// DamagedHistory if the bytes are not those of a history file. Any bytes can be read safely.
class HistoryFile {
 public:
  HistoryFile(std::string path, std::unique_ptr<PlatformFile> file);

  const std::string& path() const { return path_; }

  // True if the mark is complete.
  bool Has(HistoryMark mark);
  // True if the block of the mark is neither zeros nor a complete mark.
  bool IsTorn(HistoryMark mark);
  // True if the file is not empty, but ends before the content. HistoryWriter makes no such file,
  // because its first write begins at kContentStart.
  bool IsCutInMarks();
  // Put writes a mark, and Clear overwrites it with zeros. Both sync the file.
  void Put(HistoryGate& gate, HistoryMark mark);
  void Clear(HistoryGate& gate, HistoryMark mark);
  // Syncs the file. A mark that was read may not be on the disk yet if the process that wrote it
  // was killed before the sync.
  void Sync(HistoryGate& gate) { gate.Sync(*file_); }

  // Contains the callbacks of Read, which are called in the order of the content. A member may be
  // null. `parts` says which bytes of a place are read.
  struct Reader {
    std::function<void(const RunTitle&)> run = nullptr;
    std::function<void(ChangeGroup, std::string_view title)> group = nullptr;
    std::function<void(const HistoryFileEntry&)> file = nullptr;
    std::function<void(const HistoryPlace&)> place = nullptr;
    std::function<void(RecordReference)> reference = nullptr;
    std::function<void(std::string_view)> report = nullptr;
    PlaceParts parts = PlaceParts::kWhole;
  };
  // Reads the whole content.
  void Read(const Reader& reader);
  // Reads only the title of the run.
  RunTitle Title();
  // Returns the number of places and of deleted files. Reads only the end of the file.
  std::int64_t CountChanges();
  // True if the whole content can be read.
  bool IsWhole();

 private:
  struct Portion {
    HistoryPortion kind = HistoryPortion::kEnd;
    std::string bytes;
  };
  // Reads the portion at the offset `at`, and sets `at` to the offset of the next portion.
  Portion ReadPortion(std::int64_t& at);
  RunTitle Title(std::int64_t& at);
  RunTitle TitleOf(const Portion& portion) const;
  HistoryFileEntry EntryOf(const Portion& portion) const;
  void ReadGroups(std::string_view bytes, const Reader& reader) const;
  void ReadReferences(std::string_view bytes, const Reader& reader) const;
  void ReadPlaces(std::string_view bytes, std::int64_t length, std::int64_t& next_offset,
                  const Reader& reader);
  void Check(bool right) const {
    if (!right) throw DamagedHistory(path_);
  }

  std::string path_;
  std::unique_ptr<PlatformFile> file_;
};

}  // namespace golf
