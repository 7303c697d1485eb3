#pragma once

#include <cstdint>
#include <vector>

#include "core/shared_state.h"

namespace golf {

// The golfers of the open roster by their IDs, from one pass over the golfer file. A look-up
// returns what a search from the first place would find, as long as no ID and no status changes.
// Posting scores changes neither.
class KelvaneGolferIndex {
 public:
  explicit KelvaneGolferIndex(SharedState& state) : state_(state) {}

  // Returns all places with a golfer of this ID, ascending. The first look-up reads the file.
  // Raises the errors of FileTable. Raises ReadError if no place is found but some place could not
  // be read, since the golfer may be there.
  std::vector<std::int32_t> PlacesOf(std::int32_t id);

  // Reads the first golfer of this ID into the golfer buffer and returns his place, or 0 if there
  // is none. Errors as PlacesOf.
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
  std::vector<Golfer> golfers_;       // sorted by ID and place
  std::vector<std::int32_t> unread_;  // places that could not be read
};

}  // namespace golf
