#pragma once

#include <cstdint>
#include <vector>

#include "core/shared_state.h"

namespace golf {

// Finds the golfers of the open roster by ID. The index is built by reading the golfer file once. A
// look-up finds the same golfers as a search of the file, as long as no ID and no status changes.
// Posting scores changes neither.
class KelvaneGolferIndex {
 public:
  explicit KelvaneGolferIndex(SharedState& state) : state_(state) {}

  // Returns all places with a golfer of this ID, in ascending order. The first call reads the file.
  // Raises the errors of FileTable. Raises ReadError if it finds no place but could not read some
  // place, since the golfer may be stored there.
  std::vector<std::int32_t> PlacesOf(std::int32_t id);

  // Reads the first golfer with this ID into the golfer buffer. Returns the place of the golfer, or
  // 0 if there is none. Raises the same errors as PlacesOf.
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
