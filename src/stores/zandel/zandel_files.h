#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/shared_state.h"
#include "stores/zandel/zandel_buffers.h"

namespace golf {

// Zandel's league files. They are opened under fixed numbers and read into the shared buffers. A
// division is named by its base: four characters for the league, the first of them "0", and the
// division's digit. All functions on files raise the errors of FileTable.

inline constexpr int kLeagueControlFile = 10;
inline constexpr int kLeaguePlayerFile = 11;
inline constexpr int kLeagueSubstituteFile = 12;
inline constexpr int kLeagueTeamFile = 13;
inline constexpr int kLeagueEventFile = 14;
inline constexpr int kLeagueListFile = 21;  // open only while leagues are listed

// Records below this one of the file of substitutes are never used.
inline constexpr int kFirstSubstitute = 6;

// Returns the base at the end of an item chosen from the list of leagues.
std::string LeagueBase(std::string_view chosen);

// Returns true if `base` has five characters and a division of this base exists.
bool LeagueExists(SharedState& state, std::string_view base);

// Open the files of a division and read the control record. OpenLeagueGolfers opens the control
// file, players and substitutes; OpenLeague opens all five. A missing file is created empty. Error
// 75 for a base that is not a valid file name.
void OpenLeagueGolfers(SharedState& state, std::string_view base);
void OpenLeague(SharedState& state, std::string_view base);

// Returns "Ann Smith", or "Golfer #12" for a golfer without a name whose ID is 12.
std::string LeagueGolferName(const Record<LeaguePlayerLayout>& player);

// Closes the files that OpenLeague opens.
void CloseLeague(SharedState& state);

// An entry of the list of leagues.
struct ListedLeague {
  std::string base;
  bool whole;  // true for the whole league, which has the base of its division 1
  Record<LeagueControlLayout> control;

  std::string Heading() const;
  // Returns the item for a list: the heading, blanks so that the base is not visible, the base.
  std::string Item() const;
};

// Closes all files of the process, then reads the control files of the Zandel folder in the order
// of their names. Each gives a division. A division 1 also gives the whole league, in front of it.
// The control buffer holds the last record read.
std::vector<ListedLeague> ListLeagues(SharedState& state);

}  // namespace golf
