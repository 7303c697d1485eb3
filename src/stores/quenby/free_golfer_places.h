#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace golf {

// The places that RosterPlayers::FindAvailableRecordInRosterFile would find one after another, from
// one pass over the file instead of one for each search: it looks for the first record from 10 on
// that holds neither a golfer nor the mark of one who is gone for good, and only records that the
// run itself writes can change that. A record that is not noted is never given away.
class FreeGolferPlaces {
 public:
  // `length`: the records of the file at the start.
  explicit FreeGolferPlaces(std::int32_t length) : length_(length) {}

  // Notes what stands in a record, as it was read or has now been written.
  void Note(std::int32_t record, std::int32_t id);
  // The first free record; behind the file if there is none.
  std::int32_t First();

 private:
  std::int32_t length_;
  std::vector<bool> free_;  // by record; a file may have millions of free ones
  std::size_t lowest_ = 0;  // no free record lies below it
};

}  // namespace golf
