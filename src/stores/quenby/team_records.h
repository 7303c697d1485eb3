#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "core/shared_state.h"
#include "stores/quenby/quenby_layouts.h"
#include "stores/quenby/tournament_control.h"

namespace golf {

// The teams of a tournament, one of its ".Q9T" file in a buffer: the first storey of a team. A
// round that is left out is the active round of the shared tournament. Errors as RosterPlayers.
class TeamRecords {
 public:
  explicit TeamRecords(SharedState& state) : state_(state) {}
  TeamRecords(const TeamRecords&) = delete;
  TeamRecords& operator=(const TeamRecords&) = delete;
  virtual ~TeamRecords() = default;

  void OpenTeamFile(std::int32_t tournament);
  void CloseTeamFile();
  // A failure is swallowed.
  void DeleteTeamFile(std::int32_t tournament);
  // Teams 1 to 199; false with nothing read for any other number.
  bool GetRecord(std::int32_t team);
  void SaveRecord();
  void SaveRecord(std::int32_t team);
  void BlankTeamRecord();
  std::int16_t TeamNumber() const { return number_; }

  // Where the tournament names teams by their players, the last names of the team's golfers in the
  // active round; the player buffers hold the last of them then.
  std::string TeamName();
  void SetTeamName(std::string_view value);
  std::string Sponsor() const;
  void SetSponsor(std::string_view value);
  std::string Flight(OptionalRound round = {});  // mends to "A"
  void SetFlight(OptionalRound round, std::string_view value);
  // A fraction of a day.
  float TeeTimeValue(OptionalRound round = {}) const;
  void SetTeeTimeValue(OptionalRound round, double value);
  std::string TeeTimeHHMMAMPM(OptionalRound round = {}) const;  // "05:00 pm"
  std::string TeeStartHole(OptionalRound round = {});           // mends: "01", "10B"
  void SetTeeStartHole(OptionalRound round, std::string_view value);
  std::string Cart1(OptionalRound round = {}) const;
  void SetCart1(OptionalRound round, std::string_view value);
  std::string Cart2(OptionalRound round = {}) const;
  void SetCart2(OptionalRound round, std::string_view value);
  std::int16_t CourseNumberPlayed(OptionalRound round = {}) const;
  void SetCourseNumberPlayed(OptionalRound round, double value);
  // Makes that course current in the shared course object.
  std::string CourseNamePlayed(OptionalRound round = {});

 protected:
  SharedState& state() const { return state_; }
  int RoundOr(OptionalRound round) const;

  // Reads the team's golfers in a round into the player buffers, in team order, and calls `action`
  // with the record number of each entry until it answers false. A team that the tournament does
  // not count has nobody.
  void ForEachGolfer(int round, const std::function<bool(std::int32_t record)>& action);

  // Set for all rounds when the buffer may hold something new.
  std::array<bool, kRounds> recalculate_{};
  std::array<bool, kRounds> recalculate_holes_{};

 private:
  void SetToRecalculate();
  std::string LastNamesOfPlayers();

  SharedState& state_;
  int file_ = 0;
  std::int16_t number_ = 0;
  Record<TeamLayout> record_;
};

}  // namespace golf
