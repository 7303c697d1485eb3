#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "scoring/layouts/report_layout.h"
#include "scoring/round_results.h"
#include "scoring/team/team_round.h"
#include "stores/quenby/quenby_layouts.h"

namespace golf {

// These tables contain the balls of teams. A ball is the score of one golfer on one hole. Reports
// count the balls by a layout. A table has five blocks, one for each round. A block has 22 columns,
// which are 18 holes and four sums. Holes are numbered from 1 to 90, so hole 19 is the first hole
// of the second block.

inline constexpr int kBlocks = 5;
inline constexpr int kBlockWidth = 22;
inline constexpr int kTableColumns = kBlocks * kBlockWidth;
inline constexpr int kSumsOfBlock = 4;

// Returns the column of a hole 1 to 90, or 0 for any other hole.
constexpr int HoleColumn(int hole) {
  if (hole < 1 || hole > kLayoutHoles) return 0;
  const int in_block = (hole - 1) % kHoles + 1;
  return (hole - 1) / kHoles * kBlockWidth + in_block + (in_block > 9 ? 1 : 0);
}
// Returns the column of a sum of a block. `sum` is 1 for the first nine, 2 for the second nine, 3
// for the total of the block, and 4 for the running total of the blocks up to this one.
constexpr int SumColumn(int block, int sum) {
  constexpr int kInBlock[] = {10, 20, 21, 22};
  return (block - 1) * kBlockWidth + kInBlock[sum - 1];
}

enum class BallTable { kGross, kNet, kGrossPoints, kNetPoints };
inline constexpr BallTable kBallTables[] = {BallTable::kGross, BallTable::kNet,
                                            BallTable::kGrossPoints, BallTable::kNetPoints};

// Defines how a ball may be used. The values are the colours of the cells on the screen.
enum class BallMark : std::int32_t {
  kNone = 0xFFFFFF,
  kGross = 65280,
  kNet = 0xD0FFD0,
  kEither = 34816,
};

struct Ball {
  std::optional<std::int32_t> value;  // in strokes or points; no value if the hole was not played
  BallMark mark = BallMark::kNone;
  bool selected = false;
};

// Holds the four tables of one team. A table has a row for each of ten golfers and a row of sums.
// An access raises error 9 for a golfer outside 1 to 10, a column outside 1 to 110 or a block
// outside 1 to 5.
class TeamBalls {
 public:
  using Sum = std::optional<std::int32_t>;  // no value if no ball counted

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

  // Return the name of the golfer in a row of a block. The name is empty if the team has fewer
  // golfers in this round.
  std::string& Golfer(int block, int golfer) { return golfers_[block][golfer]; }
  const std::string& Golfer(int block, int golfer) const { return golfers_[block][golfer]; }

  // Returns the values of a golfer's balls in a block, with their sums.
  ByHole<Sum> Values(BallTable table, int golfer, int block) const;

  // Return the gross sum plus the net sum, of scores and of points.
  Sum Score(int column) const;
  Sum Points(int column) const;

 private:
  Indexed<Indexed<Indexed<Ball, 1, kTableColumns>, 1, kMostGolfersWithBalls>, 0, 3> balls_;
  Indexed<Indexed<Sum, 1, kTableColumns>, 0, 3> sums_;
  Indexed<Indexed<std::string, 1, kMostGolfersWithBalls>, 1, kBlocks> golfers_;
};

// Adds two sums. A sum without a value counts as 0. The result has no value if both sums have none.
// Raises error 6 if the result does not fit.
TeamBalls::Sum AddSums(const TeamBalls::Sum& a, const TeamBalls::Sum& b);

}  // namespace golf
