#include "outlets/record_titles.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "core/text.h"
#include "history/record_changes.h"
#include "outlets/file_kinds.h"
#include "outlets/free_records.h"

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

// NameOf returns the name in a record, also if the record is free.
std::string NameOf(const RecordPlace&, const Record<KelvaneGolferLayout>& golfer) {
  return GolferTitleLF(golfer.Get<"NameFirst">(), golfer.Get<"NameLast">(), golfer.Get<"IDNum">());
}

// Returns the name of the golfer whose record in the roster has the same number.
std::string NameOf(const RecordPlace& place, const Record<KelvaneHistoryLayout>&) {
  const std::string roster = WithExtension(place.file, ".kvg");
  const auto golfer = place.reader.Read<KelvaneGolferLayout>(roster, place.record);
  return golfer && !IsFree(*golfer) ? NameOf(place, *golfer) : std::string();
}

std::string NameOf(const RecordPlace& place, const Record<KelvaneHeaderLayout>&) {
  return Stem(place.file);
}

std::string NameOf(const RecordPlace&, const Record<PlayerLayout>& golfer) {
  return GolferTitleLF(golfer.Get<"NameFirst">(), golfer.Get<"NameLast">(), golfer.Get<"IDNum">());
}

std::string NameOf(const RecordPlace& place, const Record<RosterLayout>& roster) {
  const std::string name = WithoutPadding(roster.Get<"ClubName">());
  return name.empty() ? Numbered("Roster", place.record) : name;
}

std::string NameOf(const RecordPlace& place, const Record<TournamentLayout>& tournament) {
  const std::string name = WithoutPadding(tournament.Get<"Name">());
  return name.empty() ? Stem(place.file) : name;
}

std::string NameOf(const RecordPlace& place, const Record<TournamentPlayerLayout>& entry) {
  const std::int64_t pointer = entry.Get<"TourRosterRecordPointer">();
  const std::string folder(place.file.substr(0, place.file.rfind('/') + 1));
  const auto golfer = place.reader.Read<PlayerLayout>(folder + "QBGOLFER.Q9D", pointer);
  std::string name = golfer && !IsFree(*golfer) ? NameOf(place, *golfer) : std::string();
  if (name.empty()) name = Numbered("Golfer of record", pointer);
  return name + " (" + TournamentTitle(place.reader, place.file) + ")";
}

std::string NameOf(const RecordPlace&, const Record<TeamLayout>& team) {
  return WithoutPadding(team.Get<"TeamName">());
}

std::string NameOf(const RecordPlace& place, const Record<CourseLayout>& course) {
  const std::string name = WithoutPadding(course.Get<"Name">());
  return name.empty() ? Numbered("Course", place.record) : name;
}

std::string NameOf(const RecordPlace&, const Record<LeaguePlayerLayout>& player) {
  return GolferTitleLF(player.Get<"FirstName">(), player.Get<"LastName">(),
                       player.Get<"GolferID">());
}

std::string NameOf(const RecordPlace& place, const Record<LeagueControlLayout>& league) {
  const std::string name = WithoutPadding(league.Get<"LeagueName">());
  return name.empty() ? Stem(place.file) : name;
}

std::string NameOf(const RecordPlace& place, const Record<LeagueEventLayout>&) {
  return LeagueTitle(place.reader, place.file) + ", " + Numbered("event", place.record);
}

std::string NameOf(const RecordPlace& place, const Record<LeagueTeamLayout>&) {
  return LeagueTitle(place.reader, place.file) + ", " + Numbered("team", place.record);
}

struct TitleKind {
  std::string_view layout;
  bool (*is_free)(std::string_view bytes);
  std::string (*name)(const RecordPlace&, std::string_view bytes);
};

template <class Layout>
constexpr TitleKind Titled() {
  return {Layout::kName, [](std::string_view bytes) { return IsFree(RecordOf<Layout>(bytes)); },
          [](const RecordPlace& place, std::string_view bytes) {
            return NameOf(place, RecordOf<Layout>(bytes));
          }};
}

constexpr TitleKind kTitles[] = {
    Titled<KelvaneGolferLayout>(),    Titled<KelvaneHistoryLayout>(), Titled<KelvaneHeaderLayout>(),
    Titled<PlayerLayout>(),           Titled<RosterLayout>(),         Titled<TournamentLayout>(),
    Titled<TournamentPlayerLayout>(), Titled<TeamLayout>(),           Titled<CourseLayout>(),
    Titled<LeaguePlayerLayout>(),     Titled<LeagueControlLayout>(),  Titled<LeagueEventLayout>(),
    Titled<LeagueTeamLayout>()};

// Returns null if records of this file have no names.
const TitleKind* KindOf(std::string_view file) {
  const auto layout = LayoutOfFile(FileNameOf(file));
  if (!layout) return nullptr;
  const auto kind = std::find_if(std::begin(kTitles), std::end(kTitles),
                                 [&](const auto& known) { return known.layout == layout->name; });
  return kind == std::end(kTitles) ? nullptr : kind;
}

}  // namespace

std::string TournamentTitle(InstallReader& reader, std::string_view file) {
  const std::string control = WithExtension(file, ".Q9C");
  const auto tournament = reader.Read<TournamentLayout>(control, 1);
  return tournament ? NameOf({reader, control, 1}, *tournament) : Stem(file);
}

std::string LeagueTitle(InstallReader& reader, std::string_view file) {
  const std::string control = WithExtension(file, ".ZL8");
  const auto league = reader.Read<LeagueControlLayout>(control, 1);
  return league ? NameOf({reader, control, 1}, *league) : Stem(file);
}

std::string TitleOfRecord(InstallReader& reader, std::string_view file, std::int64_t record,
                          std::string_view bytes) {
  const TitleKind* const kind = KindOf(file);
  return kind == nullptr || kind->is_free(bytes) ? "" : kind->name({reader, file, record}, bytes);
}

std::string NameInRecord(InstallReader& reader, std::string_view file, std::int64_t record,
                         std::string_view bytes) {
  const TitleKind* const kind = KindOf(file);
  return kind == nullptr ? "" : kind->name({reader, file, record}, bytes);
}

}  // namespace golf
