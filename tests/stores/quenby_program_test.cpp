#include "support/quenby_test.h"

namespace golf {
namespace {

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
  program.GetMasterRecord();  // of an empty file
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
