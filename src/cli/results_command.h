#pragma once

#include <vector>

#include "core/numbered_error.h"
#include "core/shared_state.h"

namespace golf {

enum class ResultsForm { kTable, kCsv, kJson };

// Each writes one kind of results of the tournament that is open, for its active round. A result
// whose calculation ends in an error is told on standard error and added to `faults`; the others
// follow.
void ShowPlayers(SharedState& state, ResultsForm form, std::vector<NumberedError>& faults);

}  // namespace golf
