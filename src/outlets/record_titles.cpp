#include "outlets/record_titles.h"

#include <optional>

#include "core/text.h"
#include "history/record_changes.h"
#include "outlets/file_kinds.h"
#include "stores/course/course_layout.h"
#include "stores/kelvane/kelvane_layouts.h"
#include "stores/quenby/quenby_layouts.h"
#include "stores/zandel/zandel_layouts.h"

namespace golf {
namespace {

struct RecordPlace {
  InstallReader& reader;
  std::string_view file;
  std::int64_t record;
};

std::string WithExtension(std::string_view file, std::string_view extension) {
  return std::string(file.substr(0, file.rfind('.'))).append(extension);
}

std::string Stem(std::string_view file) {
  const std::string_view name = FileNameOf(file);
  return std::string(name.substr(0, name.rfind('.')));
}

std::string Numbered(std::string_view what, std::int64_t number) {
  return std::string(what) + " " + std::to_string(number);
}

std::string TitleOf(const RecordPlace&, const Record<KelvaneGolferLayout>& golfer) {
  if (golfer.Get<"Status">() < 1) return {};
  return GolferTitleLF(golfer.Get<"NameFirst">(), golfer.Get<"NameLast">(), golfer.Get<"IDNum">());
}

// Returns the name of the golfer whose record in the roster has the same number.
std::string TitleOf(const RecordPlace& place, const Record<KelvaneHistoryLayout>&) {
  const std::string roster = WithExtension(place.file, ".kvg");
  const auto golfer = place.reader.Read<KelvaneGolferLayout>(roster, place.record);
  return golfer ? TitleOf(place, *golfer) : std::string();
}

std::string TitleOf(const RecordPlace& place, const Record<KelvaneHeaderLayout>&) {
  return Stem(place.file);
}

std::string TitleOf(const RecordPlace&, const Record<PlayerLayout>& golfer) {
  if (golfer.Get<"IDNum">() < 1) return {};
  return GolferTitleLF(golfer.Get<"NameFirst">(), golfer.Get<"NameLast">(), golfer.Get<"IDNum">());
}

std::string TitleOf(const RecordPlace& place, const Record<RosterLayout>& roster) {
  if (roster.Get<"IsRosterActive">() == 0) return {};
  const std::string name = WithoutPadding(roster.Get<"ClubName">());
  return name.empty() ? Numbered("Roster", place.record) : name;
}

std::string TitleOf(const RecordPlace& place, const Record<TournamentLayout>& tournament) {
  const std::string name = WithoutPadding(tournament.Get<"Name">());
  return name.empty() ? Stem(place.file) : name;
}

std::string TitleOf(const RecordPlace& place, const Record<TournamentPlayerLayout>& entry) {
  const std::int64_t pointer = entry.Get<"TourRosterRecordPointer">();
  if (pointer < 1) return {};
  const std::string folder(place.file.substr(0, place.file.rfind('/') + 1));
  const auto golfer = place.reader.Read<PlayerLayout>(folder + "QBGOLFER.Q9D", pointer);
  std::string name = golfer ? TitleOf(place, *golfer) : std::string();
  if (name.empty()) name = Numbered("Golfer of record", pointer);
  return name + " (" + TournamentTitle(place.reader, place.file) + ")";
}

std::string TitleOf(const RecordPlace&, const Record<TeamLayout>& team) {
  return WithoutPadding(team.Get<"TeamName">());
}

std::string TitleOf(const RecordPlace& place, const Record<CourseLayout>& course) {
  if (course.Get<"activeflag">() == 0) return {};
  const std::string name = WithoutPadding(course.Get<"Name">());
  return name.empty() ? Numbered("Course", place.record) : name;
}

std::string TitleOf(const RecordPlace&, const Record<LeaguePlayerLayout>& player) {
  if (IsBlankText(player.Get<"LastName">())) return {};
  return GolferTitleLF(player.Get<"FirstName">(), player.Get<"LastName">(),
                       player.Get<"GolferID">());
}

std::string TitleOf(const RecordPlace& place, const Record<LeagueControlLayout>& league) {
  const std::string name = WithoutPadding(league.Get<"LeagueName">());
  return name.empty() ? Stem(place.file) : name;
}

// Returns the name of the league to which a file belongs.
std::string LeagueTitle(const RecordPlace& place) {
  const std::string control = WithExtension(place.file, ".ZL8");
  const auto league = place.reader.Read<LeagueControlLayout>(control, 1);
  return league ? TitleOf({place.reader, control, 1}, *league) : Stem(place.file);
}

std::string TitleOf(const RecordPlace& place, const Record<LeagueEventLayout>&) {
  return LeagueTitle(place) + ", " + Numbered("event", place.record);
}

std::string TitleOf(const RecordPlace& place, const Record<LeagueTeamLayout>&) {
  return LeagueTitle(place) + ", " + Numbered("team", place.record);
}

struct TitleKind {
  std::string_view layout;
  std::string (*title)(const RecordPlace&, std::string_view bytes);
};

template <class Layout>
constexpr TitleKind Titled() {
  return {Layout::kName, [](const RecordPlace& place, std::string_view bytes) {
            return TitleOf(place, RecordOf<Layout>(bytes));
          }};
}

constexpr TitleKind kTitles[] = {
    Titled<KelvaneGolferLayout>(),    Titled<KelvaneHistoryLayout>(), Titled<KelvaneHeaderLayout>(),
    Titled<PlayerLayout>(),           Titled<RosterLayout>(),         Titled<TournamentLayout>(),
    Titled<TournamentPlayerLayout>(), Titled<TeamLayout>(),           Titled<CourseLayout>(),
    Titled<LeaguePlayerLayout>(),     Titled<LeagueControlLayout>(),  Titled<LeagueEventLayout>(),
    Titled<LeagueTeamLayout>()};

}  // namespace

std::string TournamentTitle(InstallReader& reader, std::string_view file) {
  const std::string control = WithExtension(file, ".Q9C");
  const auto tournament = reader.Read<TournamentLayout>(control, 1);
  return tournament ? TitleOf({reader, control, 1}, *tournament) : Stem(file);
}

std::string TitleOfRecord(InstallReader& reader, std::string_view file, std::int64_t record,
                          std::string_view bytes) {
  const auto layout = LayoutOfFile(FileNameOf(file));
  if (!layout) return {};
  for (const TitleKind& kind : kTitles) {
    if (kind.layout == layout->name) return kind.title({reader, file, record}, bytes);
  }
  return {};
}

}  // namespace golf
