#include "scoring/player/player_class.h"

#include <limits>

#include "support/scored_round.h"
#include "support/test_host.h"

namespace golf {
namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNotANumber = std::numeric_limits<float>::quiet_NaN();

class PlayerClassTest : public testing::Test {
 protected:
  PlayerClass& Load() { return scored.Load(install.state()); }
  int StrokesOf(PlayerClass& player, OptionalRound round = {}) {
    int strokes = 0;
    for (int hole = 1; hole <= kHoles; ++hole) strokes += player.TourHoleStrokes(hole, round);
    return strokes;
  }

  TestInstall install;
  ScoredRound scored;
};

TEST_F(PlayerClassTest, HandicapsOutOfTheOrdinary) {
  const struct {
    float handicap, adjustment;
    const char *gross, *plus_form, *value_form;
    int strokes;
  } kCases[] = {
      {12.49999F, 0, "13", "13", "13", 13},
      {0, -30, "0", "+30", "-30", -18},
      {kInfinity, 0, "Infinity", "36", "36", 36},
      {kNotANumber, 0, "NaN", "NaN", "NaN", 0},
  };
  for (const auto& c : kCases) {
    scored.entry.Set<"TourGrossHandicap">({1}, c.handicap);
    scored.control.Fill<"TeeHandicapAdjustment">(c.adjustment);
    PlayerClass& player = Load();
    EXPECT_EQ(player.TourGrossHandicapValue(false), c.gross);
    EXPECT_EQ(player.TourHandicap(), c.plus_form);
    EXPECT_EQ(player.TourHandicapValue(), c.value_form);
    EXPECT_EQ(StrokesOf(player), c.strokes) << c.value_form;
  }
}

TEST_F(PlayerClassTest, AnIndexThatIsNoNumberIsAnErrorEachTime) {
  scored.control.Set<"IndextoHandicap">(-1);
  for (const float index : {kNotANumber, kInfinity, -kInfinity}) {
    scored.entry.Fill<"TourIndex">(index);
    PlayerClass& player = Load();
    for (int time = 1; time <= 2; ++time) EXPECT_EQ(ErrorOf([&] { player.TourHandicap(); }), 6);
  }
}

TEST_F(PlayerClassTest, StatisticsAndTiebreakKeys) {
  scored.PlayInTurn(1, 18);
  scored.entry.Fill<"TourGrossHandicap">(12);
  PlayerClass& player = Load();
  EXPECT_EQ(player.TourPBEStatsGross(2, 2) + player.TourPBEStatsGross(2, 21), "16");
  EXPECT_EQ(player.TourPBEStatsNet(-1, 3) + player.TourPBEStatsNet(-1, 21), "14");
  EXPECT_EQ(player.TourPBEStatsGross(2, 19), "0");
  EXPECT_EQ(player.TourGrossTotalTiebreakUSGA(), "090,045,030,15,04");
  EXPECT_EQ(player.TourNetTotalTiebreakUSGA(), "078,039,026,13,03");
  EXPECT_EQ(player.TourNetTotalTiebreak1to18(),
            "078,04,05,03,04,05,03,04,05,03,04,05,03,05,06,04,05,06,04");
  EXPECT_EQ(player.TourNetTotalTiebreak18to1(),
            "078,04,06,05,04,06,05,03,05,04,03,05,04,03,05,04,03,05,04");
  EXPECT_EQ(player.TourGrossTotalTiebreak18to1(),
            "090,04,06,05,04,06,05,04,06,05,04,06,05,04,06,05,04,06,05");
}

TEST_F(PlayerClassTest, HolesThatAreOutOfTheOrdinary) {
  scored.PlayInTurn(1, 18);
  for (const auto& [hole, score] : {std::pair{1, 99}, {2, 0}, {3, -5}, {4, 32767}}) {
    scored.entry.Set<"TourScoreGross">({hole, 1}, static_cast<std::int16_t>(score));
  }
  scored.course.Set<"HolePar">({1, 5}, 90);
  scored.course.Set<"StrkSqnc">({1, 1}, 19);
  PlayerClass& player = Load();
  const auto gross = [&](int hole) { return std::get<std::string>(player.TourScoreGross(hole)); };
  EXPECT_EQ(gross(1) + gross(2) + gross(3) + gross(4), "F  F");
  EXPECT_EQ(gross(19), std::to_string(99 - 5 + 32767 + 6 + 4 + 5 + 6 + 4));
  EXPECT_EQ(player.TourPBEStatsGross(-5, 5) + player.TourPBEStatsGross(5, 21), "12");
  EXPECT_EQ(player.TourHoleAdjusted(3.9), -5);
  EXPECT_EQ(player.TourHoleAdjusted(1), 6);
  EXPECT_EQ(player.TourGrossTotalTiebreakHandicapHole(),
            "32931,32886,00,-05,32767,06,04,05,06,04,05,06,04,05,06,04,05,06,04");
}

TEST_F(PlayerClassTest, NineHolesOfATournamentOfNine) {
  scored.control.Set<"RoundType">(9);
  scored.PlayInTurn(1, 9);
  scored.entry.Fill<"TourGrossHandicap">(6);
  scored.entry.Set<"TourScoreGross">({2, 1}, 9);
  scored.entry.Set<"TourScoreGross">({10, 1}, 8);  // stored, but not part of the round
  PlayerClass& player = Load();
  EXPECT_EQ(player.TourGrossTotalTiebreakUSGA(), "056,030,15,04");
  EXPECT_EQ(player.TourNetTotalTiebreakUSGA(), "042,026,13,03");
  EXPECT_EQ(player.TourGrossTotalTiebreak1to18(), "056,05,09,04,05,06,04,05,06,04");
}

TEST_F(PlayerClassTest, TotalsOnly) {
  scored.PlayInTurn(1, 18);
  scored.control.Set<"ScoreEntryTotal">(-1);
  scored.control.Set<"HandicapDecimalPlaces">(-1);
  scored.entry.Set<"TourScoreGrossTotal">({1}, 95);
  scored.entry.Fill<"TourGrossHandicap">(12.5);
  PlayerClass& player = Load();
  EXPECT_EQ(player.TourScoreGross(1), TextOrNumber(0));
  EXPECT_EQ(player.TourScoreGross(19), TextOrNumber("0"));
  EXPECT_EQ(player.TourScoreGross(21), TextOrNumber("95"));
  EXPECT_EQ(player.TourGrossTotalTiebreakUSGA(), "095,000,000,00,00");
  EXPECT_TRUE(player.TourNetTotalTiebreak1to18().starts_with("082,00,"));  // 82.5, to even
  EXPECT_EQ(player.TourPointsNet(21) + player.TourPBEStatsGross(1, 21), "00");
}

TEST_F(PlayerClassTest, TotalsOverRounds) {
  scored.control.Set<"HandicapDecimalPlaces">(-1);
  scored.control.Set<"ActiveRound">(3);
  scored.control.Set<"PointQuotaOption">(3);
  for (int round = 1; round <= 3; ++round) {
    scored.PlayInTurn(round, 18);
    scored.entry.Set<"TourPutts">({round}, 30);
    scored.entry.Set<"TourFairways">({round}, 7);
    scored.entry.Set<"TourGreens">({round}, 5);
    scored.entry.Set<"TourEarnings">({round}, 100050);
  }
  scored.entry.Fill<"TourGrossHandicap">(12.5);
  scored.entry.Fill<"TourQuota">(20.5);
  PlayerClass& player = Load();
  EXPECT_EQ(player.TourTotalGross() + player.TourTotalNet(), "270233");  // 232.5 is rounded up
  EXPECT_EQ(player.TourTotalNet(2, 3) + player.TourTotalNet(3), "15578");
  EXPECT_EQ(player.TourTotalGross({}, 1), "270");  // the end is ignored without a start
  EXPECT_EQ(player.TourTotalQuotaResults() + player.TourTotalPutts(), "-7.5090");
  EXPECT_EQ(player.TourTotalFairways() + player.TourTotalGreens(2), "2110");
  EXPECT_EQ(player.TourTotalEarnings(), "30.03");  // each amount counts in whole cents
  EXPECT_EQ(player.TourTotalGross(3, 2), "0");
  EXPECT_EQ(ErrorOf([&] { player.TourTotalGross(7, 8); }), 9);
}

TEST_F(PlayerClassTest, ARoundIsWorkedOutOnceForEachRead) {
  scored.PlayInTurn(1, 18);
  scored.entry.Set<"TourGrossHandicap">({1}, 12);
  scored.entry.Set<"TourGrossHandicap">({2}, 3);
  PlayerClass& player = Load();
  EXPECT_EQ(StrokesOf(player, 1), 12);
  player.SetTourGrossHandicap(1, 5);
  EXPECT_EQ(player.TourHandicap(), "12");
  // The quota of round 2 is based on round 1. TourQuota does not change the strokes of round 1.
  EXPECT_EQ(player.TourQuota(false, 2), "24");
  player.TourHandicap(2);
  EXPECT_EQ(StrokesOf(player, 1), 3);
  player.CalculateSetToRecalculate();
  EXPECT_EQ(player.TourHandicap(), "5");
}

TEST_F(PlayerClassTest, AnErrorLeavesTheRoundToBeWorkedOut) {
  scored.PlayInTurn(1, 18);
  scored.entry.Set<"TourGroupTee">({1}, 9);  // corrected to 1
  scored.control.Set<"TeeNumberPlayed">({0, 1, 1}, 0);
  PlayerClass& player = Load();
  for (int time = 1; time <= 2; ++time) EXPECT_EQ(ErrorOf([&] { player.TourScoreNet(21); }), 9);
  install.state().Tournament().SetTeeNumberPlayed(0, 1, 1, 7);
  EXPECT_EQ(ErrorOf([&] { player.TourScoreNet(21); }), 9);
  EXPECT_EQ(player.TourCourseTeePlayedNumber(), 7);
  install.state().Tournament().SetTeeNumberPlayed(0, 1, 1, 6);
  EXPECT_EQ(player.TourScoreNet(21), "90");
  for (const int round : {0, 8}) EXPECT_EQ(ErrorOf([&] { player.TourHandicap(round); }), 9);
  for (const int hole : {0, 22}) EXPECT_EQ(ErrorOf([&] { player.TourScoreGross(hole); }), 9);
  EXPECT_EQ(ErrorOf([&] { player.TourHoleStrokes(19); }), 9);
}

TEST_F(PlayerClassTest, CoursesAreReadOnceUntilTheyChange) {
  PlayerClass& player = Load();
  EXPECT_EQ(player.TourHolePar(18), 4);
  const auto recalculated = [&] {
    player.CalculateSetToRecalculate();
    return player.TourHolePar(18);
  };
  const int before = install.platform->CountAll();
  EXPECT_EQ(recalculated(), 4);
  EXPECT_EQ(install.platform->CountAll(), before);
  SharedState& state = install.state();
  state.SpareCourse().OpenCourseFile();
  state.SpareCourse().GetRecord(1);
  state.SpareCourse().SetHolePar(1, 18, 5);
  state.SpareCourse().SaveRecord(1);
  EXPECT_EQ(recalculated(), 5);
  scored.course.Set<"HolePar">({1, 18}, 3);  // by another program; visible after the next click
  install.folder.Write("qbdata/qbcrs.dat", scored.course.Bytes());
  state.files.Synchronize();
  EXPECT_EQ(recalculated(), 3);
  state.Tournament().SetCourseNumberPlayed(1, 5);
  EXPECT_EQ(recalculated(), 0);
  EXPECT_EQ(player.TourCoursePlayedName(), "**Invalid Course**");
}

TEST_F(PlayerClassTest, TeeTimesComeFromTheTeam) {
  scored.entry.Set<"TourTeamOn">({1}, 3);
  scored.entry.Set<"TourTeamOn">({2}, 201);
  PlayerClass& player = Load();
  TeamRecords& team = install.state().Team1();
  team.BlankTeamRecord();
  team.SetTeeStartHole(1, "2b");
  team.SaveRecord(3);
  team.BlankTeamRecord();
  EXPECT_EQ(player.TourTeeTime(1) + player.TourTeeStartHole(1), "05:00 pm02B");
  EXPECT_EQ(player.TourTeeTime(2) + player.TourTeeStartHole(2), "NoneNone");
}

TEST_F(PlayerClassTest, StatisticsOfATournament) {
  scored.PlayInTurn(1, 12);
  scored.entry.Fill<"TourGrossHandicap">(6);
  PlayerClass& player = Load();
  player.SetTourScoreGross(1, 1, 8);
  player.SetTourScoreGross(18, 1, 4);
  player.SaveRecord(3, true);
  player.SetTourRosterRecordPointer(0);
  player.SaveRecord(2, true);  // a free entry, which is not counted
  TournamentClass& tournament = install.state().Tournament();
  tournament.CalculateTotals();
  EXPECT_EQ(tournament.ScoreTotalGross(1), 13);
  EXPECT_EQ(tournament.ScoreTotalNet(19), 2 * 45 + 3 - 12);
  EXPECT_EQ(tournament.ScoreAverageGross(1) + tournament.ScoreAverageGross(19), "6.5046.50");
  EXPECT_EQ(tournament.ScoreAverageGross(20) + tournament.ScoreAverageNet(13), "17.000.00");
  EXPECT_EQ(tournament.ScoreHighNet(1), TextOrNumber(7));
  EXPECT_EQ(tournament.ScoreLowGross(1), TextOrNumber(5));
  EXPECT_EQ(tournament.ScoreLowGross(17), TextOrNumber(0));
  EXPECT_EQ(tournament.ScoreLowGross(18), TextOrNumber(4));
  EXPECT_EQ(tournament.ScoreHighGross(19), TextOrNumber(""));
  EXPECT_EQ(tournament.ScorePBEStatsGross(2, 21), 8);
  EXPECT_EQ(tournament.ScorePBEStatsNet(-1, 19), 4);
  EXPECT_EQ(tournament.ScorePlayersThatPlayed(12), TextOrNumber(2));
  EXPECT_EQ(tournament.ScorePlayersThatPlayed(20), TextOrNumber(""));
  EXPECT_EQ(ErrorOf([&] { tournament.ScoreTotalGross(22); }), 9);
}

}  // namespace
}  // namespace golf
