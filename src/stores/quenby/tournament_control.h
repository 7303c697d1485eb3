#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/general_routines.h"
#include "core/number_text.h"
#include "core/shared_state.h"
#include "stores/quenby/quenby_layouts.h"

namespace golf {

// Holds a round, 1 to 7. An omitted round is the active round of the shared tournament object.
using OptionalRound = std::optional<int>;

// Returns the name of a tournament's file without its folder, for example "X0012.Q9C".
std::string TournamentFileName(std::int32_t tournament, std::string_view extension);
// Returns the tournament whose control file has this name. Returns no value if no control file can
// have this name.
std::optional<std::int32_t> TournamentOfFile(std::string_view name);

// Reads and writes the control record of a tournament in StoreDataPath. One control file is open at
// a time. This is the base class of TournamentClass. A getter marked "corrects" replaces a stored
// value that is out of its range in the buffer, and the next save writes it. An index out of its
// range raises error 9. A number too large for its field raises error 6. Functions on files raise
// the errors of FileTable.
class TournamentControl {
 public:
  explicit TournamentControl(SharedState& state) : state_(state) {}
  TournamentControl(const TournamentControl&) = delete;
  TournamentControl& operator=(const TournamentControl&) = delete;
  virtual ~TournamentControl() = default;

  // Opens the control file of a tournament, or the file of defaults for -1. Creates a missing file.
  void OpenTournamentControlFile(std::int32_t tournament);
  void CloseTournamentControlFile();
  // Fills the buffer for a new tournament, writes its team file and opens its control file. Does
  // not write the control record.
  void CreateBlankTournament(std::int32_t tournament);
  void DeleteTournamentControlFile(std::int32_t tournament);
  // Reads the control record. Leaves the buffer unchanged if the file is empty. Adds the missing
  // fields to a record of an older release, in the buffer only.
  void GetRecord();
  void SaveRecord();
  std::int32_t IDNum() const { return id_; }

  std::string Name() const;
  void SetName(std::string_view value);

  // These getters return decimal text and correct the stored value. The ranges are: rounds 1 to 5,
  // teams 1 to 200, flights 1 to 26, tees 0 to 5.
  std::string NumRounds() { return std::to_string(RoundCount()); }
  void SetNumRounds(double value) { SetInt16<"NumRounds">(value); }
  std::string NumTeams() { return std::to_string(TeamCount()); }
  void SetNumTeams(double value);
  std::string NumFlights() { return std::to_string(FlightCount()); }
  void SetNumFlights(double value) { SetInt16<"NumFlights">(value); }
  std::string NumTeamFlights() { return std::to_string(Mended<"NumTeamFlights">(1, kMostFlights)); }
  void SetNumTeamFlights(double value) { SetInt16<"NumTeamFlights">(value); }
  std::string NumTeesMenPlay() { return std::to_string(TeeCount(0)); }
  void SetNumTeesMenPlay(double value) { SetInt16<"NumTeesMenPlay">(value); }
  std::string NumTeesLadiesPlay() { return std::to_string(TeeCount(1)); }
  void SetNumTeesLadiesPlay(double value) { SetInt16<"NumTeesLadiesPlay">(value); }
  // These functions return the same values as numbers. They correct the stored value too.
  int RoundCount() { return Mended<"NumRounds">(1, 5); }
  int TeamCount() { return Mended<"NumTeams">(1, kMostTeams); }
  int FlightCount() { return Mended<"NumFlights">(1, kMostFlights); }
  int TeeCount(int group);  // 0: men, 1: ladies
  // Returns the larger of the two tee counts, but at least 1.
  int NumTeeGroups();

  std::int16_t NumPlayersPerTeam() const { return record_.Get<"NumPlayersPerTeam">(); }
  void SetNumPlayersPerTeam(double value) { SetInt16<"NumPlayersPerTeam">(value); }
  // These getters correct a value to the lowest one of its range, and RoundType to 18.
  std::int16_t RoundType();  // 18 or 9
  void SetRoundType(double value) { SetInt16<"RoundType">(value); }
  std::int16_t TeamHandicapOption() { return MendedOption<"TeamHandicapOption">(1, 3); }
  void SetTeamHandicapOption(double value) { SetInt16<"TeamHandicapOption">(value); }
  std::int16_t PointQuotaOption() { return MendedOption<"PointQuotaOption">(1, 3); }
  void SetPointQuotaOption(double value) { SetInt16<"PointQuotaOption">(value); }
  std::int16_t PositionOption() { return MendedOption<"PositionOption">(1, 2); }
  void SetPositionOption(double value) { SetInt16<"PositionOption">(value); }
  std::int16_t PlayerFlightsDeterminedBy() {
    return MendedOption<"PlayerFlightsDeterminedBy">(0, 4);
  }
  void SetPlayerFlightsDeterminedBy(double value) { SetInt16<"PlayerFlightsDeterminedBy">(value); }
  std::int16_t TeamFlightsDeterminedBy() { return MendedOption<"TeamFlightsDeterminedBy">(0, 4); }
  void SetTeamFlightsDeterminedBy(double value) { SetInt16<"TeamFlightsDeterminedBy">(value); }

  // These getters return 1 if the option is on, and otherwise 0. HandicapDecimalPlaces returns 2 or
  // 0.
  int IndextoHandicap() const { return IsOn<"IndextoHandicap">() ? 1 : 0; }
  void SetIndextoHandicap(bool on) { SetFlag<"IndextoHandicap">(on); }
  int HandicapDecimalPlaces() const { return IsOn<"HandicapDecimalPlaces">() ? 2 : 0; }
  void SetHandicapDecimalPlaces(bool on) { SetFlag<"HandicapDecimalPlaces">(on); }
  int ScoreEntryTotal() const { return IsOn<"ScoreEntryTotal">() ? 1 : 0; }
  void SetScoreEntryTotal(bool on) { SetFlag<"ScoreEntryTotal">(on); }
  int RCGAESC() const { return IsOn<"RCGAESC">() ? 1 : 0; }
  void SetRCGAESC(bool on) { SetFlag<"RCGAESC">(on); }
  int ShowTeamsonSheet() const { return IsOn<"ShowTeamsonSheet">() ? 1 : 0; }
  void SetShowTeamsonSheet(bool on) { SetFlag<"ShowTeamsonSheet">(on); }

  // The getters return text in the format "0". If a set value is outside 0 to 100,
  // SetTeamHandicapPercent stores 25 percent instead, and SetPointQuotaFromHandicap stores 36
  // points.
  std::string TeamHandicapPercent() const;
  void SetTeamHandicapPercent(std::string_view value);
  std::string PointQuotaFromHandicap() const;
  void SetPointQuotaFromHandicap(std::string_view value);
  std::string PointsGiven(int difference) const;  // by score minus par, -5 to 5
  void SetPointsGiven(int difference, double value);

  // Returns the date in the date format of the shared state. Returns an empty text if the round is
  // outside 1 to 7.
  std::string DateofRound(OptionalRound round = {});
  void SetDateofRound(OptionalRound round, DateValue value);
  std::int16_t CourseNumberPlayed(OptionalRound round = {});
  void SetCourseNumberPlayed(OptionalRound round, double value);
  // Return the name, and make the course current in the shared course object.
  std::string CourseNamePlayed(OptionalRound round = {});
  std::string TeeNamePlayed(int group, int n, OptionalRound round = {});

  std::int16_t TeeNumberPlayed(int group, int n, OptionalRound round = {});
  void SetTeeNumberPlayed(int group, int n, OptionalRound round, double value);
  // Return or set the percentage of the handicap that counts. The setter replaces a value above 200
  // or below 1 by 100.
  float TeeHandicapPercent(int group, int n, OptionalRound round = {});
  void SetTeeHandicapPercent(int group, int n, OptionalRound round, double value);
  // Return or set the adjustment of the handicap in strokes. The parameter of the setter is text.
  float TeeHandicapAdjustment(int group, int n, OptionalRound round = {});
  void SetTeeHandicapAdjustment(int group, int n, OptionalRound round, std::string_view value);

  std::string ActiveRound() const;
  // Sets the active round. Sets it to 1 if the value is outside 1 to the stored number of rounds.
  void SetActiveRound(double value);
  int RoundOr(OptionalRound round) const { return round.value_or(record_.Get<"ActiveRound">()); }

  std::int16_t ActiveTrial() const { return record_.Get<"ActiveTrial">(); }
  void SetActiveTrial(double value) { SetInt16<"ActiveTrial">(value); }
  std::int16_t NumTrials() const { return record_.Get<"NumTrials">(); }
  void SetNumTrials(double value) { SetInt16<"NumTrials">(value); }
  std::int16_t TeeTimeStartOption() const { return record_.Get<"TeeTimeStartOption">(); }
  void SetTeeTimeStartOption(double value) { SetInt16<"TeeTimeStartOption">(value); }
  std::int16_t TeeTimeIncEveryXTeams() const { return record_.Get<"TeeTimeIncEveryXTeams">(); }
  void SetTeeTimeIncEveryXTeams(double value) { SetInt16<"TeeTimeIncEveryXTeams">(value); }
  float TeeTimeInc() const { return record_.Get<"TeeTimeInc">(); }
  void SetTeeTimeInc(double value) { record_.Set<"TeeTimeInc">(CheckedSingle(value)); }

  std::int16_t PeoriaHole(int hole) const { return record_.Get<"PeoriaHole">(hole); }
  void SetPeoriaHole(int hole, double value) { SetInt16<"PeoriaHole">(value, hole); }
  std::int16_t SheetColumnSorted(int i) const { return record_.Get<"SheetColumnSorted">(i); }
  void SetSheetColumnSorted(int i, double value) { SetInt16<"SheetColumnSorted">(value, i); }
  bool SheetColumnSortedHow(int i) const { return record_.Get<"SheetColumnSortedHow">(i) != 0; }
  void SetSheetColumnSortedHow(int i, bool value) {
    record_.Set<"SheetColumnSortedHow">({i}, value ? -1 : 0);
  }
  std::int16_t TeamSheetColumnSorted(int i) const {
    return record_.Get<"TeamSheetColumnSorted">(i);
  }
  void SetTeamSheetColumnSorted(int i, double value) {
    SetInt16<"TeamSheetColumnSorted">(value, i);
  }
  bool TeamSheetColumnSortedHow(int i) const {
    return record_.Get<"TeamSheetColumnSortedHow">(i) != 0;
  }
  void SetTeamSheetColumnSortedHow(int i, bool value) {
    record_.Set<"TeamSheetColumnSortedHow">({i}, value ? -1 : 0);
  }

  // Return or set the highest handicap of a group, in strokes. The getter returns text in the
  // format "0.00". The setter replaces a negative value by 0.
  std::string HandicapMax(int group) const;
  void SetHandicapMax(int group, double value);
  // Return or set the pattern of new team names. The setter replaces an empty pattern by "Team #".
  std::string TeamNamesMat() const;
  void SetTeamNamesMat(std::string_view value);
  std::int32_t PlayerFlightRange(int i) const { return record_.Get<"PlayerFlightRange">(i); }
  void SetPlayerFlightRange(int i, double value);
  std::int32_t TeamFlightRange(int i) const { return record_.Get<"TeamFlightRange">(i); }
  void SetTeamFlightRange(int i, double value);

  // Returns the number of entries with a golfer in the open player file. Afterwards the player
  // buffers contain the last record read.
  std::int32_t NumPlayersInTournament();

  // Returns the record itself, for calculations with its numbers. Its values are not corrected.
  const Record<TournamentLayout>& Stored() const { return record_; }

 protected:
  SharedState& state() const { return state_; }

 private:
  std::string ControlFile(std::int32_t tournament) const;
  void BringUpToDate();
  void FillNewTournament();
  void MakeTeams(std::int32_t tournament);

  template <FieldName kName>
  int Mended(int low, int high);
  template <FieldName kName>
  std::int16_t MendedOption(int low, int high);
  template <FieldName kName>
  void SetInt16(double value);
  template <FieldName kName>
  void SetInt16(double value, int index);
  template <FieldName kName>
  bool IsOn() const {
    return record_.Get<kName>() != 0;
  }
  template <FieldName kName>
  void SetFlag(bool on) {
    record_.Set<kName>(on ? -1 : 0);
  }

  SharedState& state_;
  int file_ = 0;
  std::int32_t id_ = 0;
  Record<TournamentLayout> record_;
};

template <FieldName kName>
int TournamentControl::Mended(int low, int high) {
  double value = record_.Get<kName>();
  const std::int32_t mended = LimitNumber(value, low, high);
  record_.Set<kName>(static_cast<std::int16_t>(mended));
  return mended;
}

// Replaces a value outside the range by `low`.
template <FieldName kName>
std::int16_t TournamentControl::MendedOption(int low, int high) {
  const std::int16_t value = record_.Get<kName>();
  if (value < low || value > high) record_.Set<kName>(static_cast<std::int16_t>(low));
  return record_.Get<kName>();
}

template <FieldName kName>
void TournamentControl::SetInt16(double value) {
  record_.Set<kName>(RoundToInt16(value));
}

template <FieldName kName>
void TournamentControl::SetInt16(double value, int index) {
  record_.Set<kName>({index}, RoundToInt16(value));
}

}  // namespace golf
