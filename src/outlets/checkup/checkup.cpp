#include "outlets/checkup/checkup.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <unordered_set>

#include "core/text.h"
#include "history/transactions.h"
#include "outlets/checkup/check_courses.h"
#include "outlets/checkup/check_kelvane.h"
#include "outlets/checkup/check_names.h"
#include "outlets/checkup/check_quenby.h"
#include "outlets/checkup/check_zandel.h"
#include "outlets/checkup/file_scan.h"
#include "stores/kelvane/kelvane_layouts.h"

namespace golf {

void CheckInstall(SharedState& state, const EachFinding& each, const ReportProgress& report) {
  FileScan scan(state, each, report);
  if (state.transactions->IsUnfinished()) {
    scan.Add(FindingCode::kRunInterrupted, "transfer-history", 0, "",
             "A run was interrupted and is not finished.");
  }
  scan.ForEach<KelvaneSystemLayout>("KVSYSTEM.FIL", false, [](std::int64_t, const auto&) {});
  scan.ForEach<KelvaneReportsLayout>(scan.NameOf(state.KVDataPath, "REPORTS.CFG"), false,
                                     [](std::int64_t, const auto&) {});
  const KnownLibraries courses = CheckCourses(scan);
  const KnownQuenby quenby = CheckQuenby(scan, courses.quenby);
  std::unordered_set<std::int64_t> days;
  for (const PlayedRound& round : quenby.rounds) days.insert(round.day);
  const KnownKelvane kelvane = CheckKelvane(scan, courses.kelvane, days);
  scan.Report("posted rounds");
  CheckPostedRounds(scan, quenby, kelvane);
  const std::vector<KnownGolfers> zandel = CheckZandel(scan, courses.zandel);
  scan.Report("names");
  CheckNames(scan, {kelvane.rosters, quenby.golfers, zandel});
}

std::vector<const CourseLibrary*> LibrariesToRepair(const std::vector<Finding>& findings) {
  constexpr FindingCode kCodes[] = {FindingCode::kIndexMissing, FindingCode::kIndexCount,
                                    FindingCode::kIndexNowhere, FindingCode::kIndexStale};
  std::vector<const CourseLibrary*> libraries;
  for (const CourseLibrary& library : kCourseLibraries) {
    const std::string ending = std::string(library.program) + ".INX";
    const bool is_wrong = std::ranges::any_of(findings, [&](const Finding& finding) {
      return std::ranges::find(kCodes, finding.code) != std::end(kCodes) &&
             UpperCase(finding.file).ends_with(ending);
    });
    if (is_wrong) libraries.push_back(&library);
  }
  return libraries;
}

}  // namespace golf
