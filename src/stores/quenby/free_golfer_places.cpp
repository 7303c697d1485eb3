#include "stores/quenby/free_golfer_places.h"

#include <algorithm>

#include "stores/quenby/roster_players.h"

namespace golf {

void FreeGolferPlaces::Note(std::int32_t record, std::int32_t id) {
  length_ = std::max(length_, record);
  if (record < kFirstGolferRecord) return;
  const auto at = static_cast<std::size_t>(record);
  const bool is_free = id < 1 && id != kNeverAgain;
  if (at >= free_.size()) free_.resize(at + 1);
  free_[at] = is_free;
  if (is_free) lowest_ = std::min(lowest_, at);
}

std::int32_t FreeGolferPlaces::First() {
  while (lowest_ < free_.size() && !free_[lowest_]) ++lowest_;
  if (lowest_ < free_.size()) return static_cast<std::int32_t>(lowest_);
  return std::max<std::int32_t>(length_ + 1, kFirstGolferRecord);
}

}  // namespace golf
