#pragma once

#include <cstdint>
#include <map>

namespace golf {

// Holds the IDs in use and finds the next free one.
class IdNumberList {
 public:
  void Clear();
  void Append(std::int32_t id);
  void AppendNew(std::int32_t id);  // does nothing if the list contains the ID
  // Changes one entry with this ID to 0.
  void Forget(std::int32_t id);
  bool Contains(std::int32_t id) const { return held_.contains(id); }
  // Returns the first free ID above the lowest positive ID in use. Every entry counts, so an ID
  // that is in the list twice hides one free ID. Returns 1 if no positive ID is in use, or if the
  // result would be above `highest`.
  std::int32_t NextFree(std::int32_t highest);

 private:
  void Rewind();

  // Contains the number of entries of each ID, in ascending order of the IDs.
  std::map<std::int32_t, int> held_;
  // NextFree continues where its last call ended. `passed_` is the number of entries with IDs above
  // 0 and below `next_`. These entries have no gap among them.
  std::int64_t next_ = 1;
  std::int64_t passed_ = 0;
};

}  // namespace golf
