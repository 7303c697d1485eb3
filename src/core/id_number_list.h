#pragma once

#include <cstdint>
#include <map>

namespace golf {

// IDs in use, and the next free one among them.
class IdNumberList {
 public:
  void Clear();
  void Append(std::int32_t id);
  void AppendNew(std::int32_t id);  // unless it is there
  // The first entry with this ID becomes 0.
  void Forget(std::int32_t id);
  bool Contains(std::int32_t id) const { return held_.contains(id); }
  // The lowest free ID above the lowest one in use; 1 where it would be above `highest`.
  std::int32_t NextFree(std::int32_t highest);

 private:
  void Rewind();

  // How often each ID is in the list: answers as a walk over the sorted entries would.
  std::map<std::int32_t, int> held_;
  // A walk for a free ID begins where the last one ended: the IDs above 0 and below `next_`, so
  // many entries, are in use without a gap.
  std::int64_t next_ = 1;
  std::int64_t passed_ = 0;
};

}  // namespace golf
