#include "stores/quenby/free_golfer_places.h"

#include <algorithm>

#include "stores/quenby/roster_players.h"

namespace golf {

void FreeGolferPlaces::Tell(std::int32_t record, std::int32_t id) {
  length_ = std::max(length_, record);
  if (record < kFirstGolferRecord) return;
  if (id < 1 && id != kNeverAgain) {
    free_.insert(record);
  } else {
    free_.erase(record);
  }
}

std::int32_t FreeGolferPlaces::First() const {
  return free_.empty() ? std::max<std::int32_t>(length_ + 1, kFirstGolferRecord) : *free_.begin();
}

}  // namespace golf
