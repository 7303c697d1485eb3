#include "scoring/tiebreak_keys.h"

#include <algorithm>
#include <numeric>
#include <span>

#include "core/number_text.h"
#include "scoring/checked_sums.h"
#include "scoring/round_results.h"

namespace golf {
namespace {

constexpr std::string_view kThreeDigits = "000";
constexpr std::string_view kTwoDigits = "00";

// Describes some of the last holes and their share of the handicap. The shares are exactly these
// decimals, not the fractions that they approximate.
struct LastHoles {
  int first;
  int last;
  double share;
  std::string_view pattern;
};

constexpr LastHoles kOfEighteen[] = {{kSecondNine, kSecondNine, 0.5, kThreeDigits},
                                     {13, 18, 0.33333, kThreeDigits},
                                     {16, 18, 0.16666, kTwoDigits},
                                     {18, 18, 0.05555, kTwoDigits}};
constexpr LastHoles kOfNine[] = {
    {4, 9, 0.66666, kThreeDigits}, {7, 9, 0.33333, kTwoDigits}, {9, 9, 0.11111, kTwoDigits}};

// This is added to a share so that a share ending in .5 rounds up.
constexpr double kShareNudge = 0.0001;

}  // namespace

std::string LastHolesKey(int round_type, std::int32_t total, const ScoreOfHole& score,
                         std::optional<float> handicap) {
  std::string key = FormatNumber(total, kThreeDigits);
  const auto parts = round_type == 9 ? std::span<const LastHoles>(kOfNine) : kOfEighteen;
  for (const LastHoles& part : parts) {
    std::int32_t figure = 0;
    for (int hole = part.first; hole <= part.last; ++hole) figure = AddWhole(figure, score(hole));
    if (handicap) figure = RoundToInt32(figure - (*handicap * part.share + kShareNudge));
    key += "," + FormatNumber(figure, part.pattern);
  }
  return key;
}

std::string HoleByHoleKey(std::int32_t total, const std::vector<int>& holes,
                          const ScoreOfHole& score, std::string_view total_pattern) {
  std::string key = FormatNumber(total, total_pattern);
  for (const int hole : holes) key += "," + FormatNumber(score(hole), kTwoDigits);
  return key;
}

std::vector<int> HolesForward(int round_type) {
  std::vector<int> holes(static_cast<std::size_t>(round_type));
  std::iota(holes.begin(), holes.end(), 1);
  return holes;
}

std::vector<int> HolesBackward(int round_type) {
  std::vector<int> holes = HolesForward(round_type);
  std::reverse(holes.begin(), holes.end());
  return holes;
}

}  // namespace golf
