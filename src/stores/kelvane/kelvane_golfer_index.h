#pragma once

#include <cstdint>
#include <vector>

#include "core/shared_state.h"

namespace golf {

// The golfers of the open roster by their IDs, from one pass over the golfer file. A look-up gives
// what a search from the first place would, as long as no ID and no status changes: posting scores
// changes neither.
class KelvaneGolferIndex {
 public:
  explicit KelvaneGolferIndex(SharedState& state) : state_(state) {}

  // All places with a golfer of this ID, ascending. The first look-up reads the file. Raises the
  // errors of FileTable; ReadError where there is none but a place that cannot be read, where the
  // golfer may stand.
  std::vector<std::int32_t> PlacesOf(std::int32_t id);

  // The first of them, with that golfer read into the golfer buffer; 0 if there is none.
  std::int32_t Find(std::int32_t id);

 private:
  struct Golfer {
    std::int32_t id;
    std::int32_t place;

    auto operator<=>(const Golfer&) const = default;
  };

  void Read();

  SharedState& state_;
  bool read_ = false;
  std::vector<Golfer> golfers_;  // in their own order
  std::vector<std::int32_t> unread_;
};

}  // namespace golf
