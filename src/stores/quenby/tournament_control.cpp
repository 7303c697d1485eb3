#include "stores/quenby/tournament_control.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/text.h"
#include "stores/course/course_class.h"
#include "stores/quenby/team_records.h"
#include "stores/quenby/tournament_players.h"

namespace golf {
namespace {

constexpr std::int32_t kDefaults = -1;
constexpr std::string_view kCurrentVersion = "2005";
constexpr std::string_view kNewTeamNames = "Team #";

// Contains the points of a new tournament by score minus par, from -5 to 5.
constexpr int kNewPoints[] = {8, 8, 8, 8, 4, 2, 1, 0, 0, 0, 0};

// Returns the number at the start of a text, rounded to a whole number. Returns the replacement for
// a number outside 0 to 100.
std::int32_t Percentage(std::string_view text, double replacement) {
  return LimitNumber(text, 0, 100, replacement, replacement);
}

}  // namespace

std::string TournamentFileName(std::int32_t tournament, std::string_view extension) {
  return "X" + FormatNumber(tournament, "0000") + std::string(extension);
}

std::optional<std::int32_t> TournamentOfFile(std::string_view name) {
  constexpr double kHighest = 999999999;
  if (name.empty()) return std::nullopt;
  const double number = LeadingNumber(name.substr(1));
  if (!(number >= 0 && number <= kHighest)) return std::nullopt;
  const std::int32_t tournament = RoundToInt32(number);
  if (!EqualIgnoringCase(name, TournamentFileName(tournament, ".Q9C"))) return std::nullopt;
  return tournament;
}

std::string TournamentControl::ControlFile(std::int32_t tournament) const {
  return state_.StoreDataPath +
         (tournament == kDefaults ? "Default.Q9C" : TournamentFileName(tournament, ".Q9C"));
}

void TournamentControl::OpenTournamentControlFile(std::int32_t tournament) {
  state_.files.Close(file_);
  file_ = state_.files.FreeNumber();
  state_.files.Open(file_, ControlFile(tournament), TournamentLayout::kLength);
  id_ = tournament;
}

void TournamentControl::CloseTournamentControlFile() {
  state_.files.Close(std::exchange(file_, 0));
}

void TournamentControl::DeleteTournamentControlFile(std::int32_t tournament) {
  CloseTournamentControlFile();
  state_.files.DeleteFile(ControlFile(tournament));
}

void TournamentControl::GetRecord() {
  if (state_.files.Length(file_) == 0) return;
  state_.files.Read(file_, 1, record_);
  BringUpToDate();
}

// Fills the fields that a record of an older release lacks. Also does this in an empty buffer.
void TournamentControl::BringUpToDate() {
  if (record_.Get<"Version">() == kCurrentVersion) return;
  record_.Fill<"HandicapMax">(99);
  record_.Set<"Version">(std::string(kCurrentVersion));
  record_.Set<"TeamNamesMat">(std::string(kNewTeamNames));
  record_.Fill<"PlayerFlightRange">(0);
  record_.Fill<"TeamFlightRange">(0);
}

void TournamentControl::SaveRecord() { state_.files.Write(file_, 1, record_); }

void TournamentControl::FillNewTournament() {
  SetName("");
  SetNumRounds(1);
  SetNumTeams(10);
  SetNumPlayersPerTeam(4);
  SetNumFlights(4);
  SetNumTeamFlights(4);
  SetNumTeesMenPlay(1);
  SetNumTeesLadiesPlay(1);
  SetRoundType(18);
  SetIndextoHandicap(false);
  SetHandicapDecimalPlaces(false);
  SetScoreEntryTotal(false);
  SetRCGAESC(false);
  SetTeamHandicapOption(1);
  SetPointQuotaOption(1);
  record_.Set<"TeamHandicapPercent">(25);
  record_.Set<"PointQuotaFromHandicap">(36);
  SetPositionOption(1);
  SetActiveRound(1);
  for (int difference = -5; difference <= 5; ++difference) {
    SetPointsGiven(difference, kNewPoints[difference + 5]);
  }
  record_.Fill<"DateofRound">(std::trunc(state_.Now()));
  record_.Fill<"CourseNumberPlayed">(0);
  record_.Fill<"TeeNumberPlayed">(0);
  record_.Fill<"TeeHandicapPercent">(100);
  record_.Fill<"TeeHandicapAdjustment">(0);
  record_.Fill<"PlayerFlightRange">(0);
  record_.Fill<"TeamFlightRange">(0);
}

void TournamentControl::CreateBlankTournament(std::int32_t tournament) {
  FillNewTournament();
  BringUpToDate();
  if (state_.files.FileExists(ControlFile(kDefaults))) {
    OpenTournamentControlFile(kDefaults);
    GetRecord();
  }
  MakeTeams(tournament);
  SetActiveRound(1);
  SetActiveTrial(1);
  SetNumTrials(1);
  OpenTournamentControlFile(tournament);
}

void TournamentControl::MakeTeams(std::int32_t tournament) {
  TeamRecords& team = state_.Team1Records();
  team.OpenTeamFile(tournament);
  const std::string pattern = TeamNamesMat();
  const char* number_form = pattern.ends_with('#') ? "0" : " 0";
  for (int number = 1; number <= kMostTeams; ++number) {
    team.BlankTeamRecord();
    team.SetTeamName(pattern + FormatNumber(number, number_form));
    team.SaveRecord(number);
  }
}

std::string TournamentControl::Name() const { return std::string(Trim(record_.Get<"Name">())); }

void TournamentControl::SetName(std::string_view value) { record_.Set<"Name">(Trim(value)); }

void TournamentControl::SetNumTeams(double value) {
  SetInt16<"NumTeams">(LimitNumber(value, 1, kMostTeams));
}

int TournamentControl::TeeCount(int group) {
  return group == 0 ? Mended<"NumTeesMenPlay">(0, kTeeGroups)
                    : Mended<"NumTeesLadiesPlay">(0, kTeeGroups);
}

int TournamentControl::NumTeeGroups() { return std::max({TeeCount(0), TeeCount(1), 1}); }

std::int16_t TournamentControl::RoundType() {
  const int type = record_.Get<"RoundType">();
  if (type != 9 && type != 18) SetRoundType(18);
  return record_.Get<"RoundType">();
}

std::string TournamentControl::TeamHandicapPercent() const {
  return FormatNumber(record_.Get<"TeamHandicapPercent">(), "0");
}

void TournamentControl::SetTeamHandicapPercent(std::string_view value) {
  record_.Set<"TeamHandicapPercent">(static_cast<float>(Percentage(value, 25)));
}

std::string TournamentControl::PointQuotaFromHandicap() const {
  return FormatNumber(int{record_.Get<"PointQuotaFromHandicap">()}, "0");
}

void TournamentControl::SetPointQuotaFromHandicap(std::string_view value) {
  SetInt16<"PointQuotaFromHandicap">(Percentage(value, 36));
}

std::string TournamentControl::PointsGiven(int difference) const {
  return FormatNumber(int{record_.Get<"PointsGiven">(difference)}, "0");
}

void TournamentControl::SetPointsGiven(int difference, double value) {
  SetInt16<"PointsGiven">(value, difference);
}

std::string TournamentControl::DateofRound(OptionalRound round) {
  const int of = RoundOr(round);
  if (of < 1 || of > kRounds) return {};
  return FormatDay(record_.Get<"DateofRound">(of), state_.DateFormat);
}

void TournamentControl::SetDateofRound(OptionalRound round, DateValue value) {
  record_.Set<"DateofRound">({RoundOr(round)}, value);
}

std::int16_t TournamentControl::CourseNumberPlayed(OptionalRound round) {
  return record_.Get<"CourseNumberPlayed">(RoundOr(round));
}

void TournamentControl::SetCourseNumberPlayed(OptionalRound round, double value) {
  SetInt16<"CourseNumberPlayed">(value, RoundOr(round));
}

std::string TournamentControl::CourseNamePlayed(OptionalRound round) {
  state_.Course().GetRecord(CourseNumberPlayed(round));
  return state_.Course().Name();
}

std::string TournamentControl::TeeNamePlayed(int group, int n, OptionalRound round) {
  state_.Course().GetRecord(CourseNumberPlayed(round));
  return state_.Course().TeeName(int{TeeNumberPlayed(group, n, round)});
}

std::int16_t TournamentControl::TeeNumberPlayed(int group, int n, OptionalRound round) {
  return record_.Get<"TeeNumberPlayed">(group, n, RoundOr(round));
}

void TournamentControl::SetTeeNumberPlayed(int group, int n, OptionalRound round, double value) {
  record_.Set<"TeeNumberPlayed">({group, n, RoundOr(round)}, RoundToInt16(value));
}

float TournamentControl::TeeHandicapPercent(int group, int n, OptionalRound round) {
  return record_.Get<"TeeHandicapPercent">(group, n, RoundOr(round));
}

void TournamentControl::SetTeeHandicapPercent(int group, int n, OptionalRound round, double value) {
  const double percent = value > 200 || value < 1 ? 100 : value;
  record_.Set<"TeeHandicapPercent">({group, n, RoundOr(round)}, CheckedSingle(percent));
}

float TournamentControl::TeeHandicapAdjustment(int group, int n, OptionalRound round) {
  return record_.Get<"TeeHandicapAdjustment">(group, n, RoundOr(round));
}

void TournamentControl::SetTeeHandicapAdjustment(int group, int n, OptionalRound round,
                                                 std::string_view value) {
  record_.Set<"TeeHandicapAdjustment">({group, n, RoundOr(round)},
                                       CheckedSingle(LeadingNumber(value)));
}

std::string TournamentControl::ActiveRound() const {
  return std::to_string(record_.Get<"ActiveRound">());
}

void TournamentControl::SetActiveRound(double value) {
  const int rounds = record_.Get<"NumRounds">();
  SetInt16<"ActiveRound">(value < 1 || value > rounds ? 1 : value);
}

std::string TournamentControl::HandicapMax(int group) const {
  return FormatNumber(record_.Get<"HandicapMax">(group), "0.00");
}

void TournamentControl::SetHandicapMax(int group, double value) {
  record_.Set<"HandicapMax">({group}, CheckedSingle(value < 0 ? 0 : value));
}

std::string TournamentControl::TeamNamesMat() const {
  return std::string(Trim(record_.Get<"TeamNamesMat">()));
}

void TournamentControl::SetTeamNamesMat(std::string_view value) {
  const std::string_view pattern = Trim(value);
  record_.Set<"TeamNamesMat">(std::string(pattern.empty() ? kNewTeamNames : pattern));
}

void TournamentControl::SetPlayerFlightRange(int i, double value) {
  record_.Set<"PlayerFlightRange">({i}, RoundToInt32(value));
}

void TournamentControl::SetTeamFlightRange(int i, double value) {
  record_.Set<"TeamFlightRange">({i}, RoundToInt32(value));
}

std::int32_t TournamentControl::NumPlayersInTournament() {
  return state_.PlayerRecords().TourNumberofPlayersInTournament();
}

}  // namespace golf
