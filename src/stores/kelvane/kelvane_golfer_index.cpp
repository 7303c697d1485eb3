#include "stores/kelvane/kelvane_golfer_index.h"

#include <algorithm>
#include <string>

#include "core/take_records.h"
#include "stores/kelvane/kelvane_files.h"

namespace golf {

void KelvaneGolferIndex::Read() {
  Record<KelvaneGolferLayout> golfer;  // only its beginning is needed
  static_assert(FieldOf<KelvaneGolferLayout, "Status">().offset <
                FieldOf<KelvaneGolferLayout, "IDNum">().offset);
  unread_ = TakeRecords(1, KVGolferPlaces(state_), [&](std::int32_t place) {
    state_.files.ReadUntil<"IDNum">(kKelvaneGolferFile, place, golfer);
    if (IsGolfer(golfer)) golfers_.push_back({golfer.Get<"IDNum">(), place});
  });
  std::sort(golfers_.begin(), golfers_.end());
  read_ = true;
}

std::vector<std::int32_t> KelvaneGolferIndex::PlacesOf(std::int32_t id) {
  if (!read_) Read();
  std::vector<std::int32_t> places;
  auto golfer = std::lower_bound(golfers_.begin(), golfers_.end(), Golfer{id, 0});
  for (; golfer != golfers_.end() && golfer->id == id; ++golfer) places.push_back(golfer->place);
  if (places.empty() && !unread_.empty()) {
    throw ReadError({ErrorNumber::kDeviceFault, "Place " + std::to_string(unread_.front()) +
                                                    " of the roster cannot be read, and the golfer "
                                                    "may stand there."});
  }
  return places;
}

std::int32_t KelvaneGolferIndex::Find(std::int32_t id) {
  const std::vector<std::int32_t> places = PlacesOf(id);
  if (places.empty()) return 0;
  state_.files.Read(kKelvaneGolferFile, places.front(), state_.Kelvane().golfer);
  return places.front();
}

}  // namespace golf
