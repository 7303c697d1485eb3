#pragma once

#include <vector>

#include "core/numbered_error.h"
#include "outlets/export/exporters.h"

namespace golf {

// Calculates and exports the results of a tournament: of the golfers and the teams in each round,
// and of the teams under each custom layout. Adds the errors of results that cannot be calculated
// to `faults`. Such a result has a row with the number of the error.
void ExportResults(ExportRun& run, const ExportedTournament& tournament,
                   std::vector<NumberedError>& faults);

}  // namespace golf
