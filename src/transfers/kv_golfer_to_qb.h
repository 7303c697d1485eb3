#pragma once

#include <array>

#include "core/resume_next.h"
#include "core/shared_state.h"

namespace golf {

// What of a Kelvane golfer goes to Quenby beyond the items that always do.
struct GolferToQbChoice {
  bool halve_handicap = false;   // of 18 holes, for rounds of 9
  bool double_handicap = false;  // of 9 holes, for rounds of 18
  // The optional items, by the rows of the screen's grid; true copies.
  static constexpr int kRows = 16;
  std::array<bool, kRows + 1> item{};
};

// Copies the golfer in the Kelvane buffer into the shared player's: what is not copied stays as it
// was. Each value set is a statement of the run.
void CopyGolferToQb(SharedState& state, const GolferToQbChoice& choice, const ResumeNext& next);

}  // namespace golf
