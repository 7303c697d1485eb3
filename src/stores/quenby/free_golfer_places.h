#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace golf {

// Finds the same free records as repeated calls of RosterPlayers::FindAvailableRecordInRosterFile,
// but needs only one pass over the file. A record is free if its number is 10 or more and it
// contains neither a golfer nor the ID kNeverAgain. The results are the same because only the
// current run writes records and it notes each of them. First never returns a record of the file
// that was not noted.
class FreeGolferPlaces {
 public:
  // Starts with the number of records of the file.
  explicit FreeGolferPlaces(std::int32_t length) : length_(length) {}

  // Notes the ID of a record that was read or written.
  void Note(std::int32_t record, std::int32_t id);
  // Returns the first free record. Returns the record after the end of the file, but at least 10,
  // if no record is free.
  std::int32_t First();

 private:
  std::int32_t length_;
  std::vector<bool> free_;  // by record, one bit each, since a file may have millions
  std::size_t lowest_ = 0;  // no record below this one is free
};

}  // namespace golf
