#include "core/id_number_list.h"

namespace golf {

void IdNumberList::Clear() {
  held_.clear();
  Rewind();
}

void IdNumberList::AppendNew(std::int32_t id) {
  if (!Contains(id)) Append(id);
}

void IdNumberList::Append(std::int32_t id) {
  const auto held = held_.try_emplace(held_.end(), id, 0);
  ++held->second;
  if (id < 1 || id >= next_) return;
  ++passed_;
  // NextFree counts from the lowest ID, so it must start again after a new lowest ID.
  if (held == held_.upper_bound(0) && held->second == 1) Rewind();
}

void IdNumberList::Forget(std::int32_t id) {
  const auto held = held_.find(id);
  if (held == held_.end()) return;
  if (--held->second == 0) held_.erase(held);
  ++held_[0];
  Rewind();
}

void IdNumberList::Rewind() {
  next_ = 1;
  passed_ = 0;
}

// An ID follows a gap if it is greater than the lowest ID plus the number of entries before it. An
// ID that is in the list twice counts as two entries.
std::int32_t IdNumberList::NextFree(std::int32_t highest) {
  const auto first = held_.upper_bound(0);
  if (first == held_.end()) return 1;
  auto id = held_.upper_bound(static_cast<std::int32_t>(next_ - 1));
  for (; id != held_.end() && id->first <= first->first + passed_; ++id) passed_ += id->second;
  const bool gap = id != held_.end();
  next_ = gap ? id->first : std::int64_t{held_.rbegin()->first} + 1;
  const std::int64_t free = gap ? first->first + passed_ : next_;
  return free > highest ? 1 : static_cast<std::int32_t>(free);
}

}  // namespace golf
