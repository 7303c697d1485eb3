// Tests of the roster pickers and of what screens remember.

#include "screens/rosters/load_roster.h"
#include "screens/rosters/load_rosters.h"
#include "screens/transfers/kv_to_qb.h"
#include "support/bytes.h"
#include "support/file_checks.h"

namespace golf {
namespace {

class PickersTest : public testing::Test {
 protected:
  template <class AnyScreen>
  void With(const char* name, const std::function<void(AnyScreen&)>& work) {
    install.Open(name, [&](Screen& screen) { work(dynamic_cast<AnyScreen&>(screen)); });
  }
  void Press(Screen& screen, const char* button) { install.host->Press(screen, button); }

  TestInstall install;
};

std::string Column(const Grid& grid, int column) {
  std::string texts;
  for (int row = 1; row <= grid.rows(); ++row) texts += grid.text(column, row) + ";";
  return texts;
}

TEST_F(PickersTest, KelvaneRostersAreMadePickedAndDeleted) {
  for (const char* name : {"old.kv5", "OLD.KVG", "old.kvs", "old.KVX", "cut.KV5"}) {
    install.folder.Write(std::string("kvdata/") + name, "x");
  }
  With<LoadRoster>("LoadRoster", [&](LoadRoster& picker) {
    EXPECT_EQ(Column(picker.grid1, 1) + Column(picker.grid1, 2), "0 hole;0 hole;CUT;OLD;");
    Press(picker, "LoadButton");
    Press(picker, "DeleteButton");
    Press(picker, "NewButton");
    EXPECT_TRUE(picker.grid1.IsShown());  // the answer was No
    install.host->QueueAnswer("New Roster", "Yes", true);
    Press(picker, "NewButton");
    EXPECT_FALSE(picker.grid1.IsShown() || picker.LoadButton.IsShown());
    EXPECT_EQ(picker.NewRosterName.key_filter('-'), 0);
    Press(picker, "OK2Button");
    for (const auto& [name, fault] : {std::pair{"../../evil", "A roster name cannot hold any of "},
                                      {"con", "A roster name cannot be CON, which"}}) {
      picker.NewRosterName.SetText(name);
      Press(picker, "OK2Button");
      EXPECT_NE(install.LastMessage().find(fault), std::string::npos) << name;
    }
    picker.NewRosterName.SetText("Old");
    Press(picker, "OK2Button");
    picker.NewRosterName.SetText("Nines");
    install.host->QueueAnswer("What kind of roster?", "19");
    Press(picker, "OK2Button");
    install.host->QueueAnswer("What kind of roster?", "9");
    Press(picker, "OK2Button");
    Press(picker, "NewButton");
    picker.NewRosterName.SetText("Full");
    Press(picker, "OK2Button");
    EXPECT_EQ(picker.grid1.active_row(), 2);
    EXPECT_EQ(Column(picker.grid1, 1), "0 hole;18 hole;9 hole;0 hole;");
    picker.grid1.SetActiveRow(4);
    Press(picker, "DeleteButton");  // the answer was NO
    install.host->QueueAnswer("DELETE Roster?", "y", true);
    Press(picker, "DeleteButton");
    EXPECT_EQ(Column(picker.grid1, 2), "CUT;FULL;NINES;");
    picker.grid1.SetActiveRow(2);
    Press(picker, "DeleteButton");  // the open roster: it asks again, and the answer was No
    picker.grid1.SetActiveRow(1);
    Press(picker, "LoadButton");
  });
  EXPECT_EQ(install.state().KVRosterName, "CUT");
  std::string titles;
  for (const std::string& event : install.events()) {
    if (event.find('[') == std::string::npos) continue;
    titles += event.substr(event.find('['), event.find(']') - event.find('[') + 1);
  }
  EXPECT_EQ(
      titles,
      "[Load Roster][DELETE Roster][New Roster][New Roster][Notice][Notice][Notice]"
      "[Can't Replace Roster][What kind of roster?][Message][What kind of roster?][New Roster]"
      "[What kind of roster?][DELETE Roster?][DELETE Roster?][DELETE Roster?]"
      "[Delete roster?]");
  for (const char* name : {"old.kv5", "OLD.KVG", "old.kvs", "old.KVX"}) {
    EXPECT_FALSE(install.folder.Exists(std::string("kvdata/") + name)) << name;
  }
  EXPECT_EQ(install.folder.Read("kvdata/Nines.kv5").size(), 781u);
  EXPECT_EQ(install.folder.Read("kvdata/Nines.kv5")[152], 9);
}

TEST_F(PickersTest, QuenbyRostersAreKept) {
  std::string golfers;
  for (const auto& rosters : {std::array{2, 1, 0}, std::array{2, 0, 0}, std::array{1, 0, 0}}) {
    std::string golfer(1867, 'g');
    Put(golfer, 4, {std::int32_t{7}});
    Put16(golfer, 8, {rosters[0], rosters[1], rosters[2], 2});
    golfers += golfer;
  }
  install.folder.Write("qbdata/QBGOLFER.Q9D", golfers);
  With<LoadRosters>("LoadRosters", [&](LoadRosters& manager) {
    EXPECT_EQ(Column(manager.grid1, 0), "-1;");
    EXPECT_FALSE(manager.EditButton.IsShown() || manager.DeleteButton.IsShown());
    install.host->QueueAnswer("New Roster", "Yes", true);
    for (const char* name : {" ", "Zebra", "alpha", "Mid"}) {
      if (manager.ButtonFrame.visible()) Press(manager, "NewButton");
      EXPECT_FALSE(manager.LoadButton.IsShown() || manager.grid1.IsUsable());
      manager.Text1[0].SetText(name);
      for (const std::size_t line : {3u, 4u})
        manager.Text1[line].SetText(std::to_string(line) + name);
      Press(manager, "AddEditRosterOK");
    }
    EXPECT_EQ(Column(manager.grid1, 0), "-1;2;3;1;");
    EXPECT_EQ(Column(manager.grid1, 4) + Column(manager.grid1, 5),
              ";3alpha;3Mid;3Zebra;;4alpha;4Mid;4Zebra;");
    Press(manager, "NewButton");
    Press(manager, "AddRosterCancel");
    EXPECT_EQ(manager.grid1.rows(), 4);
    manager.grid1.SetActiveRow(2);
    Press(manager, "DeleteButton");  // the answer was NO
    EXPECT_EQ(manager.grid1.rows(), 4);
    install.host->QueueAnswer("DELETE Roster?", "Yes");
    manager.grid1.SetActiveRow(2);
    Press(manager, "DeleteButton");
    Press(manager, "NewButton");
    EXPECT_EQ(manager.grid1.text(0, manager.grid1.active_row()), "2");
    Press(manager, "AddRosterCancel");
    manager.grid1.SetActiveRow(2);
    Press(manager, "EditButton");
    EXPECT_EQ(manager.Text1[0].text() + manager.Text1[4].text(), "Mid4Mid");
    manager.Text1[0].SetText("Zz");
    Press(manager, "AddEditRosterOK");
    EXPECT_EQ(Column(manager.grid1, 1), "(Show ALL Rosters);Zebra;Zz;");
  });
  EXPECT_TRUE(Told(install, "message [Notice] You did not enter a name for your roster. -> OK"));
  Put16(golfers, 8, {1, 0, 0});
  Put(golfers, 1867 + 4, {std::int32_t{-1}});
  Put16(golfers, 1867 + 8, {0, 0, 0});
  EXPECT_TRUE(Holds(install.folder, "qbdata/QBGOLFER.Q9D", golfers));
  EXPECT_EQ(install.folder.Read("qbdata/QBROSTER.Q9D").size(), 3 * 413u);
}

// Reads the two ticks, both rosters, the third tick, and the first two cells of the grid.
TEST_F(PickersTest, DamagedSettingsAreSurvived) {
  const std::pair<const char*, const char*> kCases[] = {
      {"", "00|0 00"},
      {"1\r\n0\r\n\"to\"\r\n\"from\"\r\n1\r\n\"1\"\r\n\"0\"\r\n", "10to|from1 10"},
      {"1\n1\n\"to\"", "11to|0 00"},
      {"2\r\n-1\r\n\"t\"o\"\r\n\"two\r\nlines\"\r\n1\r\n\"x\"\r\n\"1\"", "00|two\r\nlines1 01"},
      {"\"1\"\r\n1\r\nbare\r\n\r\n99999999999999\r\n1\r\n\"1", "01|0 00"},
      {"1\r\n\"no end", "10|0 00"},
  };
  for (const auto& [file, shown] : kCases) {
    install.folder.Write("qbdata/KVtoQB.DAT", file);
    install.Restart();
    With<KVtoQB>("KVtoQB", [&, shown = shown](KVtoQB& screen) {
      const auto tick = [](bool on) { return std::string(on ? "1" : "0"); };
      EXPECT_EQ(tick(screen.Convert9Hcpto18Hcp.value()) + tick(screen.Convert18Hcpto9Hcp.value()) +
                    screen.TournamentRoster.text() + "|" + screen.HandicapRoster.text() +
                    tick(screen.MarkedtoPrint.value()) + " " + screen.grid1.text(2, 2) +
                    screen.grid1.text(2, 3),
                shown);
    });
  }
}

}  // namespace
}  // namespace golf
