#include "scoring/team/team_class.h"

#include "scoring/layouts/custom_standings.h"
#include "support/scored_round.h"
#include "support/test_host.h"

namespace golf {
namespace {

// Makes a team of tournament 1. Its golfers are named A, B, C and so on. `scores` contains their
// scores on holes 1, 2, 3 and so on.
class TeamClassTest : public testing::Test {
 protected:
  struct Golfer {
    std::vector<int> scores;
    double handicap = 0;
    int team = 1;
  };

  TeamClass& Load(const std::vector<Golfer>& golfers) {
    scored.control.Set<"NumTeams">(199);
    scored.entry.Set<"TourRosterRecordPointer">(0);  // the entry of each load has no golfer
    PlayerClass& player = scored.Load(install.state());
    for (std::size_t i = 0; i < golfers.size(); ++i) {
      const auto record = static_cast<std::int32_t>(i) + 2;
      player.BlankPlayerRecord();
      player.SetNameLast(std::string(1, static_cast<char>('A' + i)));
      player.SaveRecord(record, false);
      player.TourBlankPlayerRecord();
      player.SetTourRosterRecordPointer(record);
      for (int round = 1; round <= 2; ++round) {
        player.SetTourTeamOn(round, golfers[i].team);
        player.SetTourTeamPositionIn(round, record);
        player.SetTourGrossHandicap(round, golfers[i].handicap);
        for (std::size_t hole = 0; hole < golfers[i].scores.size(); ++hole) {
          player.SetTourScoreGross(static_cast<int>(hole) + 1, round, golfers[i].scores[hole]);
        }
      }
      player.SaveRecord(record, true);
    }
    player.TourBlankPlayerRecord();
    const auto last = static_cast<std::int32_t>(golfers.size()) + 1;
    for (std::int32_t record = player.TourFileLength(); record > last; --record) {
      player.SaveRecord(record, true);  // an entry of the previous load
    }
    TeamClass& team = install.state().Team1();
    team.BlankTeamRecord();
    team.SaveRecord(1);
    return team;
  }

  TestInstall install;
  ScoredRound scored;
};

TEST_F(TeamClassTest, BestBallsOfAHole) {
  const struct {
    std::vector<Golfer> golfers;
    int balls;
    const char *gross, *net;
    const char* points;  // gross points
    const char* pair;
  } kCases[] = {
      {{{{4}}, {{4}}, {{5}}}, 2, "8", "8", "4", "8"},
      {{{{4}}, {{0}}, {{5}}}, 2, "9", "9", "3", "9"},
      {{{{0}}, {{0}}, {{5}}}, 2, "5", "5", "1", "5"},
      {{}, 1, "0", "0", "0", "0"},
      {{{{1000}}, {{9}}}, 2, "9", "9", "0", "1009"},
      // The second golfer has the lowest gross score. A stroke also gives this golfer the lowest
      // net score.
      {{{{5}}, {{4}, 18}}, 1, "4", "3", "2", "8"},
      {std::vector<Golfer>(10, {{5}}), 12, "50", "50", "10", "10"},
      {{{{4}}, {{3}, 0, 2}}, 1, "4", "4", "2", "4"},
  };
  for (const auto& c : kCases) {
    TeamClass& team = Load(c.golfers);
    EXPECT_EQ(team.BestBallGross(c.balls, 1), c.gross);
    EXPECT_EQ(team.BestBallNet(c.balls, 1), c.net);
    EXPECT_EQ(team.BestBallPointsGross(c.balls, 1), c.points);
    EXPECT_EQ(team.BestBallGrossNet(1), c.pair);
  }
}

TEST_F(TeamClassTest, AnEleventhGolferCountsInSumsOnly) {
  std::vector<Golfer> golfers(10, {{6, 6}});
  golfers.push_back({{2, 2}});
  TeamClass& team = Load(golfers);
  EXPECT_EQ(team.ScoreGross(1), 62);
  EXPECT_EQ(team.BestBallGross(1, 19) + team.BestTotalXofYGross(1, 19), "1212");
  EXPECT_EQ(team.NameofPlayersOnTeam(0), "A, B, C, D, E, F, G, H, I, J, K");
  EXPECT_EQ(ErrorOf([&] { team.NameofPlayersOnTeam(9); }), 9);
}

TEST_F(TeamClassTest, SumsAndHandicaps) {
  const struct {
    int option;
    bool decimals;
    const char *handicap, *quota;
  } kCases[] = {{1, true, "12.50", "47.00"}, {2, true, "6.25", "47.00"}, {3, false, "13", "47"}};
  for (const auto& c : kCases) {
    scored.control.Set<"TeamHandicapOption">(static_cast<std::int16_t>(c.option));
    scored.control.Set<"TeamHandicapPercent">(25);
    scored.control.Set<"HandicapDecimalPlaces">(c.decimals ? -1 : 0);
    TeamClass& team = Load({{{5, 4}, 10}, {{6, 0}, 15}});
    EXPECT_EQ(team.Handicap(), c.handicap);
    EXPECT_EQ(team.Quota(), c.quota);
    EXPECT_EQ(team.ScoreGross(21), 15);
    EXPECT_EQ(team.ScoreNet(1), 9);
    EXPECT_EQ(team.ScoreNet(21), c.decimals ? 10 : 12);  // a net score below 0 has a plus sign
    EXPECT_EQ(team.PointsNet(19), 2 + 1 + 4);
    EXPECT_EQ(team.Results().first_scorer, 2);
  }
  TeamClass& team = Load({{{5, 4}, 10}, {{6, 0}, 15}});
  install.state().Tournament().SetActiveRound(2);
  EXPECT_EQ(team.TotalGross() + team.TotalNet(), "3024");
  EXPECT_EQ(team.BestTotalXofYGross(2, 7) + team.BestTotalXofYGross(2, 21), "015");
}

TEST_F(TeamClassTest, ScrambleNetGoesByTheTeamHandicapAsShown) {
  for (const double handicap : {2.0, -2.0}) {
    TeamClass& team = Load({{{}, handicap}, {{4, 4, 4}, handicap}});
    EXPECT_EQ(team.ScrambleNet(1) + team.ScrambleNet(3), "34");
    EXPECT_EQ(team.ScrambleGross(21) + team.ScrambleNet(21), "1210");
  }
  TeamClass& nobody = Load({});
  EXPECT_EQ(nobody.ScrambleNet(21), "");
  EXPECT_EQ(nobody.NetScrambleTiebreakUSGA(), "000,000,000,00,00");
  EXPECT_FALSE(nobody.GetRecord(200));
}

TEST_F(TeamClassTest, CustomStandingsHaveTheTiebreaksOfTheActiveRound) {
  Load({{std::vector(18, 5)}, {std::vector(18, 4)}});
  ReportLayout layout;
  for (int hole = 1; hole <= kHoles; ++hole) layout.At(hole, 0) = {"12", "L1", "NONE"};
  CustomStandings standings(install.state(), layout);
  install.state().Team1().GetRecord(1);
  standings.AddTeam();
  EXPECT_EQ(standings.WorkOut()[0].tiebreaks[2].substr(0, 13), "0072,04,04,04");
}

TEST_F(TeamClassTest, TiebreakKeys) {
  scored.control.Set<"RoundType">(9);
  const std::vector<int> nine = {4, 5, 6, 4, 5, 6, 4, 5, 6};
  TeamClass& team = Load({{nine, 9}, {nine, 9}});
  EXPECT_EQ(team.GrossTotalTiebreakUSGA(), "090,060,30,12");
  EXPECT_EQ(team.NetTotalTiebreakUSGA(), "072,048,24,10");
  EXPECT_EQ(team.NetScrambleTiebreakUSGA(), "081,054,27,11");
  EXPECT_EQ(team.NetScrambleTiebreak18to1(), "081,11,09,07,11,09,07,11,09,07");
  EXPECT_EQ(team.GrossTotalTiebreakHandicapHole(),
            "090,08,10,12,08,10,12,08,10,12,00,00,00,00,00,00,00,00,00");
}

}  // namespace
}  // namespace golf
