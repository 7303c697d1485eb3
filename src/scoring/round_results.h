#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <variant>

#include "scoring/indexed.h"

namespace golf {

// Holds a result that is a text in some cases and a number in others.
using TextOrNumber = std::variant<std::string, std::int32_t>;
// Returns the text, or the number as a text.
inline std::string TextOf(const TextOrNumber& value) {
  const auto* const text = std::get_if<std::string>(&value);
  return text != nullptr ? *text : std::to_string(std::get<std::int32_t>(value));
}

// A table by hole contains these sums after holes 1 to 18.
inline constexpr int kFirstNine = 19;
inline constexpr int kSecondNine = 20;
inline constexpr int kWholeRound = 21;

// Some results exist only for the first nine, the second nine and the round.
inline constexpr int kRoundParts = 3;

// Describes the holes that an entry of a table by hole covers, including `first` and `last`.
struct CoveredHoles {
  int first;
  int last;
};
constexpr CoveredHoles HolesOf(int entry) {
  if (entry == kFirstNine) return {1, 9};
  if (entry == kSecondNine) return {10, 18};
  if (entry == kWholeRound) return {1, 18};
  return {entry, entry};
}

// A score of a hole that was not finished is at least this. It counts as a score, and is shown as
// "F".
inline constexpr int kUnfinished = 99;

constexpr int NineOf(int hole) { return hole > 9 ? kSecondNine : kFirstNine; }

template <class T>
using ByHole = Indexed<T, 1, kWholeRound>;

// ByDifference is a table by score minus par, -5 to 5. A larger difference counts as 5, and a
// smaller one as -5.
inline constexpr int kMostDifference = 5;
template <class T>
using ByDifference = Indexed<T, -kMostDifference, kMostDifference>;

constexpr int LimitedDifference(int score, int par) {
  return std::clamp(score - par, -kMostDifference, kMostDifference);
}

// Contains the calculated results of one golfer's round, in strokes and points. A negative handicap
// is a plus handicap. The float type is required, since its rounding at each step can change a
// stroke.
struct RoundResults {
  float gross_handicap = 0;
  float handicap = 0;
  std::int32_t adjusted = 0;
  ByHole<std::int32_t> gross;  // sums only; the record contains the scores of the holes
  ByHole<std::int32_t> net;
  float decimal_net = 0;  // of the round
  ByDifference<ByHole<std::int32_t>> gross_statistics;
  ByDifference<ByHole<std::int32_t>> net_statistics;
  ByHole<std::int32_t> gross_points;
  ByHole<std::int32_t> net_points;
  Indexed<float, 1, kRoundParts> quota_results;
};

}  // namespace golf
