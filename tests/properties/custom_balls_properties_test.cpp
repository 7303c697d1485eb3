// The picks of balls against a second account of them, written down step by step.

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "scoring/custom_balls.h"

namespace golf {
namespace {

struct Card {
  int gross = 0;  // 0: not played
  int strokes = 0;
  int gross_points = 0;
  int net_points = 0;
};

// One hole of one team, worked out in the order in which it is told: flags and loops.
struct PlainHole {
  std::vector<Card> cards;
  PlaceCodes places[2];
  bool selected[4][11] = {};
  bool used[11] = {};

  bool MayCount(int kind, int player) const {
    bool may = false;
    for (const PlaceCodes& place : places) {
      const std::string& code = kind == 0 ? place.GrossScoresToUse : place.NetScoresToUse;
      if (code == "NONE") continue;
      if (place.ConsiderPlayers.find(static_cast<char>('0' + player)) != std::string::npos)
        may = true;
    }
    return may && cards[static_cast<std::size_t>(player) - 1].gross > 0;
  }

  int OneKind(int kind) {
    int sum = 0;
    for (const PlaceCodes& place : places) {
      const std::string& code = kind == 0 ? place.GrossScoresToUse : place.NetScoresToUse;
      if (code == "NONE") continue;
      const int count = code.back() - '0';
      for (int pick = 1; pick <= count; ++pick) {
        int best = code[0] == 'H' ? -1000 : 1000;
        int best_strokes = 0;
        int who = 0;
        for (int player = 1; player <= static_cast<int>(cards.size()); ++player) {
          if (used[player] || !MayCount(kind, player)) continue;
          const Card& card = cards[static_cast<std::size_t>(player) - 1];
          const int value = kind == 0 ? card.gross : card.gross - card.strokes;
          bool take = code[0] == 'H' ? value > best : value < best;
          if (value == best && kind == 1 && who != 0) {
            if (code[0] == 'L' && card.strokes < best_strokes) take = true;
            if (code[0] == 'H' && card.strokes > best_strokes) take = true;
          }
          if (!take) continue;
          best = value;
          best_strokes = card.strokes;
          who = player;
        }
        if (who == 0) continue;
        used[who] = true;
        if (code[0] == 'X' && pick != count) continue;
        selected[kind][who] = selected[kind + 2][who] = true;
        sum += best;
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
    if (option == "S") {
      Both(0, true);
    } else if (selection == "B") {
      const int gross_first = Both(0, false);
      const int net_first = Both(1, false);
      if (gross_first <= net_first) Both(0, false);
    } else {
      Both(selection == "N" ? 1 : 0, false);
    }
  }

  TeamBalls::Sum Sum(int table) const {
    TeamBalls::Sum sum;
    for (std::size_t i = 0; i < cards.size(); ++i) {
      const Card& card = cards[i];
      const int values[] = {card.gross, card.gross - card.strokes, card.gross_points,
                            card.net_points};
      if (selected[table][i + 1]) sum = sum.value_or(0) + values[table];
    }
    return sum;
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
    const Card card{*rc::gen::inRange(0, 6), *rc::gen::inRange(-1, 3), *rc::gen::inRange(0, 9),
                    *rc::gen::inRange(0, 9)};
    plain.cards.push_back(card);
    if (card.gross == 0) continue;
    const int values[] = {card.gross, card.gross - card.strokes, card.gross_points,
                          card.net_points};
    for (int table = 0; table < 4; ++table) {
      engine.Team(2).At(kBallTables[table], golfer, column).value = values[table];
    }
  }
  engine.XBallConsiderWhichScores(false, {});
  engine.XBallCalculateTeamScore({});
  plain.Work(layout.BallSelectionOption, layout.BallSelection);
  const int total = SumColumn((hole - 1) / 18 + 1, 3);
  for (int table = 0; table < 4; ++table) {
    RC_ASSERT(engine.Team(2).SumAt(kBallTables[table], column) == plain.Sum(table));
    RC_ASSERT(engine.Team(2).SumAt(kBallTables[table], total) == plain.Sum(table));
    RC_ASSERT(!engine.Team(1).SumAt(kBallTables[table], column));
    for (int golfer = 1; golfer <= golfers; ++golfer) {
      RC_ASSERT(engine.Team(2).At(kBallTables[table], golfer, column).selected ==
                plain.selected[table][golfer]);
    }
  }
}

}  // namespace
}  // namespace golf
