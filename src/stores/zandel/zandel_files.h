#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/shared_state.h"
#include "stores/zandel/zandel_buffers.h"

namespace golf {

// These functions open and read Zandel's league files. The files have fixed numbers and are read
// into the shared buffers. The name of a division is its base. A base consists of four characters
// for the league, of which the first is "0", and the digit of the division. All functions on files
// raise the errors of FileTable.

inline constexpr int kLeagueControlFile = 10;
inline constexpr int kLeaguePlayerFile = 11;
inline constexpr int kLeagueSubstituteFile = 12;
inline constexpr int kLeagueTeamFile = 13;
inline constexpr int kLeagueEventFile = 14;
inline constexpr int kLeagueListFile = 21;  // open only while ListLeagues runs

// The records of the substitute file below this number are never used.
inline constexpr int kFirstSubstitute = 6;

// Returns the base at the end of an item chosen from the list of leagues.
std::string LeagueBase(std::string_view chosen);

// Returns true if `base` has five characters and a division with this base exists.
bool LeagueExists(SharedState& state, std::string_view base);

// Open the files of a division and read the control record. OpenLeagueGolfers opens the control
// file, the players and the substitutes. OpenLeague opens all five files. A missing file is created
// empty. Both functions raise error 75 if the base is not a valid file name.
void OpenLeagueGolfers(SharedState& state, std::string_view base);
void OpenLeague(SharedState& state, std::string_view base);

// Returns "Ann Smith", or a text such as "Golfer #12" with the ID if the name is blank.
std::string LeagueGolferName(const Record<LeaguePlayerLayout>& player);
// Returns "Smith, Ann", or the name as above if a part of it is blank.
std::string LeagueGolferNameLF(const Record<LeaguePlayerLayout>& player);

// Returns true if the golfer has a last name. A record without one is free.
bool HasLastName(const Record<LeaguePlayerLayout>& player);

// Closes the files that OpenLeague opened.
void CloseLeague(SharedState& state);

// Contains an entry of the list of leagues.
struct ListedLeague {
  std::string base;
  bool whole;  // true for the whole league, whose base is that of its division 1
  Record<LeagueControlLayout> control;

  std::string Heading() const;
  // Returns the list item, which consists of the heading, blanks that keep the base out of sight,
  // and the base.
  std::string Item() const;
};

// Closes all files of the process, and then reads the control files of the Zandel folder in the
// order of their names. Returns an entry for each division. The entry of a division 1 follows an
// entry for the whole league. The control buffer contains the last record read.
std::vector<ListedLeague> ListLeagues(SharedState& state);

}  // namespace golf
