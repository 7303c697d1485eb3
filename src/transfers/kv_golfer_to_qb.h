#pragma once

#include <array>

#include "core/resume_next.h"
#include "stores/kelvane/kelvane_buffers.h"
#include "stores/quenby/roster_players.h"

namespace golf {

// What of a Kelvane golfer goes to Quenby beyond the items that always do.
struct GolferToQbChoice {
  bool halve_handicap = false;   // of 18 holes, for rounds of 9
  bool double_handicap = false;  // of 9 holes, for rounds of 18
  // The optional items, by the rows of the screen's grid; true copies.
  static constexpr int kRows = 16;
  std::array<bool, kRows + 1> item{};
};

// Copies the golfer of `from`, by the roster header of `from`, into the player in the buffer of
// `to`. What is not copied stays as it was. The handicap's text comes back trimmed in `from`. Each
// value set is a statement of the run.
void CopyGolferToQb(KelvaneBuffers& from, const GolferToQbChoice& choice, RosterPlayers& to,
                    const ResumeNext& next);

}  // namespace golf
