#pragma once

#include <array>

#include "core/resume_next.h"
#include "stores/kelvane/kelvane_buffers.h"
#include "stores/quenby/roster_players.h"

namespace golf {

// Selects the items of a Kelvane golfer that are copied to Quenby in addition to those always
// copied.
struct GolferToQbChoice {
  bool halve_handicap = false;   // halves handicap and index of 18 holes, for rounds of 9
  bool double_handicap = false;  // doubles handicap and index of 9 holes, for rounds of 18
  // Selects the optional items by row of the screen's grid, starting with row 2. True copies the
  // item.
  static constexpr int kRows = 16;
  std::array<bool, kRows + 1> item{};
};

// Copies the golfer of `from` into the player in the buffer of `to`. The roster header of `from`
// determines whether the handicap replaces the index. Other fields stay unchanged. HandicapText is
// trimmed in `from`. Calls `next` once for each value. Halving and doubling make a negative index
// positive.
void CopyGolferToQb(KelvaneBuffers& from, const GolferToQbChoice& choice, RosterPlayers& to,
                    const ResumeNext& next);

}  // namespace golf
