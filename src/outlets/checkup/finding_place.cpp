#include "outlets/checkup/finding_place.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "core/text.h"
#include "history/history_paths.h"
#include "outlets/install_reader.h"
#include "stores/quenby/quenby_layouts.h"

namespace golf {
namespace {

constexpr int kMemberships = 3;

// Returns the first roster of a golfer, or 0.
std::int32_t RosterOfGolfer(SharedState& state, const Finding& finding) {
  const auto golfer = InstallReader(state).Read<PlayerLayout>(finding.file, finding.record);
  for (int slot = 1; golfer && slot <= kMemberships; ++slot) {
    if (golfer->Get<"Rosters">(slot) > 0) return golfer->Get<"Rosters">(slot);
  }
  return 0;
}

}  // namespace

FindingPlace PlaceOf(SharedState& state, const Finding& finding) {
  constexpr std::string_view kRosterEndings[] = {".KV5", ".KVG", ".KVS"};
  const std::string name = UpperCase(finding.file.substr(finding.file.rfind('/') + 1));
  const std::size_t stem = name.size() - std::min<std::size_t>(name.size(), 4);
  if (std::ranges::find(kRosterEndings, name.substr(stem)) != std::end(kRosterEndings)) {
    return KelvaneRosterPlace{name.substr(0, stem)};
  }
  if (name == "QBGOLFER.Q9D") return QuenbyRosterPlace{RosterOfGolfer(state, finding)};
  if (name == "QBROSTER.Q9D") return QuenbyRosterPlace{static_cast<std::int32_t>(finding.record)};
  for (const CourseLibrary& library : kCourseLibraries) {
    if (finding.record > 0 && EqualIgnoringCase(name, CourseFileName(library.program))) {
      return CoursePlace{&library, static_cast<std::int32_t>(finding.record)};
    }
  }
  return {};
}

}  // namespace golf
