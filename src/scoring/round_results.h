#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <variant>

#include "scoring/indexed.h"

namespace golf {

// What is a text in one case and a bare number in another.
using TextOrNumber = std::variant<std::string, std::int32_t>;

// What stands by hole has the sums behind holes 1 to 18.
inline constexpr int kFirstNine = 19;
inline constexpr int kSecondNine = 20;
inline constexpr int kWholeRound = 21;

// The holes that an entry of what stands by hole covers.
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

constexpr int NineOf(int hole) { return hole > 9 ? kSecondNine : kFirstNine; }

template <class T>
using ByHole = Indexed<T, 1, kWholeRound>;

// By score less par; what lies further off counts as the last difference.
inline constexpr int kMostDifference = 5;
template <class T>
using ByDifference = Indexed<T, -kMostDifference, kMostDifference>;

constexpr int LimitedDifference(int score, int par) {
  return std::clamp(score - par, -kMostDifference, kMostDifference);
}

// What is worked out of one round of one golfer. Singles are kept as singles: the steps in between
// decide strokes.
struct RoundResults {
  float gross_handicap = 0;
  float handicap = 0;
  std::int32_t adjusted = 0;
  ByHole<std::int32_t> gross;  // the sums only: hole scores are in the record
  ByHole<std::int32_t> net;
  float decimal_net = 0;  // of the round
  ByDifference<ByHole<std::int32_t>> gross_statistics;
  ByDifference<ByHole<std::int32_t>> net_statistics;
  ByHole<std::int32_t> gross_points;
  ByHole<std::int32_t> net_points;
  Indexed<float, 1, 3> quota_results;  // first nine, second nine, round
};

}  // namespace golf
