#pragma once

#include <cstdint>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "outlets/checkup/check_courses.h"
#include "outlets/checkup/file_scan.h"
#include "outlets/checkup/known_golfer.h"

namespace golf {

// Contains what other checks need to know about Kelvane's rosters.
struct KnownKelvane {
  std::vector<KnownGolfers> rosters;
  // The scores of each golfer on each day, by ID number and day. The numbers are gross scores.
  std::unordered_map<std::int64_t, std::unordered_multimap<std::int64_t, int>> scores;
};

// Checks Kelvane's rosters with their golfers and score histories. `wanted_days` are the days whose
// scores are returned, counted as in a date.
KnownKelvane CheckKelvane(FileScan& scan, const KnownCourses& courses,
                          const std::unordered_set<std::int64_t>& wanted_days);

}  // namespace golf
