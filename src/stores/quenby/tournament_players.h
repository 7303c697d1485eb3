#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "stores/quenby/roster_players.h"
#include "stores/quenby/tournament_control.h"

namespace golf {

// The golfers of a tournament, one entry of its ".Q9G" file in a second buffer beside the roster's:
// the second storey of a player. A round that is left out is the active round of the shared
// tournament. Errors as RosterPlayers.
class TournamentPlayers : public RosterPlayers {
 public:
  using RosterPlayers::RosterPlayers;

  void TourOpenTournamentFile(std::int32_t tournament);
  void TourCloseTournamentFile();
  // A failure is swallowed.
  void TourDeleteTournamentFile(std::int32_t tournament);
  std::int32_t TourFileLength();
  // Live entries; the buffers hold the last record.
  std::int32_t TourNumberofPlayersInTournament();
  // The first free entry from `start` on, else behind the file, else `start`.
  std::int32_t TourFindAvailableRecordInFile(std::int32_t start);
  // The entry points at a golfer within the roster file.
  bool TourPlayerExists();

  // With `tournament`, an entry and its golfer; without, a golfer. False with nothing read for a
  // number below 1.
  bool GetRecord(std::int32_t record, bool tournament);
  // Writes the buffer that was worked on last, to the record it came from.
  void SaveRecord();
  void SaveRecord(std::int32_t record);
  // Writes the buffer asked for. A number given for an entry is held for the golfer as well, until
  // the next read.
  void SaveRecord(std::int32_t record, bool tournament);
  void SaveRecord(bool) = delete;  // a flag is no record number
  void TourBlankPlayerRecord();

  // The entries in the order of teams and places, for each round. The first two bring an index that
  // is out of date up to date, the third takes it as it is.
  std::int32_t TourIndexNumberofPlayersInIndex();
  std::int32_t TourIndex1stPlayerOnTeam(int team, OptionalRound round = {});
  std::int32_t TourIndexPlayerbyTeam(std::int32_t i, OptionalRound round = {}) const;
  // Rebuilds the index; an entry on a team above NumTeams is taken off it, in the file. The buffers
  // hold the last record read.
  void IndexPlayersByTeam();

  std::int16_t TourRosterRecordPointer() const { return entry_.Get<"TourRosterRecordPointer">(); }
  void SetTourRosterRecordPointer(double value);
  std::int16_t TourTeamOn(OptionalRound round = {}) const;
  void SetTourTeamOn(OptionalRound round, double value);
  std::int16_t TourTeamPositionIn(OptionalRound round = {}) const;
  void SetTourTeamPositionIn(OptionalRound round, double value);
  std::int16_t TourTeamOnInTrial(int trial) const { return entry_.Get<"TourTeamOnInTrial">(trial); }
  void SetTourTeamOnInTrial(int trial, double value);

  int TourLockFlag(OptionalRound round = {}) const;
  // "Y" or "1" locks.
  void SetTourLockFlag(OptionalRound round, std::string_view value);
  bool TourScoreTransferredtoKV(int round) const;
  void SetTourScoreTransferredtoKV(int round, bool value);

  std::string TourFlight(OptionalRound round = {});  // mends to "A"
  void SetTourFlight(OptionalRound round, std::string_view value);
  std::int16_t TourGroupTee(OptionalRound round = {});  // mends to 1
  void SetTourGroupTee(OptionalRound round, double value);
  std::string TourIndex(OptionalRound round = {}) const;
  std::string TourIndexValue(OptionalRound round = {}) const;
  void SetTourIndex(OptionalRound round, double value);
  void SetTourGrossHandicap(OptionalRound round, double value);
  void SetTourQuota(OptionalRound round, double value);

  std::string TourReportFlags(OptionalRound round = {}) const;  // all 12 characters
  void SetTourReportFlags(OptionalRound round, std::string_view value);
  std::string TourCartString(OptionalRound round = {}) const;
  int TourCart(OptionalRound round = {}) const;
  void SetTourCart(OptionalRound round, double value);
  std::int16_t TourPreferredTimeNumber(OptionalRound round = {}) const;
  std::string TourPreferredTime(OptionalRound round = {}) const;
  void SetTourPreferredTime(OptionalRound round, std::string_view value);
  std::string TourGroupText(OptionalRound round = {}) const;
  void SetTourGroupText(OptionalRound round, std::string_view value);
  std::string TourMiscInTourText(int n) const;
  void SetTourMiscInTourText(int n, std::string_view value);

  std::int16_t TourPutts(OptionalRound round = {}) const;
  void SetTourPutts(OptionalRound round, double value);  // at most 200
  std::int16_t TourFairways(OptionalRound round = {}) const;
  void SetTourFairways(OptionalRound round, double value);
  std::int16_t TourGreens(OptionalRound round = {}) const;
  void SetTourGreens(OptionalRound round, double value);
  std::string TourEarnings(OptionalRound round = {}) const;
  void SetTourEarnings(OptionalRound round, std::int64_t value);  // the amount times 10000
  // At most 250, for the caller too.
  void SetTourScoreAdjusted(OptionalRound round, double& value);
  // Holes 1 to 18, and 21 for a total; any other hole stores nothing.
  void SetTourScoreGross(int hole, OptionalRound round, double value);

  // The entry as it stands, for whoever calculates with its numbers; nothing is mended.
  const Record<TournamentPlayerLayout>& StoredEntry() const { return entry_; }

 protected:
  int RoundOr(OptionalRound round) const;

  Record<TournamentPlayerLayout> entry_;

 private:
  void RefreshIndex();
  void IndexRound(int round, int teams, std::int32_t length);
  std::int32_t SortedEntries(int round, int teams, std::int32_t length);
  void WriteEntry();

  int tournament_file_ = 0;
  std::int32_t entry_held_ = 0;
  bool index_stale_ = true;
  std::int32_t index_count_ = 0;
  std::int32_t index_length_ = -1;  // the highest place that may be asked for
  // By round; places count from 1, and 0 stands for nobody. A list ends with its last golfer.
  std::array<std::vector<std::int32_t>, kRounds> players_by_team_;
  std::array<std::vector<std::int32_t>, kRounds> first_on_team_;
  std::vector<float> keys_;
  std::vector<std::int32_t> records_;
};

}  // namespace golf
