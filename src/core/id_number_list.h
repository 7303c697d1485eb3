#pragma once

#include <cstdint>
#include <map>

namespace golf {

// IDs in use, and the next free one among them.
class IdNumberList {
 public:
  // What the code of an operation means.
  static constexpr int kSize = 0;       // room for `value` IDs, none in the list
  static constexpr int kAppend = 1;     // adds the value
  static constexpr int kAppendNew = 2;  // adds the value unless it is there
  static constexpr int kForget = 3;     // the first entry with the value becomes 0
  static constexpr int kFind = 10;      // -1 if the value is in the list, else 0
  static constexpr int kNextFree = 11;  // the next free ID, at most `value`, else 1

  // Any other code does nothing; where nothing is said the result is 0.
  std::int32_t Run(int operation, std::int32_t value);

 private:
  void Append(std::int32_t value);
  void Forget(std::int32_t value);
  void Rewind();
  std::int32_t NextFree(std::int32_t highest);

  // How often each ID is in the list: answers as a walk over the sorted entries would.
  std::map<std::int32_t, int> held_;
  // A walk for a free ID begins where the last one ended: the IDs above 0 and below `next_`, so
  // many entries, are in use without a gap.
  std::int64_t next_ = 1;
  std::int64_t passed_ = 0;
};

}  // namespace golf
