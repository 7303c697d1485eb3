#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/shared_state.h"

namespace golf {

// Returns the numbers of Quenby's tournaments in the order of their control files. Sets
// StoreDataPath to Quenby's folder. Raises error 76 if this folder is missing.
std::vector<std::int32_t> TournamentNumbers(SharedState& state);

struct TournamentTitle {
  std::int32_t number = 0;
  std::string title;  // its name, the date of round 1 and its number, in code page 1252
};

// Returns the titles of these tournaments, and sets StoreDataPath and raises errors in the same
// way. The title of a tournament whose control file cannot be read says so.
std::vector<TournamentTitle> TournamentTitles(SharedState& state);

// Describes a file in Quenby's folder.
struct TournamentFile {
  std::string name;         // without the folder
  bool is_required = true;  // false for the team file, since a tournament may have no teams
  bool needs_record = false;
};

// Returns the files from which the results of a tournament are calculated.
std::vector<TournamentFile> FilesOfTournament(std::int32_t tournament);

// Checks the lengths of these files. Returns a sentence about the first one that is missing or
// damaged, or an empty text if there is none.
std::string FaultOfTournamentFiles(SharedState& state, std::int32_t tournament);

}  // namespace golf
