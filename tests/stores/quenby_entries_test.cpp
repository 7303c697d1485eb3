#include <cmath>

#include "stores/course/course_class.h"
#include "support/quenby_test.h"

namespace golf {
namespace {

// Makes tournament 12 with two rounds and ten teams, and a roster file with twelve golfers.
class EntriesTest : public QuenbyTest {
 protected:
  EntriesTest() {
    tournament.SetNumRounds(2);
    tournament.SetNumTeams(10);
    tournament.SetActiveRound(1);
    std::string golfers(1867 * 12, '\0');
    for (std::size_t record = 1; record <= 12; ++record) {
      PutText(golfers, 1867 * (record - 1) + 27, 16, "Last" + std::to_string(record));
    }
    Write("QBGOLFER.Q9D", golfers);
    player.OpenRosterFile();
    player.TourOpenTournamentFile(12);
  }

  // Returns an entry of the golfer in record `pointer`, with the golfer's team and position by
  // round.
  std::string Entry(int pointer, std::initializer_list<int> teams = {},
                    std::initializer_list<int> places = {}) {
    std::string entry(3052, '\0');
    Put16(entry, 0, {pointer});
    Put16(entry, 2, teams);
    Put16(entry, 16, places);
    return entry;
  }
  void Load(const std::string& entry) {
    Write("X0012.Q9G", entry);
    player.GetRecord(1, true);
  }
  std::string Saved() {
    player.SaveRecord(1, true);
    return Read("X0012.Q9G");
  }
  // Writes six entries. Entries 2 and 6 are free.
  void WriteSix() {
    Write("X0012.Q9G", Entry(10, {2, 1}, {1, 1}) + Entry(0, {1, 1}, {1, 1}) +
                           Entry(11, {12, 1}, {1, 1}) + Entry(12, {1, 0}, {2, 5}) +
                           Entry(10, {1, 2}, {1, 1}) + Entry(13, {44, 1}, {1, 1}));
  }
};

TEST_F(EntriesTest, AnEntryBringsItsGolfer) {
  Write("X0012.Q9G", Entry(11) + Entry(0) + Entry(-4) + "torn");
  EXPECT_EQ(player.TourFileLength(), 3);
  EXPECT_TRUE(player.GetRecord(1, true));
  EXPECT_EQ(player.NameLast(), "Last11");
  EXPECT_EQ(player.RecordNumber(), "011");
  for (const int record : {0, -1}) {
    for (const bool entry : {true, false}) EXPECT_FALSE(player.GetRecord(record, entry));
  }
  EXPECT_EQ(player.TourRosterRecordPointer(), 11);
  for (const auto& [record, held] : {std::pair{2, "000"}, {3, "-004"}}) {
    EXPECT_TRUE(player.GetRecord(record, true));
    EXPECT_EQ(player.NameLast(), "Last11");  // no golfer was read
    EXPECT_EQ(player.RecordNumber(), held);
  }
}

TEST_F(EntriesTest, SavingWritesTheBufferWorkedOnLast) {
  const std::string golfers = Read("QBGOLFER.Q9D");
  Write("X0012.Q9G", Entry(11, {3}));
  player.GetRecord(1, true);
  player.SetNameLast("Unsaved");
  player.SetTourTeamOn(1, 4);
  player.SaveRecord();
  EXPECT_EQ(Read("X0012.Q9G"), Entry(11, {4}));
  player.SaveRecord(2);
  EXPECT_EQ(Read("X0012.Q9G"), Entry(11, {4}) + Entry(11, {4}));
  EXPECT_EQ(player.RecordNumber(), "002");  // until the next read
  EXPECT_EQ(Read("QBGOLFER.Q9D"), golfers);
  player.GetRecord(5, false);
  player.SetNameFirst("Ann");
  player.SaveRecord();
  player.SaveRecord(2, true);
  EXPECT_EQ(Read("QBGOLFER.Q9D").substr(1867 * 4 + 16, 11), "Ann        ");
  EXPECT_EQ(Read("X0012.Q9G").size(), 2 * 3052u);
}

TEST_F(EntriesTest, CountingAndFreeEntries) {
  WriteSix();
  EXPECT_EQ(player.TourNumberofPlayersInTournament(), 4);
  const std::pair<int, int> rows[] = {{1, 2}, {2, 2}, {3, 6}, {6, 6}, {7, 7}, {9, 9}};
  for (const auto& [start, found] : rows) {
    EXPECT_EQ(player.TourFindAvailableRecordInFile(start), found) << start;
  }
  Write("X0012.Q9G", Entry(1) + Entry(12));
  EXPECT_EQ(tournament.NumPlayersInTournament(), 2);
  EXPECT_EQ(player.TourFindAvailableRecordInFile(1), 3);
  player.TourDeleteTournamentFile(12);
  EXPECT_FALSE(install.folder.Exists("qbdata/X0012.Q9G"));
  player.TourDeleteTournamentFile(12);  // the error is ignored
  EXPECT_EQ(ErrorOf([&] { player.TourFileLength(); }), 52);
}

// In round 1 the records 1, 3, 4 and 5 have the keys 2001, 1, 1002 and 1001, since team 12 counts
// as no team. In round 2 they have the keys 1001, 1001, 5 and 2001. The exchange over two places
// then moves record 1 after record 3.
TEST_F(EntriesTest, IndexByTeam) {
  WriteSix();
  std::string expected = Read("X0012.Q9G");
  Put16(expected, 2 * 3052 + 2, {0});
  EXPECT_EQ(ErrorOf([&] { player.TourIndexPlayerbyTeam(1, 1); }), 9);  // no index exists yet
  EXPECT_EQ(player.TourIndexNumberofPlayersInIndex(), 4);
  EXPECT_EQ(Read("X0012.Q9G"), expected);
  const struct {
    int round;
    std::vector<int> records, first_on_team;
  } rows[] = {{1, {0, 3, 5, 4, 1, 0, 0}, {1, 2, 4, 0, 0, 0, 0, 0, 0, 0, 0}},
              {2, {0, 4, 3, 1, 5, 0, 0}, {1, 2, 4, 0, 0, 0, 0, 0, 0, 0, 0}},
              {3, {0, 0, 0, 0, 0, 0, 0}, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}}};
  for (const auto& row : rows) {
    std::vector<int> records, first;
    for (int i = 0; i <= 6; ++i) records.push_back(player.TourIndexPlayerbyTeam(i, row.round));
    for (int t = 0; t <= 10; ++t) first.push_back(player.TourIndex1stPlayerOnTeam(t, row.round));
    EXPECT_EQ(records, row.records) << row.round;
    EXPECT_EQ(first, row.first_on_team) << row.round;
  }
  const std::function<void()> errors[] = {[&] { player.TourIndex1stPlayerOnTeam(11, 1); },
                                          [&] { player.TourIndex1stPlayerOnTeam(-1, 1); },
                                          [&] { player.TourIndexPlayerbyTeam(7, 1); },
                                          [&] { player.TourIndexPlayerbyTeam(1, 8); }};
  for (const auto& error : errors) EXPECT_EQ(ErrorOf(error), 9) << &error - errors;
}

TEST_F(EntriesTest, AnIndexOutOfDate) {
  WriteSix();
  player.IndexPlayersByTeam();
  player.GetRecord(4, true);
  player.SetTourTeamOn(1, 3);
  player.SaveRecord(4, true);
  EXPECT_EQ(player.TourIndexPlayerbyTeam(3, 1), 4);  // the old index
  EXPECT_EQ(player.TourIndex1stPlayerOnTeam(3, 1), 4);
  EXPECT_EQ(player.TourIndexPlayerbyTeam(3, 1), 1);
  Write("X0013.Q9G", Entry(12));
  player.TourOpenTournamentFile(13);
  EXPECT_EQ(player.TourIndexNumberofPlayersInIndex(), 1);
}

TEST_F(EntriesTest, BlankEntryByteForByte) {
  std::string expected(3052, '\0');
  expected.replace(44, 14, Pattern(3052), 44, 14);
  expected.replace(142, 7, "AAAAAAA");
  Put16(expected, 149, {1, 1, 1, 1, 1, 1, 1});
  for (std::size_t round = 0; round < 7; ++round) PutText(expected, 191 + 12 * round, 12, "0");
  PutText(expected, 275, 140);
  PutText(expected, 869, 2183);
  Load(Pattern(3052));
  player.TourBlankPlayerRecord();
  EXPECT_EQ(Saved(), expected);
}

TEST_F(EntriesTest, GettersMend) {
  std::string golfers = Read("QBGOLFER.Q9D");
  golfers[1867 * 2 + 43] = 1;  // golfer 3 is a lady
  Write("QBGOLFER.Q9D", golfers);
  tournament.SetNumTeesMenPlay(2);
  tournament.SetNumTeesLadiesPlay(4);
  const std::array<int, 3> groups[] = {{1, 0, 1}, {1, 2, 2}, {1, 3, 1},
                                       {3, 4, 4}, {3, 5, 1}, {3, -1, 1}};
  for (const auto& [golfer, stored, read] : groups) {
    std::string entry = Entry(golfer);
    Put16(entry, 161, {stored});
    Load(entry);
    EXPECT_EQ(player.TourGroupTee(7), read) << golfer << ": " << stored;
    Put16(entry, 161, {read});
    EXPECT_EQ(Saved(), entry) << golfer << ": " << stored;
  }
  const std::tuple<int, char, const char*> flights[] = {{3, '@', "A"},  {3, 'C', "C"},
                                                        {3, 'D', "A"},  {26, 'Z', "Z"},
                                                        {99, '[', "A"}, {26, '\xC4', "A"}};
  for (const auto& [count, stored, read] : flights) {
    std::string entry = Entry(1);
    entry[142] = stored;
    Load(entry);
    tournament.SetNumFlights(count);
    EXPECT_EQ(player.TourFlight(), read) << stored;
    EXPECT_EQ(Saved().substr(142, 1), read) << stored;
  }
}

TEST_F(EntriesTest, ATotalAndTheLockOfARound) {
  std::string entry = Entry(1);
  Load(entry);
  player.SetTourScoreGross(21, 2, 90);
  Put16(entry, FieldOf<TournamentPlayerLayout, "TourScoreGrossTotal">().offset + 2, {90});
  EXPECT_EQ(Saved(), entry);
  for (const auto& [value, locked] : {std::pair{"y", 1}, {"no", 0}, {"1", 1}, {"Yes", 0}}) {
    player.SetTourLockFlag(2, value);
    EXPECT_EQ(player.TourLockFlag(2), locked) << value;
  }
}

class TeamsTest : public EntriesTest {
 protected:
  TeamsTest() { team.OpenTeamFile(12); }
};

TEST_F(TeamsTest, TheLastTeamCanBeSavedButNotRead) {
  Write("X0012.Q9T", Pattern(1339 * 3));
  team.SetSponsor("kept");
  for (const int number : {0, -1, 200, 201}) EXPECT_FALSE(team.GetRecord(number)) << number;
  EXPECT_EQ(team.Sponsor(), "kept");
  EXPECT_EQ(team.TeamNumber(), 0);
  EXPECT_TRUE(team.GetRecord(2));
  team.SaveRecord();
  EXPECT_EQ(Read("X0012.Q9T"), Pattern(1339 * 3));
  team.SaveRecord(200);
  EXPECT_EQ(team.TeamNumber(), 200);
  EXPECT_EQ(Read("X0012.Q9T").substr(1339 * 199), Pattern(1339 * 3).substr(1339, 1339));
  EXPECT_TRUE(team.GetRecord(199));
  EXPECT_EQ(ErrorOf([&] { team.SaveRecord(0); }), 63);
}

TEST_F(TeamsTest, GettersMend) {
  std::string expected = Pattern(1339);
  Write("X0012.Q9T", expected);
  team.GetRecord(1);
  const std::pair<const char*, const char*> holes[] = {
      {"1", "01"}, {"2b", "02B"}, {" 9A", "09A"}, {"0", "01"},  {"10", "10"},
      {"", "01"},  {"x", "01"},   {"05", "05"},   {"-3", "01"}, {"10b", "10B"}};
  for (const auto& [stored, read] : holes) {
    team.SetTeeStartHole(2, stored);
    EXPECT_EQ(team.TeeStartHole(2), read) << stored;
    team.SaveRecord();
    PutText(expected, 163, 3, read);
    EXPECT_EQ(Read("X0012.Q9T"), expected) << stored;
  }
  for (const auto& [stored, read] : {std::pair{"[", "A"}, {"@", "A"}, {"zz", "Z"}, {"", "A"}}) {
    team.SetFlight(1, stored);
    EXPECT_EQ(team.Flight(), read) << stored;
  }
  const std::pair<double, const char*> times[] = {{17 / 24.0, "05:00 pm"}, {0, "12:00 am"},
                                                  {0.5, "12:00 pm"},       {0.52, "12:28 pm"},
                                                  {0.999999, "12:00 am"},  {45425.375, "09:00 am"}};
  for (const auto& [time, text] : times) {
    team.SetTeeTimeValue({}, time);
    EXPECT_EQ(team.TeeTimeHHMMAMPM(), text) << time;
  }
  EXPECT_EQ(team.TeeTimeValue(), 0.375f);
  for (const float none : {NAN, INFINITY, 1e30f}) {
    Put<float>(expected, 149, {none});
    Write("X0012.Q9T", expected);
    team.GetRecord(1);
    EXPECT_EQ(team.TeeTimeHHMMAMPM(7), "") << none;
  }
  team.SetCart1(7, " 7 ");
  EXPECT_EQ(team.Cart1(7), "7");
}

TEST_F(TeamsTest, NamedByTheirPlayers) {
  std::string file(1339 * 4, '\0');
  for (std::size_t number = 0; number < 4; ++number) PutText(file, 1339 * number, 40, " Stored ");
  Write("X0012.Q9T", file);
  WriteSix();
  const auto name_of = [&](int number) {
    team.GetRecord(number);
    return team.TeamName();
  };
  EXPECT_EQ(name_of(1), "Stored");
  tournament.SetTeamNamesMat("[PLAYER's last names]");
  EXPECT_EQ(name_of(1), "Last10, Last12");
  EXPECT_EQ(name_of(2), "Last10");
  EXPECT_EQ(name_of(3), "Stored");
  tournament.SetActiveRound(2);
  EXPECT_EQ(name_of(1), "Last11, Last10");
  // A golfer without a last name still adds a separator.
  player.GetRecord(11, false);
  player.SetNameLast("");
  player.SaveRecord();
  EXPECT_EQ(name_of(1), ", Last10");
  // The golfers of the last team have the positions 1 and 3, a golfer without a team has 2.
  tournament.SetActiveRound(1);
  Write("X0012.Q9G", Entry(10, {10}, {1}) + Entry(9, {0}, {2}) + Entry(12, {10}, {3}));
  player.IndexPlayersByTeam();
  EXPECT_EQ(name_of(10), "Last10, Last12");
}

}  // namespace
}  // namespace golf
