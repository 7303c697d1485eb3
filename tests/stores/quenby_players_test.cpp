#include <cmath>
#include <limits>

#include "support/quenby_test.h"

namespace golf {
namespace {

class RosterPlayersTest : public QuenbyTest {
 protected:
  RosterPlayersTest() { player.OpenRosterFile(); }

  void Load(const std::string& record) {
    Write("QBGOLFER.Q9D", record);
    player.GetRecord(1, false);
  }
  void LoadWith16(std::size_t at, std::initializer_list<int> values) {
    std::string record(1867, '\0');
    Put16(record, at, values);
    Load(record);
  }
  std::string Saved() {
    player.SaveRecord(1, false);
    return Read("QBGOLFER.Q9D");
  }
};

TEST_F(RosterPlayersTest, ClearingAFlagClearsTheHighBits) {
  const struct {
    const char* print;
    bool cart;
    int before, after;
  } rows[] = {{"y", true, 0x7FFE, 0x7FFF},
              {"Y", true, -2, -1},
              {"Yes", false, -1, 0x1FE},
              {"", false, 0x201, 0}};
  for (const auto& row : rows) {
    LoadWith16(0, {row.before, row.before});
    player.SetPrintPlayer(row.print);
    player.SetCart(row.cart);
    EXPECT_EQ(Int16At(Saved(), 0), row.after) << row.print;
    EXPECT_EQ(Int16At(Saved(), 2), row.after) << row.print;
    EXPECT_EQ(player.PrintPlayer(), row.cart);
    EXPECT_EQ(player.CartString(), row.cart ? "Y" : " ");
  }
}

TEST_F(RosterPlayersTest, GettersMend) {
  for (const auto& [stored, read] : {std::pair{0, 1}, {1, 1}, {5, 5}, {6, 1}, {-7, 1}}) {
    LoadWith16(425, {stored});
    EXPECT_EQ(player.GroupTee(), read) << stored;
    EXPECT_EQ(Int16At(Saved(), 425), read) << stored;
    double value = stored;
    player.SetGroupTee(value);
    EXPECT_EQ(value, read);
  }
  const std::pair<char, char> flights[] = {{'@', 'A'}, {'A', 'A'},  {'Z', 'Z'},   {'[', 'A'},
                                           {'b', 'A'}, {'\0', 'A'}, {'\xC4', 'A'}};
  for (const auto& [stored, read] : flights) {
    player.SetFlight(std::string(2, stored));
    EXPECT_EQ(Saved()[424], stored);
    EXPECT_EQ(player.Flight(), std::string(1, read));
    EXPECT_EQ(Saved()[424], read);
  }
  const std::tuple<int, std::string, int> sexes[] = {
      {0, "M", 0}, {1, "F", 1}, {2, "F", 0}, {255, "F", 0}};
  for (const auto& [stored, before, mended] : sexes) {
    std::string record(1867, '\0');
    record[43] = static_cast<char>(stored);
    Load(record);
    EXPECT_EQ(player.sex(), before);
    EXPECT_EQ(player.SexIndice(), mended);
    EXPECT_EQ(Saved()[43], mended);
  }
}

TEST_F(RosterPlayersTest, NumbersAndDatesAsText) {
  const struct {
    float value;
    const char *index, *index_value, *handicap, *handicap_value, *two_places;
  } rows[] = {{12.4f, "12.4", "12.4", "12", "12", "12.40"},
              {-1.25f, "+1.3", "-1.3", "+1", "-1", "+1.25"},
              {-0.04f, "+0.0", "-0.0", "+0", "-0", "+0.04"},
              {12.49999f, "12.5", "12.5", "13", "13", "12.50"}};
  for (const auto& row : rows) {
    player.SetIndex(row.value);
    player.SetHandicap(row.value);
    EXPECT_EQ(player.Index(), row.index);
    EXPECT_EQ(player.IndexValue(), row.index_value);
    EXPECT_EQ(player.Handicap(false), row.handicap);
    EXPECT_EQ(player.HandicapValue(false), row.handicap_value);
    EXPECT_EQ(player.Handicap(true), row.two_places);
  }
  for (const auto& [id, text] : {std::pair{0, ""}, {-1, ""}, {70000, "70000"}}) {
    player.SetIDNum(id);
    EXPECT_EQ(player.IDNum(), text);
    EXPECT_EQ(player.PlayerExists(), id > 0);
  }
  const std::pair<std::int64_t, const char*> amounts[] = {
      {12349, "1.23"}, {12350, "1.24"},
      {-50, "-0.01"},  {99999950, "10000.00"},
      {0, "0.00"},     {std::numeric_limits<std::int64_t>::min(), "-922337203685477.58"}};
  for (const auto& [amount, text] : amounts) {
    player.SetMiscCurrency(5, amount);
    EXPECT_EQ(player.MiscCurrency(5), text);
  }
  player.SetMiscDate(2, DateFromCivil({2031, 12, 1, 18, 0, 0}));
  player.SetDueDate(NAN);
  state.DateFormat = "yy-mm-dd";
  EXPECT_EQ(player.MiscDateString(2), "31-12-01");
  EXPECT_EQ(player.MiscDateString(3), "");
  EXPECT_EQ(player.DueDateString(), "");
  for (const auto& [set, read] : {std::pair{"EARLY", "Early"}, {"late", "Late"}, {"x", "None"}}) {
    player.SetPreferredTime(set);
    EXPECT_EQ(player.PreferredTime(), read);
  }
}

TEST_F(RosterPlayersTest, ComposedTexts) {
  const char* names[][4] = {{"Ann", "Bell", "Bell, Ann", "Ann Bell"},
                            {" Ann ", "", "", "Ann"},
                            {"", "Bell", "Bell, ", " Bell"},
                            {"Elizabeth Anne", "Featherstonehaugh", "Featherstonehaug, Elizabeth A",
                             "Elizabeth A Featherstonehaug"}};
  for (const auto& [first, last, last_first, first_last] : names) {
    player.SetNameFirst(first);
    player.SetNameLast(last);
    EXPECT_EQ(player.NameLF(), last_first);
    EXPECT_EQ(player.NameFL(), first_last);
  }
  player.BlankPlayerRecord();
  player.SetAddressHomeLine(4, "never shown");
  EXPECT_EQ(player.AddressHomeFull(), "");
  player.SetAddressHomeLine(2, " Larkfield ");
  EXPECT_EQ(player.AddressHomeFull(), "; Larkfield; ");
  EXPECT_EQ(ErrorOf([&] { player.RosterNames(5); }), 9);
}

TEST_F(RosterPlayersTest, RosterSlotsArePacked) {
  using Slots = std::array<int, 4>;
  const struct {
    Slots before;
    int n, value;
    Slots after;
  } rows[] = {{{0, 0, 0, 0}, 3, 5, {5, 0, 0, 0}},  {{9, 5, 7, 0}, 1, 0, {5, 7, 0, 0}},
              {{5, 0, 0, 0}, 2, 5, {5, 0, 0, 0}},  {{5, 7, 9, 0}, 3, 5, {7, 5, 0, 0}},
              {{5, 7, 9, 0}, 1, 9, {9, 7, 0, 0}},  {{5, 7, 9, 0}, 2, 0, {5, 9, 0, 0}},
              {{0, 0, 7, 0}, 4, 7, {0, 0, 0, 7}},  {{5, 7, 0, 5}, 2, 5, {5, 0, 0, 5}},
              {{-3, 0, 7, 0}, 3, 7, {7, 0, 0, 0}}, {{5, 7, 0, 0}, 3, -2, {5, 7, -2, 0}}};
  for (const auto& row : rows) {
    LoadWith16(8, {row.before[0], row.before[1], row.before[2], row.before[3]});
    player.SetRosters(row.n, row.value);
    const Slots after = {player.Rosters(1), player.Rosters(2), player.Rosters(3),
                         player.Rosters(4)};
    EXPECT_EQ(after, row.after) << "slot " << row.n << " to " << row.value;
  }
}

TEST_F(RosterPlayersTest, RosterNames) {
  program.OpenRosterListFile();
  for (int roster = 1; roster <= 3; ++roster) {
    program.SetClubName(" Club " + std::to_string(roster));
    program.SaveRosterRecord(roster);
  }
  const std::string none = std::string(30, ' ') + "000";
  const std::string far(50, ' ');
  const struct {
    std::initializer_list<int> slots;
    int which;
    std::string text;
  } rows[] = {{{2, 1, 3, 1}, 0, "Club 2;  Club 1;  Club 3"},
              {{0, 1, 256, 3}, 0, ";  Club 1"},  // the empty slot keeps its separator
              {{}, 0, ""},
              {{}, 1, "(Not in a roster)" + none},
              {{256, -1, 0, 0}, 2, "(Not in another roster)" + none},
              {{2, 0, 0, 0}, 1, "Club 2" + far + "002"},
              {{0, 0, 0, 3}, 4, "Club 3" + far + "003"},
              {{255, 0, 0, 0}, 1, "Club 3" + far + "255"}};  // not in the list: name read last
  for (const auto& row : rows) {
    LoadWith16(8, row.slots);
    EXPECT_EQ(player.RosterNames(row.which), row.text);
  }
}

TEST_F(RosterPlayersTest, FreeRecordsStartBehindTheFirstNine) {
  std::string golfer(1867, '\0');
  Put<std::int32_t>(golfer, 4, {5});
  Write("QBGOLFER.Q9D", std::string(1867 * 9, '\0') + golfer);
  for (const auto& [start, raised, found] : {std::tuple{1, 10, 11}, {-5, 10, 11}, {40, 40, 40}}) {
    auto from = static_cast<std::int16_t>(start);
    EXPECT_EQ(player.FindAvailableRecordInRosterFile(from), found) << start;
    EXPECT_EQ(from, raised);
    EXPECT_EQ(player.RecordNumber(), "010");  // the last record that was examined
  }
}

}  // namespace
}  // namespace golf
