// This file reads and writes the file of a tournament's players and maintains the index by team.

#include "stores/quenby/tournament_players.h"

#include <algorithm>
#include <utility>

#include "core/general_routines.h"
#include "core/number_text.h"
#include "core/numbered_error.h"

namespace golf {
namespace {

[[noreturn]] void FailIndex() {
  throw NumberedError(ErrorNumber::kSubscript, "The index by teams has no such place.");
}

// Returns an element of a table that counts from 0. Raises error 9 if there is no such element.
template <class Vector>
auto& ElementOf(Vector& table, std::int64_t i) {
  if (i < 0 || i >= static_cast<std::int64_t>(table.size())) FailIndex();
  return table[static_cast<std::size_t>(i)];
}

template <class Tables>
auto& OfRound(Tables& tables, std::int64_t round) {
  return ElementOf(tables, round - 1);
}

}  // namespace

int TournamentPlayers::RoundOr(OptionalRound round) const {
  return state().TournamentRecord().RoundOr(round);
}

void TournamentPlayers::TourOpenTournamentFile(std::int32_t tournament) {
  FileTable& files = state().files;
  files.Close(tournament_file_);
  tournament_file_ = files.FreeNumber();
  files.Open(tournament_file_, state().StoreDataPath + TournamentFileName(tournament, ".Q9G"),
             TournamentPlayerLayout::kLength);
  index_stale_ = true;
}

void TournamentPlayers::TourCloseTournamentFile() {
  state().files.Close(std::exchange(tournament_file_, 0));
}

void TournamentPlayers::TourDeleteTournamentFile(std::int32_t tournament) {
  TourCloseTournamentFile();
  state().files.DeleteFile(state().StoreDataPath + TournamentFileName(tournament, ".Q9G"));
}

std::int32_t TournamentPlayers::TourFileLength() {
  return state().files.RecordCount<TournamentPlayerLayout>(tournament_file_);
}

std::int32_t TournamentPlayers::TourNumberofPlayersInTournament() {
  std::int32_t count = 0;
  const std::int32_t length = TourFileLength();
  for (std::int32_t record = 1; record <= length; ++record) {
    GetRecord(record, true);
    if (TourPlayerExists()) ++count;
  }
  return count;
}

std::int32_t TournamentPlayers::TourFindAvailableRecordInFile(std::int32_t start) {
  const std::int32_t length = TourFileLength();
  for (std::int32_t record = std::max(start, 1); record <= length; ++record) {
    GetRecord(record, true);
    if (!TourPlayerExists()) return record;
  }
  return std::max(length + 1, start);
}

bool TournamentPlayers::TourPlayerExists() {
  const int pointer = TourRosterRecordPointer();
  return pointer > 0 && pointer <= RosterFileLength();
}

bool TournamentPlayers::GetRecord(std::int32_t record, bool tournament) {
  if (!tournament) return ReadPlayer(record);
  if (record <= 0) return false;
  state().files.Read(tournament_file_, record, entry_);
  entry_held_ = record;
  recalculate_.fill(true);
  held_ = TourRosterRecordPointer();
  ReadPlayer(held_);
  entry_was_read_last_ = true;
  return true;
}

void TournamentPlayers::WriteEntry() {
  state().files.Write(tournament_file_, entry_held_, entry_);
  recalculate_.fill(true);
  index_stale_ = true;
}

void TournamentPlayers::SaveRecord() {
  if (entry_was_read_last_) {
    WriteEntry();
  } else {
    WritePlayer();
  }
}

void TournamentPlayers::SaveRecord(std::int32_t record) {
  SaveRecord(record, entry_was_read_last_);
}

void TournamentPlayers::SaveRecord(std::int32_t record, bool tournament) {
  held_ = record;
  if (tournament) entry_held_ = record;
  entry_was_read_last_ = tournament;
  SaveRecord();
}

std::int32_t TournamentPlayers::TourIndexNumberofPlayersInIndex() {
  RefreshIndex();
  return index_count_;
}

std::int32_t TournamentPlayers::TourIndex1stPlayerOnTeam(int team, OptionalRound round) {
  RefreshIndex();
  return ElementOf(OfRound(first_on_team_, RoundOr(round)), team);
}

std::int32_t TournamentPlayers::TourIndexPlayerbyTeam(std::int32_t i, OptionalRound round) const {
  const std::vector<std::int32_t>& players = OfRound(players_by_team_, RoundOr(round));
  if (i < 0 || i > index_length_) FailIndex();
  return i < static_cast<std::int32_t>(players.size()) ? players[static_cast<std::size_t>(i)] : 0;
}

void TournamentPlayers::RefreshIndex() {
  if (index_stale_) IndexPlayersByTeam();
}

void TournamentPlayers::IndexPlayersByTeam() {
  TournamentControl& tournament = state().TournamentRecord();
  const int teams = tournament.TeamCount();
  const std::int32_t length = TourFileLength();
  for (auto& table : players_by_team_) table.clear();
  for (auto& table : first_on_team_) table.assign(static_cast<std::size_t>(teams) + 1, 0);
  const int rounds = tournament.RoundCount();
  for (int round = 1; round <= rounds; ++round) IndexRound(round, teams, length);
  index_length_ = length;
  index_stale_ = false;
}

// Stores the records of the entries with a golfer in records_, sorted by team and position. Returns
// their number.
std::int32_t TournamentPlayers::SortedEntries(int round, int teams, std::int32_t length) {
  keys_.clear();
  records_.clear();
  for (std::int32_t record = 1; record <= length; ++record) {
    GetRecord(record, true);
    if (!TourPlayerExists()) continue;
    const int team = TourTeamOn(round) > teams ? 0 : TourTeamOn(round);
    keys_.push_back(static_cast<float>(team * 1000 + TourTeamPositionIn(round)));
    records_.push_back(record);
  }
  ShellSort(keys_, records_, keys_.size(), 0);
  return static_cast<std::int32_t>(records_.size());
}

void TournamentPlayers::IndexRound(int round, int teams, std::int32_t length) {
  index_count_ = SortedEntries(round, teams, length);
  OfRound(players_by_team_, round).assign(static_cast<std::size_t>(index_count_) + 1, 0);
  int team_before = -1;
  for (std::int32_t place = 1; place <= index_count_; ++place) {
    const std::int32_t record = ElementOf(records_, place - 1);
    GetRecord(record, true);
    ElementOf(OfRound(players_by_team_, round), place) = record;
    if (TourTeamOn(round) > teams) {
      SetTourTeamOn(round, 0);
      SaveRecord(record, true);
    }
    const int team = TourTeamOn(round);
    // No caller requests a team below 0.
    if (team != team_before && team >= 0) ElementOf(OfRound(first_on_team_, round), team) = place;
    team_before = team;
  }
}

}  // namespace golf
