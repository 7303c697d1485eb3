#include "stores/kelvane/kelvane_halves.h"

#include "core/number_text.h"
#include "stores/kelvane/kelvane_scores.h"

namespace golf {
namespace {

constexpr std::uint8_t kTeeOfHalves = 1;

}  // namespace

bool KVHalfWaits(SharedState& state) { return state.Kelvane().golfer.Get<"HalfScore">() != 0; }

void KeepKVHalf(SharedState& state, const NineHoleHalf& half) {
  const std::uint8_t score = KVByte(half.score);
  const std::uint8_t slope = KVByte(half.slope);
  const float rating = CheckedSingle(half.rating);
  auto& golfer = state.Kelvane().golfer;
  golfer.Set<"HalfCourse">(0);
  golfer.Set<"HalfTee">(kTeeOfHalves);
  golfer.Set<"HalfRating">(rating);
  golfer.Set<"HalfSlope">(slope);
  golfer.Set<"HalfScore">(score);
}

void JoinKVHalves(SharedState& state, const NineHoleHalf& half) {
  auto& golfer = state.Kelvane().golfer;
  const std::uint8_t score = KVByte(half.score + golfer.Get<"HalfScore">());
  // This is the mean of the slopes. The 0.1 rounds up a mean that ends in .5.
  const std::uint8_t slope = KVByte((half.slope + golfer.Get<"HalfSlope">()) / 2 + 0.1);
  const float rating = CheckedSingle(half.rating + double{golfer.Get<"HalfRating">()});
  auto& entry = state.Kelvane().score;
  entry.Set<"CourseNumber">(0);
  entry.Set<"TeeNumber">(kTeeOfHalves);
  entry.Set<"Adjusted">(score);
  entry.Set<"Rating">(rating);
  entry.Set<"Slope">(slope);
  entry.Set<"ScoreType">(kKelvaneTwoNines);
  golfer.Set<"HalfScore">(0);
}

}  // namespace golf
