#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace golf {

// A measure ranks players or teams. The lowest gross or net score has the first place, and so have
// the highest points and the highest quota result.
enum class Measure { kGross, kNet, kPoints, kQuota };
inline constexpr Measure kMeasures[] = {Measure::kGross, Measure::kNet, Measure::kPoints,
                                        Measure::kQuota};
constexpr bool RanksLowestFirst(Measure measure) {
  return measure == Measure::kGross || measure == Measure::kNet;
}

// Holds a value for each constant of an enumeration. The constants are 0 to kCount - 1.
template <class Enum, std::size_t kCount, class T>
class ByEnum {
 public:
  T& operator[](Enum constant) { return values_[static_cast<std::size_t>(constant)]; }
  const T& operator[](Enum constant) const { return values_[static_cast<std::size_t>(constant)]; }

 private:
  std::array<T, kCount> values_{};
};
template <class T>
using ByMeasure = ByEnum<Measure, std::size(kMeasures), T>;

// A tiebreak orders equal gross or net scores. It compares the scores of the last 9, 6, 3 and 1
// holes, or those of single holes: in the order of their handicap strokes, from the last hole to
// the first one, or from the first hole to the last one. Equal points and equal quota results stay
// equal, since there are no keys for them.
enum class Tiebreak { kNone, kUsga, kHandicap, k18To1, k1To18 };
// Contains the names of the tiebreaks in that order.
inline constexpr std::string_view kTiebreakNames[] = {"none", "usga", "handicap", "18-to-1",
                                                      "1-to-18"};

// Contains what a ranking compares. Equal values are ordered by their keys, the lowest text first.
// See tiebreak_keys.h.
struct RankedScore {
  std::optional<double> value;  // no value if there is no score
  std::string tiebreak;         // empty if the tie is not broken
};

// Contains the place of one of the ranked scores, identified by its index. A score without a value
// has no place.
struct RankedPlace {
  std::size_t index;
  std::optional<int> place;
};

// Ranks scores. Returns them in the order of their places. Scores with the same place keep their
// order, and scores without a value come last. `position_option` is that of the tournament: 1
// numbers the places as in 1, 2, 2, 3, and 2 numbers them as in 1, 2, 2, 4.
std::vector<RankedPlace> RankScores(std::span<const RankedScore* const> scores, bool lowest_first,
                                    int position_option);

}  // namespace golf
