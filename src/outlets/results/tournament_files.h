#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/shared_state.h"

namespace golf {

struct TournamentTitle {
  std::int32_t number = 0;
  std::string title;  // its name, the date of round 1 and its number, in code page 1252
};

// Returns Quenby's tournaments in the order of their control files. The title of a tournament whose
// control file cannot be read says so. Sets StoreDataPath to Quenby's folder. Raises error 76 if
// this folder is missing.
std::vector<TournamentTitle> TournamentTitles(SharedState& state);

// Checks the lengths of the files from which results are calculated. Returns a sentence about the
// first one that is missing or has an incomplete record. Returns an empty text if there is none.
std::string FaultOfTournamentFiles(SharedState& state, std::int32_t tournament);

}  // namespace golf
