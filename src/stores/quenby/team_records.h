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

// Reads and writes the teams of a tournament, in its ".Q9T" file. The buffer contains one team. An
// omitted round is the active round of the shared tournament. "Corrects" and the errors have the
// same meaning as in RosterPlayers.
class TeamRecords {
 public:
  explicit TeamRecords(SharedState& state) : state_(state) {}
  TeamRecords(const TeamRecords&) = delete;
  TeamRecords& operator=(const TeamRecords&) = delete;
  virtual ~TeamRecords() = default;

  void OpenTeamFile(std::int32_t tournament);
  void CloseTeamFile();
  // Deletes the file. Ignores an error.
  void DeleteTeamFile(std::int32_t tournament);
  // Reads a team, 1 to 199. Returns false and reads nothing for any other number.
  bool GetRecord(std::int32_t team);
  void SaveRecord();
  void SaveRecord(std::int32_t team);
  void BlankTeamRecord();
  std::int16_t TeamNumber() const { return number_; }

  // Returns the name of the team. Returns the last names of its golfers in the active round if the
  // tournament names teams by their players. In that case the player buffers contain another entry
  // afterwards.
  std::string TeamName();
  void SetTeamName(std::string_view value);
  std::string Sponsor() const;
  void SetSponsor(std::string_view value);
  std::string Flight(OptionalRound round = {});  // corrects to "A"
  void SetFlight(OptionalRound round, std::string_view value);
  // Return or set the tee time as a fraction of a day. The setter stores only the fraction of
  // `value`, without its sign.
  float TeeTimeValue(OptionalRound round = {}) const;
  void SetTeeTimeValue(OptionalRound round, double value);
  std::string TeeTimeHHMMAMPM(OptionalRound round = {}) const;  // for example "05:00 pm"
  std::string TeeStartHole(OptionalRound round = {});  // for example "01" or "10B"; corrects
  void SetTeeStartHole(OptionalRound round, std::string_view value);
  std::string Cart1(OptionalRound round = {}) const;
  void SetCart1(OptionalRound round, std::string_view value);
  std::string Cart2(OptionalRound round = {}) const;
  void SetCart2(OptionalRound round, std::string_view value);
  std::int16_t CourseNumberPlayed(OptionalRound round = {}) const;
  void SetCourseNumberPlayed(OptionalRound round, double value);
  // Returns the name of the course, and makes that course current in the shared course object.
  std::string CourseNamePlayed(OptionalRound round = {});

 protected:
  SharedState& state() const { return state_; }
  int RoundOr(OptionalRound round) const;

  // Reads the entries of the team's golfers in a round into the player buffers, in team order.
  // Calls `action` with the record number of each entry until it returns false. A team above the
  // tournament's number of teams has no golfers.
  void ForEachGolfer(int round, const std::function<bool(std::int32_t record)>& action);

  // These tables have an element per round. It is true if the results must be calculated again.
  // Every read and save sets all elements.
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
