#include "stores/quenby/program_class.h"
#include "support/quenby_test.h"

namespace golf {
namespace {

class ProgramTest : public QuenbyTest {};

TEST_F(ProgramTest, RosterBufferIsKeptWhereThereIsNoRecord) {
  program.OpenRosterListFile();
  program.SetClubName("One");
  program.SaveRosterRecord(1);
  EXPECT_EQ(program.RosterListFileLength(), 1);
  program.SetClubName("Two");
  for (const int roster : {0, 2, -1}) {
    program.GetRosterRecord(roster);
    EXPECT_EQ(program.ClubName(), "Two") << roster;
  }
  program.SaveRosterRecord(2);
  program.SaveRosterRecord(6);
  EXPECT_EQ(program.RosterListFileLength(), 6);
  program.GetRosterRecord(4);  // in the gap
  EXPECT_EQ(program.ClubName(), std::string(40, '\0'));
  EXPECT_FALSE(program.IsRosterActive());
  program.GetRosterRecord(1);
  EXPECT_EQ(program.ClubName(), "One");
  EXPECT_EQ(ErrorOf([&] { program.SaveRosterRecord(0); }), 63);
}

TEST_F(ProgramTest, RosterRecordByteForByte) {
  const std::string first = Pattern(413);
  Write("QBROSTER.Q9D", first + first + "torn");
  program.OpenRosterListFile();
  program.GetRosterRecord(2);
  EXPECT_TRUE(program.IsRosterActive());
  program.SetIsRosterActive(true);
  program.SetClubName(" " + std::string(40, 'n'));
  program.SetClubAddress(3, "Road");
  program.SetClubPhone("0123456789abc");
  EXPECT_EQ(program.ClubName(), std::string(39, 'n'));
  program.SaveRosterRecord(2);
  std::string second = first;
  Put16(second, 0, {-1});
  PutText(second, 67, 40, " " + std::string(39, 'n'));
  PutText(second, 167, 30, "Road");
  PutText(second, 197, 12, "0123456789ab");
  EXPECT_EQ(Read("QBROSTER.Q9D"), first + second + "torn");
  program.DeleteRosterRecord(2);
  Put16(second, 0, {0});
  EXPECT_EQ(Read("QBROSTER.Q9D"), first + second + "torn");
  for (const int i : {0, 4}) EXPECT_EQ(ErrorOf([&] { program.ClubAddress(i); }), 9);
}

TEST_F(ProgramTest, MasterRecordByteForByte) {
  std::string expected = Pattern(1042);
  Write("qbmaster.q9d", expected);
  EXPECT_TRUE(program.OpenMasterFile());
  program.GetMasterRecord();
  program.SetActiveRoster(-1);
  program.SetLastRosterViewLoaded(" view ");
  program.SetRosterColumnSorted(3, 7);
  program.SetRosterColumnSortedHow(1, true);
  program.SetActiveTournament(70000);
  program.SetLastTournamentViewLoaded(std::string(61, 'v'));
  program.SetMiscTourTextFieldName(10, "tour text that is cut");
  program.SetMiscTextFieldName(1, "text");
  program.SetMiscDateFieldName(5, "date");
  program.SetMiscCurrFieldName(5, "currency");
  EXPECT_EQ(program.LastRosterViewLoaded(), "view");
  EXPECT_EQ(program.MiscTourTextFieldName(10), "tour text th");
  program.SaveMasterRecord();
  Put16(expected, 4, {-1});
  PutText(expected, 6, 60, " view ");
  Put16(expected, 70, {7, -1});
  Put<std::int32_t>(expected, 618, {70000});
  PutText(expected, 622, 60, std::string(60, 'v'));
  PutText(expected, 790, 12, "tour text th");
  PutText(expected, 802, 12, "text");
  PutText(expected, 970, 12, "date");
  PutText(expected, 1030, 12, "currency");
  EXPECT_EQ(Read("qbmaster.q9d"), expected);
  for (const int i : {0, 11}) EXPECT_EQ(ErrorOf([&] { program.MiscTextFieldName(i); }), 9);
  for (const int i : {0, 6}) EXPECT_EQ(ErrorOf([&] { program.MiscCurrFieldName(i); }), 9);
  for (const int i : {0, 4}) EXPECT_EQ(ErrorOf([&] { program.SetRosterColumnSorted(i, 1); }), 9);
}

TEST_F(ProgramTest, OpeningTheMasterFileAgainWritesTheBufferBack) {
  EXPECT_TRUE(program.OpenMasterFile());
  program.SetActiveRoster(3);
  program.GetMasterRecord();  // of an empty file
  EXPECT_EQ(program.ActiveRoster(), 3);
  EXPECT_EQ(Read("QBMASTER.Q9D"), "");
  EXPECT_TRUE(program.OpenMasterFile());
  EXPECT_EQ(Int16At(Read("QBMASTER.Q9D"), 4), 3);
  program.SetActiveRoster(4);
  install.platform->Fail({ErrorNumber::kDiskFull, 1, Operation::kWrite});
  program.SaveMasterRecord();
  EXPECT_TRUE(install.platform->Failed());
  EXPECT_EQ(Int16At(Read("QBMASTER.Q9D"), 4), 3);
  install.platform->Fail({ErrorNumber::kPermissionDenied, 1, Operation::kOpen});
  EXPECT_FALSE(program.OpenMasterFile());
  EXPECT_EQ(ErrorOf([&] { program.GetMasterRecord(); }), 52);
}

// A write of another file that was still to be made is not the master record's.
TEST_F(ProgramTest, OnlyItsOwnFailureIsSwallowed) {
  program.OpenMasterFile();
  for (const bool opens : {false, true}) {
    const JoinedWrites joined(state.files);
    program.OpenRosterListFile();
    program.SaveRosterRecord(1);
    install.platform->Fail({ErrorNumber::kDiskFull, 1, Operation::kWrite, "QBROSTER.Q9D"});
    EXPECT_EQ(ErrorOf([&] { opens ? void(program.OpenMasterFile()) : program.SaveMasterRecord(); }),
              61);
  }
}

}  // namespace
}  // namespace golf
