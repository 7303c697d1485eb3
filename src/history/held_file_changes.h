#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/platform.h"
#include "history/spill_store.h"

namespace golf {

// The number of a group of changes that belong together: a golfer with all his records, a course, a
// roster. Group 0 is the run as a whole.
using ChangeGroup = std::uint32_t;

// Bytes of a file that a run has written, usually a record: what stood there before the first write
// and what stands there after the last one.
struct HeldPlace {
  std::int64_t offset = 0;
  std::uint32_t old_size = 0;  // fewer bytes than new ones where the file ended there
  std::uint32_t new_size = 0;  // fewer than old ones where the file is cut there
  ChangeGroup group = 0;
  std::int64_t stored = 0;  // the new bytes in the store; the old ones follow them

  std::int64_t End() const { return offset + std::max(old_size, new_size); }
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
  void WriteAt(std::int64_t offset, std::string_view bytes, ChangeGroup group);
  void Truncate(std::int64_t length, ChangeGroup group);

  // Joins two groups where a place belongs to both.
  std::function<void(ChangeGroup, ChangeGroup)> on_shared;

  // Calls `each` with every place, its old and its new bytes, by rising offsets. Bytes that a
  // truncation cuts off are among them.
  using EachPlace =
      std::function<void(const HeldPlace&, std::string_view old_bytes, std::string_view new_bytes)>;
  void ForEach(const EachPlace& each);

  // Whether the file differs from what it was: it is new, has another length or other bytes.
  bool Differs();

 private:
  // Places in the order of their offsets, in portions of the file by where they start.
  using Portion = std::vector<HeldPlace>;

  HeldPlace* FindExact(std::int64_t offset, std::size_t size);
  bool Overlaps(std::int64_t offset, std::int64_t end);
  // Takes all places out that overlap the range.
  std::vector<HeldPlace> TakeOverlapping(std::int64_t offset, std::int64_t end);
  void Insert(HeldPlace place, std::string_view new_bytes, std::string_view old_bytes);
  void FillCut(std::int64_t end, ChangeGroup group);
  void WriteOver(std::int64_t offset, std::string_view bytes, ChangeGroup group);
  std::string OldBytes(std::int64_t offset, std::size_t size);
  void NoteShared(ChangeGroup a, ChangeGroup b);

  std::string path_;
  std::shared_ptr<PlatformFile> real_;
  SpillStore& store_;
  std::int64_t old_length_ = 0;
  std::int64_t length_ = 0;
  std::int64_t kept_ = 0;  // bytes of the real file that no truncation has cut
  std::map<std::int64_t, Portion> portions_;
  std::int64_t longest_ = 0;  // bytes of a place
  // A window of the real file as it was when it was read.
  std::string window_;
  std::int64_t window_offset_ = 0;
};

}  // namespace golf
