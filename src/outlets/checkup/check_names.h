#pragma once

#include <vector>

#include "outlets/checkup/file_scan.h"
#include "outlets/checkup/known_golfer.h"

namespace golf {

// Contains the golfers of all programs.
struct AllGolfers {
  const std::vector<KnownGolfers>& kelvane;
  const KnownGolfers& quenby;
  const std::vector<KnownGolfers>& zandel;
};

// Finds golfers whose names are spelled differently in two programs, and first names that Quenby
// cuts. Each name is reported once.
void CheckNames(FileScan& scan, const AllGolfers& all);

}  // namespace golf
