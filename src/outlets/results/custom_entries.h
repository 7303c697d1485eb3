#pragma once

#include <string>
#include <vector>

#include "core/shared_state.h"
#include "outlets/results/result_entry.h"
#include "scoring/layouts/custom_standings.h"

namespace golf {

// Returns the key that orders the team among equal sums of the active round. It is empty for
// Tiebreak::kNone.
std::string KeyOf(const CustomStanding& standing, Tiebreak tiebreak);

// Converts the results of teams under a layout to entries. Their gross scores are the sums of the
// counted balls, and their points are the sums of the points of these balls. The entries have no
// other measures. The shown round is the active round of the open tournament, and the totals are
// those of the rounds up to it. `standings` is the result of `WorkOut` of `tables`.
std::vector<ResultEntry> CustomEntries(SharedState& state, const CustomStandings& tables,
                                       const std::vector<CustomStanding>& standings,
                                       Tiebreak tiebreak, bool with_cards);

}  // namespace golf
