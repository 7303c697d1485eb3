#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "scoring/layouts/report_layout.h"
#include "scoring/team/team_round.h"
#include "stores/quenby/quenby_layouts.h"

namespace golf {

// The balls of teams as tables, for reports that count them by a layout. Five blocks of 18 holes
// stand one behind the other, a round in each, and hole 19 is the first one of the second block. A
// block is 22 columns wide: the holes, and the four sums.

inline constexpr int kBlocks = 5;
inline constexpr int kBlockWidth = 22;
inline constexpr int kTableColumns = kBlocks * kBlockWidth;
inline constexpr int kSumsOfBlock = 4;

// 0 for a hole that no block has.
constexpr int HoleColumn(int hole) {
  if (hole < 1 || hole > kLayoutHoles) return 0;
  const int in_block = (hole - 1) % kHoles + 1;
  return (hole - 1) / kHoles * kBlockWidth + in_block + (in_block > 9 ? 1 : 0);
}
// The columns of a block's first nine, second nine, total, and total of all blocks so far, `sum`
// being 1 to 4.
constexpr int SumColumn(int block, int sum) {
  constexpr int kInBlock[] = {10, 20, 21, 22};
  return (block - 1) * kBlockWidth + kInBlock[sum - 1];
}

enum class BallTable { kGross, kNet, kGrossPoints, kNetPoints };
inline constexpr BallTable kBallTables[] = {BallTable::kGross, BallTable::kNet,
                                            BallTable::kGrossPoints, BallTable::kNetPoints};

// What a ball may be used as, by the colours of a sheet.
enum class BallMark : std::int32_t {
  kNone = 0xFFFFFF,
  kGross = 65280,
  kNet = 0xD0FFD0,
  kEither = 34816,
};

struct Ball {
  std::optional<std::int32_t> value;  // none where the golfer has not played the hole
  BallMark mark = BallMark::kNone;
  bool selected = false;
};

// The four tables of one team: a row for each of ten golfers and one of sums. Error 9 for a golfer
// or column that is not there.
class TeamBalls {
 public:
  using Sum = std::optional<std::int32_t>;  // none where no ball counted

  Ball& At(BallTable table, int golfer, int column) {
    return balls_[static_cast<int>(table)][golfer][column];
  }
  const Ball& At(BallTable table, int golfer, int column) const {
    return balls_[static_cast<int>(table)][golfer][column];
  }
  Sum& SumAt(BallTable table, int column) { return sums_[static_cast<int>(table)][column]; }
  const Sum& SumAt(BallTable table, int column) const {
    return sums_[static_cast<int>(table)][column];
  }

  // Gross and net together, of scores and of points.
  Sum Score(int column) const;
  Sum Points(int column) const;

 private:
  Indexed<Indexed<Indexed<Ball, 1, kTableColumns>, 1, kMostGolfersWithBalls>, 0, 3> balls_;
  Indexed<Indexed<Sum, 1, kTableColumns>, 0, 3> sums_;
};

// Adds what is there; nothing and nothing is nothing.
TeamBalls::Sum AddSums(const TeamBalls::Sum& a, const TeamBalls::Sum& b);

}  // namespace golf
