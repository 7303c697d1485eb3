// These tests compare the selection of balls with a second, step-by-step calculation.

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <tuple>

#include "scoring/layouts/custom_balls.h"

namespace golf {
namespace {

struct Card {
  int values[4];  // gross, net and their points; a gross of 0 is not played
  int strokes;
};

// Calculates one hole of one team with flags and loops, in the order of the rules.
struct PlainHole {
  std::vector<Card> cards;
  PlaceCodes places[2];
  bool selected[4][11] = {};
  bool used[11] = {};

  static std::string CodeOf(const PlaceCodes& place, int kind) {
    return kind == 0 ? place.GrossScoresToUse : place.NetScoresToUse;
  }

  bool MayCount(int kind, int player) const {
    bool may = false;
    for (const PlaceCodes& place : places) {
      may |= CodeOf(place, kind) != "NONE" &&
             place.ConsiderPlayers.find(static_cast<char>('0' + player)) != std::string::npos;
    }
    return may && cards[static_cast<std::size_t>(player) - 1].values[0] > 0;
  }

  int OneKind(int kind) {
    int sum = 0;
    for (const PlaceCodes& place : places) {
      const std::string code = CodeOf(place, kind);
      const int sign = code[0] == 'H' ? -1 : 1;
      const int count = code == "NONE" ? 0 : code.back() - '0';
      for (int pick = 1; pick <= count; ++pick) {
        std::tuple best{1000, 0, 0};  // the lowest value, then the fewest strokes, then the first
        for (int player = 1; player <= static_cast<int>(cards.size()); ++player) {
          if (used[player] || !MayCount(kind, player)) continue;
          const Card& card = cards[static_cast<std::size_t>(player) - 1];
          const int strokes = kind == 1 && code[0] != 'X' ? sign * card.strokes : 0;
          best = std::min(best, {sign * card.values[kind], strokes, player});
        }
        const auto& [value, strokes, who] = best;
        if (who == 0) continue;
        used[who] = true;
        if (code[0] == 'X' && pick != count) continue;
        selected[kind][who] = selected[kind + 2][who] = true;
        sum += sign * value;
      }
    }
    return sum;
  }

  int Both(int first, bool same) {
    std::fill_n(&selected[0][0], 44, false);
    std::fill_n(used, 11, false);
    int sum = OneKind(first);
    if (same) std::fill_n(used, 11, false);
    return sum + OneKind(1 - first);
  }

  void Work(const std::string& option, const std::string& selection) {
    const bool same = option == "S";
    const int gross_first = Both(0, same);
    if (same || selection == "G") return;
    if (Both(1, false) < gross_first || selection == "N") return;
    Both(0, false);
  }
};

std::string AnyCode(const std::vector<LayoutChoice>& choices) {
  return choices[*rc::gen::inRange<std::size_t>(0, choices.size())].code;
}

RC_GTEST_PROP(CustomBalls, CountTheSameBallsAsTheirSteps, ()) {
  ReportLayout layout;
  layout.PlayersPerTeam = *rc::gen::inRange(1, 9);
  layout.BallSelectionOption = *rc::gen::element(std::string("D"), std::string("S"));
  layout.BallSelection = *rc::gen::element(std::string("G"), std::string("N"), std::string("B"));
  const int hole = *rc::gen::inRange(1, 91);
  PlainHole plain;
  const auto balls = BallChoices(layout.PlayersPerTeam);
  for (int place = 0; place < 2; ++place) {
    PlaceCodes& codes = layout.At(hole, place);
    codes.ConsiderPlayers = AnyCode(PlayerChoices(layout.PlayersPerTeam));
    codes.GrossScoresToUse = AnyCode(balls);
    codes.NetScoresToUse = AnyCode(balls);
    plain.places[place] = codes;
  }
  CustomBalls engine(layout);
  engine.XBallInitializeTeamGrid(2);
  const int golfers = *rc::gen::inRange(0, 11);
  const int column = HoleColumn(hole);
  for (int golfer = 1; golfer <= golfers; ++golfer) {
    const int gross = *rc::gen::inRange(0, 6), strokes = *rc::gen::inRange(-1, 3);
    const int points = *rc::gen::inRange(0, 9), net_points = *rc::gen::inRange(0, 9);
    const Card card{{gross, gross - strokes, points, net_points}, strokes};
    plain.cards.push_back(card);
    for (int table = 0; table < 4 && gross > 0; ++table) {
      engine.Team(2).At(kBallTables[table], golfer, column).value = card.values[table];
    }
  }
  engine.XBallConsiderWhichScores(false, {});
  engine.XBallCalculateTeamScore({});
  plain.Work(layout.BallSelectionOption, layout.BallSelection);
  const int total = SumColumn((hole - 1) / 18 + 1, 3);
  for (int table = 0; table < 4; ++table) {
    TeamBalls::Sum sum;
    for (int golfer = 1; golfer <= golfers; ++golfer) {
      const Card& card = plain.cards[static_cast<std::size_t>(golfer) - 1];
      if (plain.selected[table][golfer]) sum = sum.value_or(0) + card.values[table];
      RC_ASSERT(engine.Team(2).At(kBallTables[table], golfer, column).selected ==
                plain.selected[table][golfer]);
    }
    RC_ASSERT(engine.Team(2).SumAt(kBallTables[table], column) == sum);
    RC_ASSERT(engine.Team(2).SumAt(kBallTables[table], total) == sum);
    RC_ASSERT(!engine.Team(1).SumAt(kBallTables[table], column));
  }
}

}  // namespace
}  // namespace golf
