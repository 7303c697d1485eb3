#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "stores/quenby/roster_players.h"
#include "stores/quenby/tournament_control.h"

namespace golf {

// The golfers of a tournament, the ".Q9G" file, with one entry in a second buffer beside the
// golfer's. It is the second storey of a player. An omitted round is the active round of the shared
// tournament. "Mends" and errors as for RosterPlayers.
class TournamentPlayers : public RosterPlayers {
 public:
  using RosterPlayers::RosterPlayers;

  void TourOpenTournamentFile(std::int32_t tournament);
  void TourCloseTournamentFile();
  // Deletes the file. A failure raises no error.
  void TourDeleteTournamentFile(std::int32_t tournament);
  std::int32_t TourFileLength();
  // Returns the number of live entries. The buffers hold the last record.
  std::int32_t TourNumberofPlayersInTournament();
  // Returns the first free entry from `start` on. If there is none, returns the record behind the
  // end of the file, or `start` if that is higher.
  std::int32_t TourFindAvailableRecordInFile(std::int32_t start);
  // Returns true if the entry refers to a record within the roster file.
  bool TourPlayerExists();

  // Reads an entry and its golfer if `tournament` is true, else a golfer. Returns false and reads
  // nothing for a number below 1.
  bool GetRecord(std::int32_t record, bool tournament);
  // Writes the buffer of the last read or save, to the same record or to `record`.
  void SaveRecord();
  void SaveRecord(std::int32_t record);
  // Writes the entry if `tournament` is true, else the golfer. The number of an entry also becomes
  // the golfer's record number until the next read.
  void SaveRecord(std::int32_t record, bool tournament);
  void SaveRecord(bool) = delete;  // a flag is not a record number
  void TourBlankPlayerRecord();

  // The index of each round: the entries in the order of teams and places. The first two functions
  // rebuild an outdated index; the third uses the index as it is. Places and teams out of range
  // raise error 9. 0 means no entry.
  std::int32_t TourIndexNumberofPlayersInIndex();
  std::int32_t TourIndex1stPlayerOnTeam(int team, OptionalRound round = {});
  std::int32_t TourIndexPlayerbyTeam(std::int32_t i, OptionalRound round = {}) const;
  // Rebuilds the index. An entry on a team above NumTeams is removed from it, also in the file. The
  // buffers hold the last record read.
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
  // "Y" or "1" sets the lock, any other text clears it.
  void SetTourLockFlag(OptionalRound round, std::string_view value);
  bool TourScoreTransferredtoKV(int round) const;
  void SetTourScoreTransferredtoKV(int round, bool value);

  std::string TourFlight(OptionalRound round = {});  // mends to "A"
  void SetTourFlight(OptionalRound round, std::string_view value);
  std::int16_t TourGroupTee(OptionalRound round = {});  // mends to 1
  void SetTourGroupTee(OptionalRound round, double value);
  // The handicap index, the gross handicap and the quota of the round: strokes, strokes and points.
  // A negative index or handicap is a plus one: TourIndex shows it with a plus sign, TourIndexValue
  // with a minus sign.
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
  // Stores strokes. Lowers `value` in place to at most 250.
  void SetTourScoreAdjusted(OptionalRound round, double& value);
  // Stores the strokes of a hole 1 to 18, or the total for 21. Any other hole stores nothing.
  void SetTourScoreGross(int hole, OptionalRound round, double value);

  // Returns the entry itself, for calculations with its numbers. Nothing is mended.
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
  std::int32_t index_length_ = -1;  // the highest valid place
  // By round. Places count from 1; 0 means no entry. A list ends with its last entry.
  std::array<std::vector<std::int32_t>, kRounds> players_by_team_;
  std::array<std::vector<std::int32_t>, kRounds> first_on_team_;
  std::vector<float> keys_;
  std::vector<std::int32_t> records_;
};

}  // namespace golf
