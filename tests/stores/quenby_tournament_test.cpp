#include <cmath>

#include "support/quenby_test.h"

namespace golf {
namespace {

// Returns a control record of the current version whose numbers are all 0.
std::string ZeroControl() {
  std::string record(1208, '\0');
  PutText(record, 0, 50, "Medal");
  PutText(record, 966, 34, "2005");
  return record;
}

class TournamentTest : public QuenbyTest {
 protected:
  void Load(const std::string& record) {
    Write("X0012.Q9C", record);
    tournament.OpenTournamentControlFile(12);
    tournament.GetRecord();
  }
  std::string Saved() {
    tournament.SaveRecord();
    return Read("X0012.Q9C");
  }
};

TEST_F(TournamentTest, GettersMend) {
  using T = TournamentControl;
  const auto as_text = [](auto getter) {
    return [getter](T& t) { return std::to_string((t.*getter)()); };
  };
  const struct {
    std::size_t offset;
    std::function<std::string(T&)> get;
    std::vector<std::pair<int, int>> stored_and_read;
  } rows[] = {
      {50, &T::NumRounds, {{0, 1}, {1, 1}, {5, 5}, {6, 5}, {-32768, 1}}},
      {52, &T::NumTeams, {{0, 1}, {200, 200}, {201, 200}}},
      {56, &T::NumFlights, {{0, 1}, {26, 26}, {27, 26}}},
      {58, &T::NumTeamFlights, {{0, 1}, {26, 26}, {32767, 26}}},
      {60, &T::NumTeesMenPlay, {{-1, 0}, {0, 0}, {6, 5}}},
      {62, &T::NumTeesLadiesPlay, {{-1, 0}, {5, 5}, {6, 5}}},
      {64, as_text(&T::RoundType), {{27, 18}, {9, 9}, {18, 18}, {-9, 18}}},
      {74, as_text(&T::TeamHandicapOption), {{0, 1}, {3, 3}, {4, 1}}},
      {80, as_text(&T::PointQuotaOption), {{0, 1}, {3, 3}, {4, 1}}},
      {106, as_text(&T::PositionOption), {{0, 1}, {2, 2}, {3, 1}}},
      {902, as_text(&T::PlayerFlightsDeterminedBy), {{-1, 0}, {4, 4}, {5, 0}}},
      {904, as_text(&T::TeamFlightsDeterminedBy), {{-1, 0}, {4, 4}, {5, 0}}},
  };
  for (const auto& row : rows) {
    for (const auto& [stored, read] : row.stored_and_read) {
      std::string record = ZeroControl();
      Put16(record, row.offset, {stored});
      Load(record);
      EXPECT_EQ(row.get(tournament), std::to_string(read)) << row.offset << ": " << stored;
      Put16(record, row.offset, {read});
      EXPECT_EQ(Saved(), record) << row.offset << ": " << stored;
    }
  }
}

TEST(TournamentOfFileTest, NumbersHaveFourToNineDigits) {
  const std::pair<const char*, int> rows[] = {
      {"x0000.q9c", 0},        {"X999999999.Q9C", 999999999},
      {"X1000000000.Q9C", -1}, {"X012.Q9C", -1},
      {"X00012.Q9C", -1},      {"X-001.Q9C", -1},
      {"X0012.Q9T", -1},       {"", -1}};
  for (const auto& [name, number] : rows) {
    EXPECT_EQ(TournamentOfFile(name).value_or(-1), number) << name;
  }
}

TEST_F(TournamentTest, DatesOfRounds) {
  Load(ZeroControl());
  state.DateFormat = "dd.mm.yy";
  const std::pair<double, std::string> rows[] = {
      {DateFromCivil({2024, 5, 3, 23, 59, 59}), "03.05.24"},
      {-1.75, "29.12.99"},  // 18:00 on the day before day 0
      {-657434, "01.01.00"},
      {-657435, ""},
      {2958465.5, "31.12.99"},
      {2958466, ""},
      {NAN, ""},
      {-INFINITY, ""}};
  for (const auto& [date, text] : rows) {
    tournament.SetDateofRound(7, date);
    EXPECT_EQ(tournament.DateofRound(7), text) << date;
  }
  for (const OptionalRound round : {OptionalRound(), OptionalRound(8)}) {  // the active round is 0
    EXPECT_EQ(tournament.DateofRound(round), "");
  }
}

TEST_F(TournamentTest, RecordOfAnOlderReleaseIsBroughtUpToDateInTheBuffer) {
  std::string old = Pattern(1208);
  old.replace(966, 4, "1999");
  Load(old);
  EXPECT_EQ(Read("X0012.Q9C"), old);
  Put<float>(old, 958, {99, 99});
  PutText(old, 966, 34, "2005Team #");
  old.replace(1000, 208, 208, '\0');
  EXPECT_EQ(Saved(), old);
  std::string current = Pattern(1208);
  current.replace(966, 4, "2005");
  Load(current);
  EXPECT_EQ(Saved(), current);
  Load("");  // the buffer is unchanged
  EXPECT_EQ(Saved(), current);
}

// Returns the control record that CreateBlankTournament must make of `record`.
std::string BlankControl(std::string record) {
  PutText(record, 0, 50);
  Put16(record, 50, {1, 10, 4, 4, 4, 1, 1, 18, 0, 0, 0, 0, 1});
  Put<float>(record, 76, {25});
  Put16(record, 80, {1, 36, 8, 8, 8, 8, 4, 2, 1, 0, 0, 0, 0, 1});
  for (std::size_t i = 0; i < 7; ++i) Put<double>(record, 108 + 8 * i, {45425});  // 13 May 2024
  record.replace(164, 154, 154, '\0');
  for (std::size_t i = 0; i < 70; ++i) Put<float>(record, 318 + 4 * i, {100});
  record.replace(598, 280, 280, '\0');
  Put16(record, 878, {1});
  Put16(record, 906, {1, 1});
  record.replace(1000, 208, 208, '\0');
  return record;
}

std::string TeamFile(const std::string& pattern, std::string record) {
  PutText(record, 40, 40);
  PutText(record, 80, 7, "AAAAAAA");
  record.replace(87, 14, 14, '\0');
  for (std::size_t round = 0; round < 7; ++round) {
    record.replace(101 + 8 * round, 4, "\x55\x55\x35\x3F");
    PutText(record, 157 + 6 * round, 3, "1");
  }
  PutText(record, 199, 1140);
  std::string file;
  for (int team = 1; team <= 200; ++team) {
    PutText(record, 0, 40, pattern + std::to_string(team));
    file += record;
  }
  return file;
}

TEST_F(TournamentTest, CreateBlankTournamentByteForByte) {
  std::string before = Pattern(1208);
  before.replace(966, 4, "2005");
  for (const auto& [pattern, written] : {std::pair{"Team #", "Team #"}, {"Pair", "Pair "}}) {
    PutText(before, 970, 30, pattern);
    Load(before);
    Write("X0013.Q9T", Pattern(1339));
    team.OpenTeamFile(13);
    team.GetRecord(1);  // its second tee times and starting holes must not change
    tournament.CreateBlankTournament(12);
    EXPECT_EQ(tournament.IDNum(), 12);
    EXPECT_EQ(Read("X0012.Q9C"), before);  // not written yet
    EXPECT_EQ(Saved(), BlankControl(before));
    EXPECT_EQ(Read("X0012.Q9T"), TeamFile(written, Pattern(1339)));
  }
}

TEST_F(TournamentTest, AFreshObjectMakesACurrentRecord) {
  std::string expected = BlankControl(std::string(1208, '\0'));
  Put<float>(expected, 958, {99, 99});
  PutText(expected, 966, 34, "2005Team #");
  tournament.CreateBlankTournament(12);
  EXPECT_EQ(Saved(), expected);
  EXPECT_EQ(Read("X0012.Q9T").substr(1339 * 199, 40), "Team #200" + std::string(31, ' '));
}

TEST_F(TournamentTest, TheFileOfDefaultsOverridesABlankTournament) {
  std::string defaults = Pattern(1208);
  Put16(defaults, 50, {3});
  PutText(defaults, 966, 34, "2005Pair");
  Write("DEFAULT.q9c", defaults);
  tournament.CreateBlankTournament(12345);
  Put16(defaults, 878, {1});
  Put16(defaults, 906, {1, 1});
  tournament.SaveRecord();
  EXPECT_EQ(Read("X12345.Q9C"), defaults);
  EXPECT_EQ(Read("X12345.Q9T").substr(1339 * 199, 40), "Pair 200" + std::string(32, ' '));
  tournament.OpenTournamentControlFile(-1);
  EXPECT_EQ(tournament.IDNum(), -1);
  tournament.DeleteTournamentControlFile(12345);
  EXPECT_FALSE(install.folder.Exists("qbdata/X12345.Q9C"));
  EXPECT_EQ(ErrorOf([&] { tournament.GetRecord(); }), 52);
}

class ProgramTest : public QuenbyTest {};

TEST_F(ProgramTest, ADeletedRosterKeepsItsOtherBytes) {
  std::string record = Pattern(413);
  Write("QBROSTER.Q9D", record + record + "torn");
  program.OpenRosterListFile();
  program.SetClubName(" " + std::string(40, 'n'));
  EXPECT_EQ(program.ClubName(), std::string(39, 'n'));
  program.DeleteRosterRecord(2);
  Put16(record, 0, {0});
  EXPECT_EQ(Read("QBROSTER.Q9D"), Pattern(413) + record + "torn");
}

TEST_F(ProgramTest, OpeningTheMasterFileAgainWritesTheBufferBack) {
  EXPECT_TRUE(program.OpenMasterFile());
  program.SetActiveRoster(3);
  program.SetRosterColumnSortedHow(1, true);
  program.GetMasterRecord();  // the file is empty
  EXPECT_EQ(program.ActiveRoster(), 3);
  EXPECT_EQ(Read("QBMASTER.Q9D"), "");
  EXPECT_TRUE(program.OpenMasterFile());
  EXPECT_EQ(Int16At(Read("QBMASTER.Q9D"), 4), 3);
  EXPECT_EQ(Int16At(Read("QBMASTER.Q9D"), 72), -1);
  program.SetActiveRoster(4);
  install.platform->Fail({ErrorNumber::kDiskFull, 1, Operation::kWrite});
  program.SaveMasterRecord();
  EXPECT_TRUE(install.platform->Failed());
  EXPECT_EQ(Int16At(Read("QBMASTER.Q9D"), 4), 3);
  install.platform->Fail({ErrorNumber::kPermissionDenied, 1, Operation::kOpen});
  EXPECT_FALSE(program.OpenMasterFile());
  EXPECT_EQ(ErrorOf([&] { program.GetMasterRecord(); }), 52);
}

}  // namespace
}  // namespace golf
