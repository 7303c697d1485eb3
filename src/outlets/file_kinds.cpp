#include "outlets/file_kinds.h"

#include "core/text.h"
#include "stores/course/course_layout.h"
#include "stores/kelvane/kelvane_layouts.h"
#include "stores/quenby/quenby_layouts.h"
#include "stores/zandel/zandel_layouts.h"

namespace golf {
namespace {

constexpr FileKind kKinds[] = {
    {"KVCRS.DAT", InfoOfLayout<CourseLayout>()},
    {"QBCRS.DAT", InfoOfLayout<CourseLayout>()},
    {"ZDCRS.DAT", InfoOfLayout<CourseLayout>()},
    {"*CRSKV.INX", InfoOfLayout<CourseIndexLayout>()},
    {"*CRSQB.INX", InfoOfLayout<CourseIndexLayout>()},
    {"*CRSZD.INX", InfoOfLayout<CourseIndexLayout>()},
    {"*.KV5", InfoOfLayout<KelvaneHeaderLayout>()},
    {"*.KVG", InfoOfLayout<KelvaneGolferLayout>()},
    {"*.KVS", InfoOfLayout<KelvaneHistoryLayout>()},
    {"REPORTS.CFG", InfoOfLayout<KelvaneReportsLayout>()},
    {"KVSYSTEM.FIL", InfoOfLayout<KelvaneSystemLayout>()},
    {"QBMASTER.Q9D", InfoOfLayout<MasterLayout>()},
    {"QBROSTER.Q9D", InfoOfLayout<RosterLayout>()},
    {"QBGOLFER.Q9D", InfoOfLayout<PlayerLayout>()},
    {"*.Q9C", InfoOfLayout<TournamentLayout>()},
    {"*.Q9G", InfoOfLayout<TournamentPlayerLayout>()},
    {"*.Q9T", InfoOfLayout<TeamLayout>()},
    {"*.ZL8", InfoOfLayout<LeagueControlLayout>()},
    {"*.ZP8", InfoOfLayout<LeaguePlayerLayout>()},
    {"*.ZS8", InfoOfLayout<LeaguePlayerLayout>()},
    {"*.ZT8", InfoOfLayout<LeagueTeamLayout>()},
    {"*.ZE8", InfoOfLayout<LeagueEventLayout>()},
};

bool Matches(std::string_view name, std::string_view pattern) {
  return pattern.starts_with('*') ? name.ends_with(pattern.substr(1)) : name == pattern;
}

}  // namespace

std::span<const FileKind> FileKinds() { return kKinds; }

std::optional<LayoutInfo> LayoutOfFile(std::string_view file_name) {
  const std::string name = UpperCase(file_name);
  for (const FileKind& kind : kKinds) {
    if (Matches(name, kind.name)) return kind.layout;
  }
  return std::nullopt;
}

}  // namespace golf
