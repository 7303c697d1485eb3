#pragma once

#include <map>
#include <string>

#include "outlets/export/export_run.h"

namespace golf {

// Each of these functions exports the files of one kind. They raise the errors of ExportRun.

struct ExportedLibraries {
  ExportedCourses kelvane;
  ExportedCourses quenby;
  ExportedCourses zandel;
};
ExportedLibraries ExportCourses(ExportRun& run);

void ExportKelvane(ExportRun& run, const ExportedCourses& courses);

// Contains the ids that the results of a tournament refer to.
struct ExportedTournament {
  std::int32_t number = 0;
  std::int64_t id = 0;
  ExportedIds entries;
  ExportedIds teams;
};
// Calls `each` after the records of each tournament.
void ExportQuenby(ExportRun& run, const ExportedCourses& courses,
                  const std::function<void(const ExportedTournament&)>& each);

void ExportZandel(ExportRun& run, const ExportedCourses& courses);

}  // namespace golf
