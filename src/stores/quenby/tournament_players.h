#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "stores/quenby/roster_players.h"
#include "stores/quenby/tournament_control.h"

namespace golf {

// Reads and writes the golfers of a tournament, in its ".Q9G" file. This class adds a second buffer
// to the buffer of the golfer. The second buffer contains one entry. An omitted round is the active
// round of the shared tournament. "Corrects" and the errors have the same meaning as in
// RosterPlayers.
class TournamentPlayers : public RosterPlayers {
 public:
  using RosterPlayers::RosterPlayers;

  void TourOpenTournamentFile(std::int32_t tournament);
  void TourCloseTournamentFile();
  // Deletes the file. Ignores an error.
  void TourDeleteTournamentFile(std::int32_t tournament);
  std::int32_t TourFileLength();
  // Returns the number of entries with a golfer. Afterwards the buffers contain the last record
  // read.
  std::int32_t TourNumberofPlayersInTournament();
  // Returns the first free entry from `start` on. Returns the record after the end of the file, or
  // `start` if that is higher, if no entry is free.
  std::int32_t TourFindAvailableRecordInFile(std::int32_t start);
  // Returns true if the entry refers to a record within the roster file.
  bool TourPlayerExists();

  // Reads an entry and its golfer if `tournament` is true, and otherwise only a golfer. Returns
  // false and reads nothing if the number is below 1.
  bool GetRecord(std::int32_t record, bool tournament);
  // Write the buffer of the last read or save, to the same record or to `record`.
  void SaveRecord();
  void SaveRecord(std::int32_t record);
  // Writes the entry if `tournament` is true, and otherwise the golfer. The number of an entry also
  // becomes the record number of the golfer until the next read.
  void SaveRecord(std::int32_t record, bool tournament);
  void SaveRecord(bool) = delete;  // a flag is not a record number
  void TourBlankPlayerRecord();

  // The following functions use the index of each round. The index contains the entries sorted by
  // team and position. The first two functions rebuild an outdated index. The third uses the index
  // without a rebuild. A place or team out of range raises error 9. The result 0 means no entry.
  std::int32_t TourIndexNumberofPlayersInIndex();
  std::int32_t TourIndex1stPlayerOnTeam(int team, OptionalRound round = {});
  std::int32_t TourIndexPlayerbyTeam(std::int32_t i, OptionalRound round = {}) const;
  // Rebuilds the index. Removes an entry from its team if the team is above NumTeams, also in the
  // file. Afterwards the buffers contain the last record read.
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
  // Sets the lock for "Y" or "1", and clears it for any other text.
  void SetTourLockFlag(OptionalRound round, std::string_view value);
  bool TourScoreTransferredtoKV(int round) const;
  void SetTourScoreTransferredtoKV(int round, bool value);

  std::string TourFlight(OptionalRound round = {});  // corrects to "A"
  void SetTourFlight(OptionalRound round, std::string_view value);
  std::int16_t TourGroupTee(OptionalRound round = {});  // corrects to 1
  void SetTourGroupTee(OptionalRound round, double value);
  // Return or set the handicap index and the gross handicap of the round in strokes, and the quota
  // in points. A negative index or handicap is a plus index or handicap. TourIndex shows it with a
  // plus sign, TourIndexValue with a minus sign.
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
  // Stores a score in strokes. Also lowers the caller's variable to 250 if it is higher.
  void SetTourScoreAdjusted(OptionalRound round, double& value);
  // Stores the strokes of hole 1 to 18, or the total if `hole` is 21. Does nothing for any other
  // hole.
  void SetTourScoreGross(int hole, OptionalRound round, double value);

  // Returns the entry itself, for calculations with its numbers. Its values are not corrected.
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
  // Lists by round. Places count from 1, and 0 means no entry. A list ends with its last entry.
  std::array<std::vector<std::int32_t>, kRounds> players_by_team_;
  std::array<std::vector<std::int32_t>, kRounds> first_on_team_;
  std::vector<float> keys_;
  std::vector<std::int32_t> records_;
};

}  // namespace golf
