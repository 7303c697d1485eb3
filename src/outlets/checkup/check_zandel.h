#pragma once

#include <vector>

#include "outlets/checkup/check_courses.h"
#include "outlets/checkup/file_scan.h"
#include "outlets/checkup/known_golfer.h"

namespace golf {

// Checks Zandel's leagues. Returns the golfers of each file of players or substitutes.
std::vector<KnownGolfers> CheckZandel(FileScan& scan, const KnownCourses& courses);

}  // namespace golf
