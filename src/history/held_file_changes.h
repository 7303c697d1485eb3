#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/platform.h"
#include "history/place_code.h"
#include "history/spill_store.h"

namespace golf {

// A place that a run has written, usually a record. Its bytes of before the first write and after
// the last one lie in a store, coded.
struct HeldPlace {
  std::int64_t offset = 0;
  std::uint32_t old_size = 0;  // fewer bytes than new ones where the file ended there
  std::uint32_t new_size = 0;  // fewer than old ones where the file is cut there
  ChangeGroup group = 0;
  std::uint32_t code_size = 0;
  std::int64_t stored = 0;

  std::int64_t End() const { return offset + std::max(old_size, new_size); }
};

// Bytes of a file as they were when they were read.
struct FileWindow {
  std::int64_t offset = 0;
  std::string bytes;

  std::int64_t End() const { return offset + std::ssize(bytes); }
  // Replaces the window by what was read, unless that is longer than a record: only a record is
  // read in order to be written.
  void Note(std::int64_t read_offset, std::span<const char> read);
};

// What a run holds back of one file.
class HeldFileChanges {
 public:
  // `real` is the file on the disk; null where the file comes into being with this run.
  HeldFileChanges(std::string path, std::shared_ptr<PlatformFile> real, SpillStore& store);

  const std::string& path() const { return path_; }
  bool is_created() const { return real_ == nullptr; }
  // The file stays open through this pointer until the changes are committed or dropped.
  const std::shared_ptr<PlatformFile>& real() const { return real_; }

  // Bytes. The old length is that of the moment of the first change.
  std::int64_t old_length() const { return old_length_; }
  std::int64_t length() const { return length_; }

  // As the file reads with its changes; fewer bytes than asked for at its end only.
  std::size_t ReadAt(std::int64_t offset, std::span<char> into);
  // Notes what was read of the file before its first change. These bytes count as old ones, also if
  // another program has changed them since.
  void NoteRead(FileWindow read) { window_ = std::move(read); }
  void WriteAt(std::int64_t offset, std::string_view bytes, ChangeGroup group);
  void Truncate(std::int64_t length, ChangeGroup group);

  // Joins two groups where a place belongs to both.
  std::function<void(ChangeGroup, ChangeGroup)> on_shared;

  // Whether anything differs from before the run.
  bool HasNetChange() const;
  // Calls `each` with every place that differs and its code, by rising offsets. Bytes that a
  // truncation cuts off are among them.
  void ForEach(const std::function<void(const HeldPlace&, std::string_view code)>& each);

 private:
  // Places in the order of their offsets, in portions of the file by where they start.
  using Portion = std::vector<HeldPlace>;

  const HeldPlace* FindExact(std::int64_t offset, std::size_t size) const;
  void Replace(const HeldPlace& place, std::string_view bytes, ChangeGroup group);
  bool Overlaps(std::int64_t offset, std::int64_t end);
  // Takes all places out that overlap the range.
  std::vector<HeldPlace> TakeOverlapping(std::int64_t offset, std::int64_t end);
  void Insert(std::int64_t offset, ChangeGroup group, std::string_view old_bytes,
              std::string_view new_bytes);
  // Reads the bytes of a place back.
  const HistoryPlace& Bytes(const HeldPlace& place);
  void FillCut(std::int64_t end, ChangeGroup group);
  void WriteOver(std::int64_t offset, std::string_view bytes, ChangeGroup group);
  std::string OldBytes(std::int64_t offset, std::size_t size);
  void NoteShared(ChangeGroup a, ChangeGroup b);

  std::string path_;
  std::shared_ptr<PlatformFile> real_;
  SpillStore& store_;
  std::int64_t old_length_ = 0;
  std::int64_t length_ = 0;
  std::map<std::int64_t, Portion> portions_;
  std::int64_t longest_ = 0;  // bytes of a place
  // Buffers that are used again.
  std::string code_;
  HistoryPlace bytes_;
  FileWindow window_;  // of the real file
};

}  // namespace golf
