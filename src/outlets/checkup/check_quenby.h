#pragma once

#include <cstdint>
#include <string>
#include <unordered_set>
#include <vector>

#include "outlets/checkup/check_courses.h"
#include "outlets/checkup/check_kelvane.h"
#include "outlets/checkup/file_scan.h"
#include "outlets/checkup/known_golfer.h"

namespace golf {

// Describes a complete round of a golfer in a tournament.
struct PlayedRound {
  std::string file;  // of the entries
  std::int64_t entry = 0;
  std::string title;  // of the golfer
  std::int64_t id = 0;
  int round = 0;
  std::int64_t day = 0;  // counted as in a date
  int gross = 0;         // in strokes; 0 if the round is not complete
  bool is_posted = false;
};

struct KnownQuenby {
  KnownGolfers golfers;
  std::vector<PlayedRound> rounds;
};

// Checks Quenby's golfers, rosters and tournaments.
KnownQuenby CheckQuenby(FileScan& scan, const KnownCourses& courses);

// Checks whether posted rounds are in Kelvane's histories, and whether rounds that are in the
// histories are marked as posted.
void CheckPostedRounds(FileScan& scan, const KnownQuenby& quenby, const KnownKelvane& kelvane);

}  // namespace golf
