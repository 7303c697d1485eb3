#include "scoring/layouts/custom_balls.h"

#include <algorithm>
#include <utility>

#include "core/number_text.h"
#include "core/numbered_error.h"
#include "core/text.h"
#include "scoring/checked_sums.h"
#include "scoring/places.h"
#include "scoring/tiebreak_keys.h"

namespace golf {
namespace {

// A low ball must be below this value, and a high ball must be above its negative.
constexpr std::int32_t kNoBall = 1000;

// Holds a parsed code of a layout. The letter L selects the `count` lowest balls, H the `count`
// highest balls, and X only the ball with the number `count` in ascending order.
struct BallCode {
  char letter = 'N';
  int count = 0;  // 0 for an invalid code
};

BallCode ParseBallCode(std::string_view code) {
  constexpr std::string_view kLetters = "LHX";
  constexpr std::string_view kCounts = "123456789ABC";
  if (code.size() < 2 || kLetters.find(code[0]) == std::string_view::npos) return {};
  const std::size_t count = kCounts.find(code.back());
  if (count == std::string_view::npos) return {};
  return {code[0], static_cast<int>(count) + 1};
}

enum class Kind { kGross, kNet };
using Order = std::array<Kind, 2>;
constexpr Order kGrossFirst = {Kind::kGross, Kind::kNet};
constexpr Order kNetFirst = {Kind::kNet, Kind::kGross};

BallTable ScoresOf(Kind kind) { return kind == Kind::kGross ? BallTable::kGross : BallTable::kNet; }
BallTable PointsOf(Kind kind) {
  return kind == Kind::kGross ? BallTable::kGrossPoints : BallTable::kNetPoints;
}
const std::string& CodeOf(const PlaceCodes& place, Kind kind) {
  return kind == Kind::kGross ? place.GrossScoresToUse : place.NetScoresToUse;
}

bool Allows(BallMark mark, Kind kind) {
  return mark == BallMark::kEither ||
         mark == (kind == Kind::kGross ? BallMark::kGross : BallMark::kNet);
}

// Returns true if a golfer's balls of a kind may count on a hole. This is so if a place that uses
// such balls lists the golfer.
bool IsConsidered(const ReportLayout& layout, int hole, Kind kind, int golfer) {
  for (int place = 0; place < kLayoutPlaces; ++place) {
    const PlaceCodes& codes = layout.At(hole, place);
    const bool listed = codes.ConsiderPlayers.find(std::to_string(golfer)) != std::string::npos;
    if (listed && ParseBallCode(CodeOf(codes, kind)).count > 0) return true;
  }
  return false;
}

BallMark MarkOf(const ReportLayout& layout, int hole, int golfer) {
  const bool gross = IsConsidered(layout, hole, Kind::kGross, golfer);
  const bool net = IsConsidered(layout, hole, Kind::kNet, golfer);
  if (gross && net) return BallMark::kEither;
  if (gross || net) return gross ? BallMark::kGross : BallMark::kNet;
  return BallMark::kNone;
}

void ClearMarks(TeamBalls& team, bool points) {
  for (const Kind kind : kGrossFirst) {
    for (int golfer = 1; golfer <= kMostGolfersWithBalls; ++golfer) {
      for (int column = 1; column <= kTableColumns; ++column) {
        team.At(points ? PointsOf(kind) : ScoresOf(kind), golfer, column).mark = BallMark::kNone;
      }
    }
  }
}

// Selects the balls of one team on one hole.
class HolePicker {
 public:
  HolePicker(TeamBalls& team, const ReportLayout& layout, int hole)
      : team_(team), layout_(layout), hole_(hole), column_(HoleColumn(hole)) {}

  // Clears the previous selection, selects the balls of both kinds in this order, and returns their
  // sum. A golfer whose ball of one kind is selected cannot count with the other kind, unless
  // `same_ball` is true.
  std::int32_t Pick(const Order& order, bool same_ball) {
    ClearPicks();
    std::int32_t sum = 0;
    used_.fill(false);
    for (const Kind kind : order) {
      if (same_ball) used_.fill(false);
      for (int place = 0; place < kLayoutPlaces; ++place) {
        sum = AddWhole(sum, PickPlace(kind, ParseBallCode(CodeOf(layout_.At(hole_, place), kind))));
      }
    }
    return sum;
  }

 private:
  void ClearPicks() {
    for (const BallTable table : kBallTables) {
      for (int golfer = 1; golfer <= kMostGolfersWithBalls; ++golfer) {
        team_.At(table, golfer, column_).selected = false;
      }
    }
  }

  std::int32_t PickPlace(Kind kind, const BallCode& code) {
    std::int32_t sum = 0;
    for (int pick = 1; pick <= code.count; ++pick) {
      const int golfer = BestGolfer(kind, code.letter);
      if (golfer == 0) break;
      Used(golfer) = true;
      // The balls before a numbered ball do not count, but their golfers are used up.
      if (code.letter == 'X' && pick != code.count) continue;
      Ball& ball = team_.At(ScoresOf(kind), golfer, column_);
      ball.selected = team_.At(PointsOf(kind), golfer, column_).selected = true;
      sum = AddWhole(sum, *ball.value);
    }
    return sum;
  }

  // Returns the golfer with the best ball, or 0 if there is none. The best ball is the highest if
  // the letter is H, and otherwise the lowest. The first golfer's ball is the best if balls are
  // equal.
  int BestGolfer(Kind kind, char letter) {
    int best = 0;
    for (int golfer = 1; golfer <= kMostGolfersWithBalls; ++golfer) {
      const Ball& ball = team_.At(ScoresOf(kind), golfer, column_);
      if (!ball.value || !Allows(ball.mark, kind) || Used(golfer)) continue;
      if (letter == 'H' ? *ball.value <= -kNoBall : *ball.value >= kNoBall) continue;
      if (best == 0 || IsBetter(kind, letter, golfer, best)) best = golfer;
    }
    return best;
  }

  // Compares equal net balls by handicap strokes. A low ball is better with fewer strokes, a high
  // ball with more strokes. Does not compare equal numbered balls further.
  bool IsBetter(Kind kind, char letter, int golfer, int than) {
    const std::int32_t value = *team_.At(ScoresOf(kind), golfer, column_).value;
    const std::int32_t other = *team_.At(ScoresOf(kind), than, column_).value;
    if (value != other) return letter == 'H' ? value > other : value < other;
    if (kind == Kind::kGross || letter == 'X') return false;
    const std::int32_t strokes = Strokes(golfer);
    return letter == 'H' ? strokes > Strokes(than) : strokes < Strokes(than);
  }

  std::int32_t Strokes(int golfer) {
    const auto gross = team_.At(BallTable::kGross, golfer, column_).value;
    return gross.value_or(0) - *team_.At(BallTable::kNet, golfer, column_).value;
  }

  bool& Used(int golfer) { return used_[static_cast<std::size_t>(golfer) - 1]; }

  TeamBalls& team_;
  const ReportLayout& layout_;
  int hole_;
  int column_;
  std::array<bool, kMostGolfersWithBalls> used_{};
};

template <class Action>
void ForEachHole(const HoleSpan& holes, Action action) {
  const int first = holes.hole.value_or(holes.first_block * kHoles - kHoles + 1);
  const int last = holes.hole.value_or(holes.last_block * kHoles);
  for (int hole = std::max(first, 1); hole <= std::min(last, kLayoutHoles); ++hole) action(hole);
}

}  // namespace

TeamBalls::Sum AddSums(const TeamBalls::Sum& a, const TeamBalls::Sum& b) {
  if (!a || !b) return a ? a : b;
  return AddWhole(*a, *b);
}

ByHole<TeamBalls::Sum> TeamBalls::Values(BallTable table, int golfer, int block) const {
  ByHole<Sum> values;
  for (int hole = 1; hole <= kHoles; ++hole) {
    const Sum& value = At(table, golfer, HoleColumn((block - 1) * kHoles + hole)).value;
    for (const int entry : {hole, NineOf(hole), kWholeRound}) {
      values[entry] = AddSums(values[entry], value);
    }
  }
  return values;
}

TeamBalls::Sum TeamBalls::Score(int column) const {
  return AddSums(SumAt(BallTable::kGross, column), SumAt(BallTable::kNet, column));
}

TeamBalls::Sum TeamBalls::Points(int column) const {
  return AddSums(SumAt(BallTable::kGrossPoints, column), SumAt(BallTable::kNetPoints, column));
}

void CustomBalls::XBallInitializeTeamGrid(int teams) {
  SetTables(std::vector<TeamBalls>(static_cast<std::size_t>(teams)));
}

void CustomBalls::SetTables(std::vector<TeamBalls> teams) {
  teams_ = std::move(teams);
  positions_.assign(teams_.size(), {});
}

const TeamBalls& CustomBalls::Team(int team) const {
  if (team < 1 || team > teams()) {
    throw NumberedError(ErrorNumber::kSubscript, "The tables have no such team.");
  }
  return teams_[static_cast<std::size_t>(team) - 1];
}

TeamBalls& CustomBalls::Team(int team) {
  return const_cast<TeamBalls&>(std::as_const(*this).Team(team));
}

void CustomBalls::PopulateTeamGridwithManualData(int team, BallTable table,
                                                 const std::vector<std::vector<int>>& values) {
  TeamBalls& balls = Team(team);
  for (std::size_t i = 0; i < std::min<std::size_t>(values.size(), kMostGolfersWithBalls); ++i) {
    for (std::size_t j = 0; j < std::min<std::size_t>(values[i].size(), kLayoutHoles); ++j) {
      balls.At(table, static_cast<int>(i) + 1, HoleColumn(static_cast<int>(j) + 1)).value =
          values[i][j];
    }
  }
}

void CustomBalls::XBallConsiderWhichScores(bool points, const HoleSpan& holes) {
  for (TeamBalls& team : teams_) ClearMarks(team, points);
  ForEachHole(holes, [&](int hole) {
    for (int golfer = 1; golfer <= kMostGolfersWithBalls; ++golfer) {
      MarkBalls(points, hole, golfer, MarkOf(layout_, hole, golfer));
    }
  });
}

// Marks the balls of one golfer number in all teams.
void CustomBalls::MarkBalls(bool points, int hole, int golfer, BallMark mark) {
  const int column = HoleColumn(hole);
  for (TeamBalls& team : teams_) {
    for (const Kind kind : kGrossFirst) {
      Ball& ball = team.At(points ? PointsOf(kind) : ScoresOf(kind), golfer, column);
      if (ball.value) ball.mark = mark;
    }
  }
}

void CustomBalls::XBallCalculateTeamScore(const HoleSpan& holes) {
  for (TeamBalls& team : teams_) {
    ForEachHole(holes, [&](int hole) { CountHole(team, hole); });
    AddBlocks(team);
  }
}

void CustomBalls::CountHole(TeamBalls& team, int hole) const {
  const bool same_ball = layout_.BallSelectionOption == "S";
  HolePicker picker(team, layout_, hole);
  if (!same_ball && layout_.BallSelection == "B") {
    const std::int32_t gross_first = picker.Pick(kGrossFirst, false);
    if (gross_first <= picker.Pick(kNetFirst, false)) picker.Pick(kGrossFirst, false);
  } else {
    picker.Pick(layout_.BallSelection == "N" ? kNetFirst : kGrossFirst, same_ball);
  }
  const int column = HoleColumn(hole);
  for (const BallTable table : kBallTables) {
    TeamBalls::Sum& sum = team.SumAt(table, column);
    sum.reset();
    for (int golfer = 1; golfer <= kMostGolfersWithBalls; ++golfer) {
      const Ball& ball = team.At(table, golfer, column);
      if (ball.selected) sum = AddSums(sum, ball.value);
    }
  }
}

void CustomBalls::AddBlocks(TeamBalls& team) {
  for (const BallTable table : kBallTables) {
    TeamBalls::Sum running;
    for (int block = 1; block <= kBlocks; ++block) {
      std::array<TeamBalls::Sum, 2> nines;
      for (int hole = 1; hole <= kHoles; ++hole) {
        TeamBalls::Sum& nine = nines[hole > 9 ? 1 : 0];
        nine = AddSums(nine, team.SumAt(table, HoleColumn((block - 1) * kHoles + hole)));
      }
      const TeamBalls::Sum total = AddSums(nines[0], nines[1]);
      running = AddSums(running, total);
      team.SumAt(table, SumColumn(block, 1)) = nines[0];
      team.SumAt(table, SumColumn(block, 2)) = nines[1];
      team.SumAt(table, SumColumn(block, 3)) = total;
      team.SumAt(table, SumColumn(block, 4)) = running;
    }
  }
}

void CustomBalls::XBallSortTeamStandings(const RankingOrder& order, int position_option,
                                         const std::vector<std::string>& flights) {
  for (int block = 1; block <= kBlocks; ++block) {
    for (int sum = 1; sum <= kSumsOfBlock; ++sum) {
      RankTeams(order, position_option, flights, block, sum);
    }
  }
}

// Teams with equal results keep their order.
void CustomBalls::RankTeams(const RankingOrder& order, int position_option,
                            const std::vector<std::string>& flights, int block, int sum) {
  struct Row {
    std::string flight;
    TeamBalls::Sum result;
    std::size_t team;  // counted from 0
  };
  const int column = SumColumn(block, sum);
  std::vector<Row> rows;
  for (std::size_t team = 0; team < teams_.size(); ++team) {
    const TeamBalls& balls = teams_[team];
    rows.push_back({order.by_flight ? UpperCase(flights.at(team)) : std::string(),
                    order.points ? balls.Points(column) : balls.Score(column), team});
  }
  std::stable_sort(rows.begin(), rows.end(), [&](const Row& a, const Row& b) {
    if (a.flight != b.flight) return a.flight < b.flight;
    if (!a.result || !b.result) return a.result.has_value() && !b.result;
    return order.points ? *a.result > *b.result : *a.result < *b.result;
  });
  const auto same_flight = [&](std::size_t a, std::size_t b) {
    return rows[a].flight == rows[b].flight;
  };
  const auto tie = [&](std::size_t a, std::size_t b) {
    return same_flight(a, b) && rows[a].result == rows[b].result;
  };
  const Places places = NumberPlaces(rows.size(), tie, same_flight);
  const std::vector<int>& numbered = places.Numbers(position_option);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    positions_[rows[i].team][sum][block] = numbered[i];
  }
}

int CustomBalls::position(int row, int column, int block) const {
  Team(row);
  return positions_[static_cast<std::size_t>(row) - 1][column][block];
}

std::array<std::string, 4> CustomBalls::TiebreakKeys(
    int team, int round, int round_type, const std::vector<int>& holes_by_strokes) const {
  constexpr int kNine = 9;
  const TeamBalls& balls = Team(team);
  const int before = (round - 1) * kHoles + (round_type == kNine ? 0 : kNine);
  const auto score = [&](int hole) { return balls.Score(HoleColumn(before + hole)).value_or(0); };
  const std::int32_t total = balls.Score(SumColumn(round, 3)).value_or(0);
  constexpr std::string_view kTotal = "0000";
  std::string last = FormatNumber(total, kTotal);
  constexpr std::pair<int, std::string_view> kLast[] = {
      {9, "000"}, {6, "000"}, {3, "00"}, {1, "00"}};
  for (const auto& [count, pattern] : kLast) {
    std::int32_t sum = 0;
    for (int hole = kNine - count + 1; hole <= kNine; ++hole) sum = AddWhole(sum, score(hole));
    last += "," + FormatNumber(sum, pattern);
  }
  std::vector<int> by_strokes;  // the holes of the nine only
  const int first = round_type == kNine ? 0 : kNine;
  for (const int hole : holes_by_strokes) {
    if (hole > first && hole <= first + kNine) by_strokes.push_back(hole - first);
  }
  const auto key = [&](const std::vector<int>& holes) {
    return HoleByHoleKey(total, holes, score, kTotal);
  };
  return {last, key(by_strokes), key(HolesForward(kNine)), key(HolesBackward(kNine))};
}

}  // namespace golf
