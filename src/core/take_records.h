#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "core/numbered_error.h"

namespace golf {

// Calls `take(record)`, which reads the record, for the records `first` to `last` in order. Then
// calls it a second time for each record that raised a ReadError. Returns the records that failed
// twice, in ascending order. Passes any other error to the caller.
template <class Take>
std::vector<std::int32_t> TakeRecords(std::int32_t first, std::int32_t last, Take&& take) {
  std::vector<std::int32_t> unread;
  const auto try_to_take = [&](std::int32_t record) {
    try {
      take(record);
    } catch (const ReadError&) {
      unread.push_back(record);
    }
  };
  for (std::int32_t record = first; record <= last; ++record) try_to_take(record);
  for (const std::int32_t record : std::exchange(unread, {})) try_to_take(record);
  return unread;
}

}  // namespace golf
