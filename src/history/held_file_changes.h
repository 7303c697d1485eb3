#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/platform.h"
#include "history/place_code.h"
#include "history/spill_store.h"

namespace golf {

// Describes a place that a run has written. The store contains the code of its bytes before the
// first write and after the last one.
struct HeldPlace {
  std::int64_t offset = 0;
  std::uint32_t old_size = 0;  // bytes; below `new_size` if the file ended in the place
  std::uint32_t new_size = 0;  // bytes; below `old_size` if the file is truncated there
  ChangeGroup group = 0;
  std::uint32_t code_size = 0;  // bytes of the code
  std::int64_t stored = 0;      // position of the code in the store

  std::int64_t End() const { return offset + std::max(old_size, new_size); }
};

// Contains bytes of a file as they were when they were read.
struct FileWindow {
  std::int64_t offset = 0;
  std::string bytes;

  std::int64_t End() const { return offset + std::ssize(bytes); }
  // Replaces the window by bytes that were read. Does nothing if they are longer than a record,
  // since only a record is read in order to be written.
  void Note(std::int64_t read_offset, std::span<const char> read);
};

// Holds the changes of a run in one file.
class HeldFileChanges {
 public:
  // `real` is the file on the disk. It is null if the run creates the file.
  HeldFileChanges(std::string path, std::shared_ptr<PlatformFile> real, SpillStore& store);

  const std::string& path() const { return path_; }
  bool is_created() const { return real_ == nullptr; }
  // The file stays open through this pointer until the changes are committed or dropped.
  const std::shared_ptr<PlatformFile>& real() const { return real_; }

  // Both lengths are in bytes. The old length is that at the first change.
  std::int64_t old_length() const { return old_length_; }
  std::int64_t length() const { return length_; }

  // Reads bytes of the file with its held changes, and returns their number. The number is smaller
  // than the size of `into` only at the end of the file.
  std::size_t ReadAt(std::int64_t offset, std::span<char> into);
  // Records bytes that were read before the first change. They count as old bytes, even if another
  // program has changed them since.
  void NoteRead(FileWindow read) { window_ = std::move(read); }
  // Records the stamp that the real file had before its bytes were read.
  void NoteStamp(const std::optional<FileStamp>& stamp) { stamp_ = stamp; }
  // True if the stamps prove that the real file has not changed since.
  bool IsProvenUntouched() const { return stamp_ && real_ != nullptr && real_->Stamp() == stamp_; }
  // Both functions hold a change. They raise HoldFailed if it cannot be held.
  void WriteAt(std::int64_t offset, std::string_view bytes, ChangeGroup group);
  void Truncate(std::int64_t length, ChangeGroup group);

  // Is called with two groups that have changed the same place.
  std::function<void(ChangeGroup, ChangeGroup)> on_shared;

  // True if the file differs from its state before the run.
  bool HasNetChange() const;
  // Calls `each` for every place that differs, by rising offsets, with its code. Bytes that a
  // truncation cuts off are among them, in pieces of `record_length` bytes; 0 makes longer pieces.
  // Raises HoldFailed if the held bytes cannot be read.
  void ForEach(std::size_t record_length,
               const std::function<void(const HeldPlace&, std::string_view code)>& each);

 private:
  // Contains the places that start in one portion of the file, by rising offsets.
  using Portion = std::vector<HeldPlace>;

  const HeldPlace* FindExact(std::int64_t offset, std::size_t size) const;
  void Replace(const HeldPlace& place, std::string_view bytes, ChangeGroup group);
  bool Overlaps(std::int64_t offset, std::int64_t end);
  // Removes and returns all places that overlap the range.
  std::vector<HeldPlace> TakeOverlapping(std::int64_t offset, std::int64_t end);
  void Insert(std::int64_t offset, ChangeGroup group, std::string_view old_bytes,
              std::string_view new_bytes);
  // Returns the bytes of a place. They are valid until the next call.
  const HistoryPlace& Bytes(const HeldPlace& place);
  void FillCut(std::int64_t end, ChangeGroup group);
  void WriteOver(std::int64_t offset, std::string_view bytes, ChangeGroup group);
  // Returns the bytes of before the run. The next call overwrites them.
  std::string_view OldBytes(std::int64_t offset, std::size_t size);
  void NoteShared(ChangeGroup a, ChangeGroup b);

  std::string path_;
  std::shared_ptr<PlatformFile> real_;
  SpillStore& store_;
  std::int64_t old_length_ = 0;
  std::int64_t length_ = 0;
  std::map<std::int64_t, Portion> portions_;
  std::int64_t longest_ = 0;  // size of the longest place, in bytes
  // These buffers are reused.
  std::string code_;
  HistoryPlace bytes_;
  FileWindow window_;  // bytes of the real file
  std::optional<FileStamp> stamp_;
};

}  // namespace golf
