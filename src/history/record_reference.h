#pragma once

#include <compare>
#include <cstdint>
#include <string>

namespace golf {

// Identifies a record by its file, relative to the install folder, with "/", and by its number,
// from 1. Number 0 is the whole file.
struct RecordId {
  std::string file;
  std::int64_t record = 0;

  auto operator<=>(const RecordId&) const = default;
};

// Describes that the record `from` contains the number of the record `to`.
struct RecordReference {
  RecordId from;
  RecordId to;

  auto operator<=>(const RecordReference&) const = default;
};

}  // namespace golf
