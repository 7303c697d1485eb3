#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/shared_state.h"
#include "stores/zandel/zandel_buffers.h"

namespace golf {

// Zandel's league files, opened under fixed numbers and read into the shared buffers. A division is
// named by its base: four characters for the league, of which the first is "0", and the division's
// digit. All raise the numbered errors of FileTable.

inline constexpr int kLeagueControlFile = 10;
inline constexpr int kLeaguePlayerFile = 11;
inline constexpr int kLeagueSubstituteFile = 12;
inline constexpr int kLeagueTeamFile = 13;
inline constexpr int kLeagueEventFile = 14;
inline constexpr int kLeagueListFile = 21;  // open only while leagues are listed

// In the file of substitutes the records below are never touched.
inline constexpr int kFirstSubstitute = 6;

// The base at the end of a league as it was chosen from the list.
std::string LeagueBase(std::string_view chosen);

// True if `base` is five characters long and a division has it.
bool LeagueExists(SharedState& state, std::string_view base);

// Opens the files of a division with its golfers (control file, players, substitutes), or all five,
// and reads the control record. What is not there comes into being empty. Error 75 for a base that
// cannot be the name of a file.
void OpenLeagueGolfers(SharedState& state, std::string_view base);
void OpenLeague(SharedState& state, std::string_view base);

// "Ann Smith", or "Golfer #12" by his ID where he has no name.
std::string LeagueGolferName(const Record<LeaguePlayerLayout>& player);

// Closes the files that OpenLeague opens.
void CloseLeague(SharedState& state);

// An entry of the list of leagues.
struct ListedLeague {
  std::string base;
  bool whole;  // the league as a whole, for which its division 1 stands; else a division
  Record<LeagueControlLayout> control;

  std::string Heading() const;
  // As a list shows it: the heading, blanks that push the key out of sight, the base.
  std::string Item() const;
};

// Closes all files of the process, then reads the leagues of the Zandel folder: for each control
// file, in the order of the names, the league if it is its division 1, and the division. The
// control buffer holds the last record that was read.
std::vector<ListedLeague> ListLeagues(SharedState& state);

}  // namespace golf
