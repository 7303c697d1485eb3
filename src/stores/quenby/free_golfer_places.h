#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace golf {

// The free places that repeated calls of RosterPlayers::FindAvailableRecordInRosterFile would find,
// from one pass over the file. A place is free if it is record 10 or above and holds neither a
// golfer nor the mark kNeverAgain. The results are the same because only the run itself writes
// records and it notes each of them. A record that is not noted is never offered.
class FreeGolferPlaces {
 public:
  // `length` is the number of records of the file at the start.
  explicit FreeGolferPlaces(std::int32_t length) : length_(length) {}

  // Notes the ID of a record that was read or written.
  void Note(std::int32_t record, std::int32_t id);
  // Returns the first free record, or the record behind the end of the file, at least 10, if there
  // is none.
  std::int32_t First();

 private:
  std::int32_t length_;
  std::vector<bool> free_;  // by record; one bit each, for files of millions
  std::size_t lowest_ = 0;  // no record below it is free
};

}  // namespace golf
