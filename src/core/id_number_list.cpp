#include "core/id_number_list.h"

#include <algorithm>
#include <iterator>

namespace golf {

std::int32_t IdNumberList::Run(int operation, std::int32_t value) {
  switch (operation) {
    case kSize:
      ids_.clear();
      held_.clear();
      sorted_ = 0;
      return 0;  // the list grows as it is filled
    case kAppend:
      Append(value);
      return 0;
    case kAppendNew:
      if (Run(kFind, value) == 0) Append(value);
      return 0;
    case kForget:
      Forget(value);
      return 0;
    case kFind:
      return held_.contains(value) ? -1 : 0;
    case kNextFree:
      return NextFree(value);
    default:
      return 0;
  }
}

void IdNumberList::Append(std::int32_t value) {
  ids_.push_back(value);
  ++held_[value];
}

void IdNumberList::Forget(std::int32_t value) {
  const auto held = held_.find(value);
  if (held == held_.end()) return;
  if (--held->second == 0) held_.erase(held);
  const auto at = std::find(ids_.begin(), ids_.end(), value);
  sorted_ = std::min(sorted_, static_cast<std::size_t>(at - ids_.begin()));
  *at = 0;
  ++held_[0];
}

// A stable order does not matter: equal IDs cannot be told apart.
void IdNumberList::Sort() {
  const auto tail = ids_.begin() + static_cast<std::ptrdiff_t>(sorted_);
  std::sort(tail, ids_.end());
  std::inplace_merge(ids_.begin(), tail, ids_.end());
  sorted_ = ids_.size();
}

std::int32_t IdNumberList::NextFree(std::int32_t highest) {
  Sort();
  auto id = std::upper_bound(ids_.begin(), ids_.end(), 0);
  if (id == ids_.end()) return 1;
  std::int64_t expected = std::int64_t{*id} + 1;  // the base and its offset
  std::int64_t free = std::int64_t{ids_.back()} + 1;
  for (++id; id != ids_.end(); ++id, ++expected) {
    if (*id <= expected) continue;
    free = expected;
    break;
  }
  return free > highest ? 1 : static_cast<std::int32_t>(free);
}

}  // namespace golf
