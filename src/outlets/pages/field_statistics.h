#pragma once

#include <string>
#include <vector>

#include "scoring/tournament_class.h"

namespace golf {

// Contains the statistics of a tournament's players in one round. All texts are those of the
// members of TournamentClass.
struct FieldStatistics {
  struct Hole {
    int hole = 0;
    double against_par = 0;  // the average of gross score minus par
  };
  std::vector<std::string> headings;
  std::vector<std::vector<std::string>> rows;  // of the holes, the two nines and the round
  std::vector<Hole> holes;                     // those with scores
};

// Calculates the statistics of the active round. The result has no rows if nobody has a score on a
// hole. Leaves out the players whose results cannot be calculated. Raises the errors of FileTable.
FieldStatistics ReadFieldStatistics(TournamentClass& tournament);

}  // namespace golf
