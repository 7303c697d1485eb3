#include "stores/quenby/team_records.h"

#include <bit>
#include <cmath>
#include <utility>

#include "core/number_text.h"
#include "core/text.h"
#include "stores/course/course_class.h"
#include "stores/quenby/tournament_players.h"

namespace golf {
namespace {

constexpr std::string_view kNamedByPlayers = "[Player's Last Names]";
constexpr float kNewTeeTime = std::bit_cast<float>(std::uint32_t{0x3F355555});  // 17/24 of a day

}  // namespace

int TeamRecords::RoundOr(OptionalRound round) const {
  return state_.TournamentRecord().RoundOr(round);
}

void TeamRecords::OpenTeamFile(std::int32_t tournament) {
  state_.files.Close(file_);
  file_ = state_.files.FreeNumber();
  state_.files.Open(file_, state_.StoreDataPath + TournamentFileName(tournament, ".Q9T"),
                    TeamLayout::kLength);
}

void TeamRecords::CloseTeamFile() { state_.files.Close(std::exchange(file_, 0)); }

void TeamRecords::DeleteTeamFile(std::int32_t tournament) {
  CloseTeamFile();
  state_.files.DeleteFile(state_.StoreDataPath + TournamentFileName(tournament, ".Q9T"));
}

bool TeamRecords::GetRecord(std::int32_t team) {
  // Team 200 is refused, although a tournament may have 200 teams.
  if (team <= 0 || team >= kMostTeams) return false;
  state_.files.Read(file_, team, record_);
  number_ = static_cast<std::int16_t>(team);
  SetToRecalculate();
  return true;
}

void TeamRecords::SaveRecord() {
  state_.files.Write(file_, number_, record_);
  SetToRecalculate();
}

void TeamRecords::SaveRecord(std::int32_t team) {
  number_ = CheckedInt16(team);
  SaveRecord();
}

void TeamRecords::BlankTeamRecord() {
  for (const Field& field : TeamLayout::kFields) {
    const bool second_of_pair = field.name.empty() && field.rank == 1;
    if (!second_of_pair) FillField(field, record_.MutableBytes(), 0);
  }
  for (int round = 1; round <= kRounds; ++round) {
    record_.Set<"Flight">({round}, "A");
    record_.Set<"TeeTimeValue">({round}, kNewTeeTime);
    record_.Set<"TeeStartHole">({round}, "1");
  }
}

void TeamRecords::SetToRecalculate() {
  recalculate_.fill(true);
  recalculate_holes_.fill(true);
}

void TeamRecords::ForEachGolfer(int round, const std::function<bool(std::int32_t record)>& action) {
  if (number_ < 1 || number_ > state_.TournamentRecord().TeamCount()) return;
  if (round < 1 || round > kRounds) return;
  TournamentPlayers& player = state_.PlayerRecords();
  const std::int32_t count = player.TourIndexNumberofPlayersInIndex();
  const std::int32_t first = player.TourIndex1stPlayerOnTeam(number_, round);
  for (std::int32_t place = first; place >= 1 && place <= count; ++place) {
    const std::int32_t record = player.TourIndexPlayerbyTeam(place, round);
    player.GetRecord(record, true);
    if (player.TourTeamOn(round) != number_ || !action(record)) return;
  }
}

std::string TeamRecords::LastNamesOfPlayers() {
  std::string names;
  bool first = true;
  ForEachGolfer(RoundOr({}), [&](std::int32_t) {
    names += (std::exchange(first, false) ? "" : ", ") + state_.PlayerRecords().NameLast();
    return true;
  });
  return names;
}

std::string TeamRecords::TeamName() {
  std::string names;
  if (EqualIgnoringCase(state_.TournamentRecord().TeamNamesMat(), kNamedByPlayers)) {
    names = LastNamesOfPlayers();
  }
  return names.empty() ? std::string(Trim(record_.Get<"TeamName">())) : names;
}

void TeamRecords::SetTeamName(std::string_view value) { record_.Set<"TeamName">(Trim(value)); }
std::string TeamRecords::Sponsor() const { return std::string(Trim(record_.Get<"Sponsor">())); }
void TeamRecords::SetSponsor(std::string_view value) { record_.Set<"Sponsor">(Trim(value)); }

std::string TeamRecords::Flight(OptionalRound round) {
  const int of = RoundOr(round);
  const char flight = record_.Get<"Flight">(of)[0];
  if (flight < 'A' || flight > 'Z') record_.Set<"Flight">({of}, "A");
  return record_.Get<"Flight">(of);
}
void TeamRecords::SetFlight(OptionalRound round, std::string_view value) {
  record_.Set<"Flight">({RoundOr(round)}, UpperCase(value));
}

float TeamRecords::TeeTimeValue(OptionalRound round) const {
  return record_.Get<"TeeTimeValue">(RoundOr(round));
}
void TeamRecords::SetTeeTimeValue(OptionalRound round, double value) {
  record_.Set<"TeeTimeValue">({RoundOr(round)}, CheckedSingle(std::abs(value - std::trunc(value))));
}
std::string TeamRecords::TeeTimeHHMMAMPM(OptionalRound round) const {
  const double time = TeeTimeValue(round);
  if (!IsDate(time)) return {};
  return LowerCase(FormatPicture(CivilFromDate(time), "hh:mm tt"));
}

std::string TeamRecords::TeeStartHole(OptionalRound round) {
  const int of = RoundOr(round);
  std::string hole = UpperCase(Trim(record_.Get<"TeeStartHole">(of)));
  if (LeadingNumber(hole) < 1) hole = "1";
  if (LeadingNumber(hole) <= 9 && !hole.starts_with('0')) hole.insert(0, "0");
  record_.Set<"TeeStartHole">({of}, hole);
  return std::string(Trim(record_.Get<"TeeStartHole">(of)));
}
void TeamRecords::SetTeeStartHole(OptionalRound round, std::string_view value) {
  record_.Set<"TeeStartHole">({RoundOr(round)}, value);
}

std::string TeamRecords::Cart1(OptionalRound round) const {
  return std::string(Trim(record_.Get<"Cart1">(RoundOr(round))));
}
void TeamRecords::SetCart1(OptionalRound round, std::string_view value) {
  record_.Set<"Cart1">({RoundOr(round)}, value);
}
std::string TeamRecords::Cart2(OptionalRound round) const {
  return std::string(Trim(record_.Get<"Cart2">(RoundOr(round))));
}
void TeamRecords::SetCart2(OptionalRound round, std::string_view value) {
  record_.Set<"Cart2">({RoundOr(round)}, value);
}

std::int16_t TeamRecords::CourseNumberPlayed(OptionalRound round) const {
  return record_.Get<"CourseNumberPlayed">(RoundOr(round));
}
void TeamRecords::SetCourseNumberPlayed(OptionalRound round, double value) {
  record_.Set<"CourseNumberPlayed">({RoundOr(round)}, RoundToInt16(value));
}
std::string TeamRecords::CourseNamePlayed(OptionalRound round) {
  state_.Course().GetRecord(CourseNumberPlayed(round));
  return state_.Course().Name();
}

}  // namespace golf
