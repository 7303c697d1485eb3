#pragma once

#include <cstdint>
#include <map>

namespace golf {

// The IDs in use, from which the next free one is found.
class IdNumberList {
 public:
  void Clear();
  void Append(std::int32_t id);
  void AppendNew(std::int32_t id);  // only if the list lacks it
  // Sets the first entry with this ID to 0.
  void Forget(std::int32_t id);
  bool Contains(std::int32_t id) const { return held_.contains(id); }
  // Returns the first free ID above the lowest positive one in use. Each entry counts, so an ID
  // that is in the list twice hides one free ID. Returns 1 if no positive ID is in use, or if the
  // result would be above `highest`.
  std::int32_t NextFree(std::int32_t highest);

 private:
  void Rewind();

  // The number of entries of each ID. NextFree returns what a walk over the sorted entries finds.
  std::map<std::int32_t, int> held_;
  // NextFree continues where its last call ended. The `passed_` entries with IDs above 0 and below
  // `next_` have no gap among them.
  std::int64_t next_ = 1;
  std::int64_t passed_ = 0;
};

}  // namespace golf
