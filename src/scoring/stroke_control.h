#pragma once

#include <cstdint>

#include "scoring/indexed.h"

namespace golf {

// Limits each hole score of a round by the golfer's handicap, and adds up the original and the
// capped scores. All values are in strokes. A negative handicap is a plus handicap. A caller sets
// the scheme, the handicap and all 18 pars and scores before each calculation. Scores and pars are
// 16-bit numbers. A score of 0 means that the hole was not played, and stays 0. The functions raise
// error 9 for a hole outside 1 to 18, a sum outside 1 to 3 or a custom maximum outside 1 to 4.
//
// The schemes are 0 for no cap, 9 and 18 for the table scheme for nine and eighteen holes, 19 and
// 28 for the par-plus scheme for nine and eighteen holes, 100 for custom maxima by par, 119 for an
// allowance over the whole round, and 219 and 319 for fixed tables. Any other scheme leaves the
// capped scores of the last calculation unchanged.
class ESCClass {
 public:
  void Setflag(std::int32_t scheme) { scheme_ = scheme; }
  void SetHandicap(float handicap) { handicap_ = handicap; }
  void SetHoleScore(int hole, std::int32_t score) { scores_[hole] = score; }
  void SetHolePar(int hole, std::int32_t par) { pars_[hole] = par; }
  // Sets the maximum score of a par 3, 4, 5 or 6. `i` is 1, 2, 3 or 4.
  void SetCustomMax(int i, std::int32_t maximum) { custom_maxima_[i] = maximum; }

  // Returns the capped score of the round.
  std::int32_t CalculateESC();

  std::int32_t HoleAdjScore(int hole) const { return adjusted_[hole]; }
  // Return the sum of the first nine for 1, of the second nine for 2, and of the round for 3.
  std::int32_t Gross(int i) const { return gross_[i]; }
  std::int32_t AdjGross(int i) const { return adjusted_gross_[i]; }

 private:
  void CapByTable();
  void CapByPar();
  void CapByAllowance();
  void Cap(int hole, std::int32_t maximum);

  std::int32_t scheme_ = 0;
  float handicap_ = 0;
  Indexed<std::int32_t, 1, 18> scores_;
  Indexed<std::int32_t, 1, 18> pars_;
  Indexed<std::int32_t, 1, 18> adjusted_;
  Indexed<std::int32_t, 1, 3> gross_;
  Indexed<std::int32_t, 1, 3> adjusted_gross_;
  Indexed<std::int32_t, 1, 4> custom_maxima_;
};

}  // namespace golf
