#include <cmath>
#include <numeric>

#include "screens/rosters/load_roster.h"
#include "screens/rosters/load_rosters.h"
#include "screens/transfers/kv_to_qb.h"
#include "stores/quenby/program_class.h"
#include "support/bytes.h"
#include "support/file_checks.h"

namespace golf {
namespace {

constexpr std::size_t kFrom = 2804, kTo = 1867, kHeader = 781, kEntry = 3052;

std::int32_t IdAt(const std::string& record) { return Int32At(record, 4); }

std::string Golfer(int id, const std::string& last, float index, float handicap) {
  std::string bytes = Pattern(kFrom);
  Put16(bytes, 0, {1});
  Put(bytes, 4, {std::int32_t{id}});
  PutText(bytes, 8, 11, " Ann");
  PutText(bytes, 19, 16, last);
  bytes[35] = static_cast<char>(id % 3);
  Put(bytes, 418, {index});
  Put(bytes, 427, {handicap});
  PutText(bytes, 431, 6, "  9");
  return bytes;
}

std::string Player(int id, int roster3 = 0) {
  std::string bytes = Pattern(kTo);
  Put(bytes, 4, {std::int32_t{id}});
  Put16(bytes, 8, {4, 5, roster3, 0});
  Put(bytes, 441, {20.0f, 20.0f});
  return bytes;
}

std::string Header(int holes, int method = 1) {
  std::string bytes = Pattern(kHeader);
  bytes[152] = static_cast<char>(holes);
  bytes[252] = static_cast<char>(method);
  for (std::size_t i = 0; i < 30; ++i) PutText(bytes, 421 + 12 * i, 12, " N" + std::to_string(i));
  return bytes;
}

struct Choice {
  bool marked = false;
  double factor = 1;  // of the conversion
  int holes = 18;
  int method = 1;
  int roster = 2;
  bool items = false;
};

// Returns one golfer's expected record, worked out from bytes.
std::string Copied(const std::string& old, const std::string& from, const Choice& choice) {
  std::string to = old;
  const auto text = [&](std::size_t at, std::size_t size, std::size_t source, std::size_t width) {
    PutText(to, at, size, std::string(Trim(from.substr(source, width))).substr(0, size));
  };
  to.replace(4, 4, from.substr(4, 4));
  text(16, 11, 8, 11);
  text(27, 16, 19, 16);
  to[43] = from[35] == 1 ? 1 : 0;
  for (std::size_t i = 0; i < 3; ++i) text(44 + 30 * i, 30, 36 + 30 * i, 30);
  for (std::size_t i = 0; i < 3; ++i) text(164 + 30 * i, 30, 156 + 30 * i, 30);
  for (std::size_t i = 0; i < 3; ++i) text(284 + 20 * i, 20, 276 + 20 * i, 20);
  text(344, 60, 336, 60);
  float index = SingleAt(from, 418), handicap = SingleAt(from, 427);
  if (choice.method >= 100) index = handicap;
  if (std::string(Trim(from.substr(431, 6))) <= "*") index = handicap = 0;
  if (choice.factor != 1) {  // the index comes from its text, which has no minus
    index = static_cast<float>(std::round(std::fabs(index) * 10) / 10 * choice.factor);
    handicap = static_cast<float>(std::round(handicap * 100) / 100 * choice.factor);
  }
  Put(to, 441, {index, handicap});
  if (choice.items) {
    to[424] = from[416];
    const int group = static_cast<unsigned char>(from[417]);
    Put16(to, 425, {group < 1 || group > 5 ? 1 : group});
    text(404, 20, 396, 20);
    constexpr std::size_t kTexts[][2] = {{463, 30}, {493, 20}, {513, 20}, {533, 10}, {543, 10}};
    for (std::size_t i = 0; i < 5; ++i) text(449 + 30 * i, 30, kTexts[i][0], kTexts[i][1]);
    to.replace(599, 16, from.substr(553, 16));
    to.replace(615, 40, from.substr(569, 40));
  }
  const int slot1 = Int16At(to, 8), slot2 = Int16At(to, 10);
  std::vector<int> slots = {slot1, slot2, choice.roster};
  for (std::size_t i = 0; i < 2; ++i) {
    if (choice.roster != 0 && slots[i] == choice.roster) slots[i] = 0;
  }
  std::stable_partition(slots.begin(), slots.end(), [](int roster) { return roster >= 1; });
  Put16(to, 8, {slots[0], slots[1], slots[2]});
  return to;
}

struct Outcome {
  std::string file;
  int updated = 0, added = 0;
};

// Works out the result by searching the whole file for each golfer.
Outcome Expected(const std::string& kelvane, const std::string& quenby, const Choice& choice) {
  Outcome out{quenby};
  const auto record = [&](std::size_t i) { return RecordAt(out.file, i, kTo); };
  const std::size_t length = quenby.size() / kTo;
  for (std::size_t g = 0; g + kFrom <= kelvane.size(); g += kFrom) {
    const std::string golfer = kelvane.substr(g, kFrom);
    if (Int16At(golfer, 0) < 1 || (choice.marked && golfer[2] == 0)) continue;
    std::size_t at = 0;
    for (std::size_t i = length; i >= 10; --i) {
      if (std::max(IdAt(RecordAt(quenby, i, kTo)), 0) == IdAt(golfer)) at = i;
    }
    ++(at != 0 ? out.updated : out.added);
    const std::string old = at != 0 ? record(at) : BlankGolfer(DateFromCivil({2024, 5, 13}));
    if (at == 0) {
      const std::size_t now = out.file.size() / kTo;
      for (at = 10; at <= now && (IdAt(record(at)) >= 1 || IdAt(record(at)) == -1);) ++at;
    }
    PutRecord(out.file, at, Copied(old, golfer, choice));
  }
  return out;
}

std::string RosterList() {
  std::string one(413, '\0');
  Put16(one, 0, {-1});
  PutText(one, 67, 40, "Members");
  std::string gone = one;
  Put16(gone, 0, {0});
  PutText(one, 107, 102);
  std::string other = one;
  PutText(other, 67, 40, "Others");
  return gone + one + other;
}

class GolferTransferTest : public testing::Test {
 protected:
  void Prepare(const std::string& kelvane, const std::string& quenby, const Choice& choice) {
    install.folder.Write("kvdata/club.kv5", Header(choice.holes, choice.method));
    install.folder.Write("kvdata/club.kvg", kelvane);
    install.folder.Write("qbdata/QBGOLFER.Q9D", quenby);
    install.folder.Write("qbdata/QBROSTER.Q9D", RosterList());
  }
  // Works as the operator does, from the transfer to its end.
  void Run(const Choice& choice) {
    install.Open("KVtoQB", [&](Screen& screen) {
      if (PickRoster<LoadRoster>(*install.host, screen, 1)) return;
      if (PickRoster<LoadRosters>(*install.host, screen, choice.roster == 2 ? 2 : 1)) return;
      auto& transfer = dynamic_cast<KVtoQB&>(screen);
      install.host->Press(screen, "SourceButton");
      install.host->Press(screen, "DestButton");
      transfer.MarkedtoPrint.Choose(choice.marked);
      transfer.Convert18Hcpto9Hcp.Choose(choice.factor == 0.5);
      transfer.Convert9Hcpto18Hcp.Choose(choice.factor == 2);
      for (int row = 2; row <= 16; ++row) {
        transfer.grid1.Enter(KVtoQB::kTickColumn, row, choice.items ? "1" : "0");
      }
      install.host->Press(screen, "TransferButton");
    });
  }

  TestInstall install;
};

std::string Report(const Outcome& outcome) {
  return "tip 2 [Golfers Transfered] CLUB TRANSFERED:\r\n" + std::to_string(outcome.updated) +
         " golfers updated.\r\n" + std::to_string(outcome.added) + " new golfers added.\r\n" +
         std::string(30, '=') + "\r\n -> OK";
}

std::string SomeGolfers() {
  std::string none = Golfer(77, "Gone", 1, 1);
  Put16(none, 0, {0});
  std::string unmarked = Golfer(12, "Quiet", 9.94f, 12.346f);
  unmarked[2] = 0;
  std::string star = Golfer(30, "Star", 5, 5);
  PutText(star, 431, 6, "*");
  return Golfer(11, "Plus", -2, -2) + none + unmarked + star + Golfer(11, "Twice", 12.25f, 3) +
         Golfer(0, "Nobody", 1, 2) + Golfer(-1, "Minus", 3, 4) + Golfer(40, "New", 6, 7) +
         Golfer(40, "New too", 8, 9) + std::string(1500, 'x');
}

std::string SomePlayers() {
  std::string file;
  for (int i = 1; i <= 9; ++i) file += Player(i == 3 ? 12 : 0);
  return file + Player(-5) + Player(12, 2) + Player(-1) + Player(0) + Player(11, 7) + Player(99) +
         Player(11) + std::string(100, 'y');
}

TEST_F(GolferTransferTest, FilesByteForByte) {
  const struct {
    const char* what;
    Choice choice;
    std::string quenby;
  } kCases[] = {
      {"onto a file", {}, SomePlayers()},
      {"into nothing", {}, ""},
      {"into fewer than ten records", {.items = true}, Player(11) + Player(12)},
      {"all items", {.roster = 0, .items = true}, SomePlayers()},
      {"marked, halved", {.marked = true, .factor = 0.5}, SomePlayers()},
      {"doubled, no index", {.factor = 2, .holes = 9, .method = 100}, SomePlayers()},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.what);
    Prepare(SomeGolfers(), c.quenby, c.choice);
    install.Restart();
    Run(c.choice);
    const Outcome outcome = Expected(SomeGolfers(), c.quenby, c.choice);
    EXPECT_TRUE(Holds(install.folder, "qbdata/QBGOLFER.Q9D", outcome.file));
    EXPECT_TRUE(Holds(install.folder, "kvdata/club.kvg", SomeGolfers()));
    EXPECT_TRUE(Told(install, Report(outcome)));
    EXPECT_EQ(Counts(install), "updated " + std::to_string(outcome.updated) + ", added " +
                                   std::to_string(outcome.added));
  }
  // The last run leaves these settings for the next.
  std::string settings =
      "1\r\n0\r\n\"Members" + std::string(25, ' ') + "002\"\r\n\"CLUB\"\r\n0\r\n";
  for (int row = 2; row <= 16; ++row) settings += "\"0\"\r\n";
  EXPECT_EQ(install.folder.Read("qbdata/KVtoQB.DAT"), settings);
}

std::string Master() {
  Record<MasterLayout> master;
  master.Set<"ActiveTournament">(7);
  return std::string(master.Bytes());
}

// Returns the entry in tournament 7 of the golfer at this place of the roster.
std::string Entry(int place) {
  std::string entry = Pattern(kEntry);
  Put16(entry, FieldOf<TournamentPlayerLayout, "TourRosterRecordPointer">().offset, {place});
  return entry;
}
std::string Updated(std::string entry, float index, float handicap) {
  for (std::size_t round = 0; round < 7; ++round) {
    Put(entry, FieldOf<TournamentPlayerLayout, "TourIndex">().offset + 4 * round, {index});
    Put(entry, FieldOf<TournamentPlayerLayout, "TourGrossHandicap">().offset + 4 * round,
        {handicap});
  }
  return entry;
}

TEST_F(GolferTransferTest, UpdatesTheActiveTournament) {
  Prepare(Golfer(11, "Plus", -2.25f, 3), Player(0), {});
  install.folder.Write("qbdata/QBMASTER.Q9D", Master());
  install.folder.Write("qbdata/X0007.Q9G", Entry(10) + Entry(0) + Entry(10));
  install.Restart();
  install.host->QueueAnswer("Update Handicaps?", "yEsterday");
  Run({});
  const std::string updated = Updated(Entry(10), -2.3f, 3);
  EXPECT_TRUE(Holds(install.folder, "qbdata/X0007.Q9G", updated + Entry(0) + updated));
  EXPECT_FALSE(install.folder.Exists("kvdata/kvcrs.dat"));
  EXPECT_TRUE(install.LastMessage().ends_with("' handicaps updated. -> OK"));
}

class FewGolfersTest : public GolferTransferTest {
 protected:
  FewGolfersTest() {
    Prepare(Golfer(103, "New", 3, 2) + Golfer(102, "Two", 2, 2) + Golfer(104, "Four", 4, 2), quenby,
            {});
  }

  // Quenby has the second and the third golfer.
  const std::string quenby = std::string(9 * kTo, '\0') + Player(102) + Player(0) + Player(104);
};

// A golfer or an entry that cannot be read is left out.
TEST_F(FewGolfersTest, AReadFaultLeavesOutByNameAndTheNextRunBringsTheRest) {
  install.folder.Write("qbdata/QBMASTER.Q9D", Master());
  install.folder.Write("qbdata/X0007.Q9G", Updated(Entry(10), 20, 20) + Updated(Entry(12), 20, 20));
  const auto run = [this] {
    install.host->QueueAnswer("Update Handicaps?", "yes", true);
    Run({});
  };
  EXPECT_GT(WalkReadFaults(install, run), 5);
}

// If a record can never be read, its golfer is left out by name, and so is everybody who may be in
// that record.
TEST_F(FewGolfersTest, AReadThatAlwaysFailsLeavesOutByName) {
  install.Restart();
  install.platform->Fail(
      {.nth = 2, .only = Operation::kRead, .name = "QBGOLFER.Q9D", .stays = true});
  Run({});
  EXPECT_TRUE(Holds(install.folder, "qbdata/QBGOLFER.Q9D", quenby));
  ASSERT_EQ(install.host->faults().size(), 3u);
  EXPECT_TRUE(install.host->faults()[0].description().starts_with("Ann New was left out: Record "));
  EXPECT_TRUE(LeftOutLines(install).starts_with("New, Ann: stopped by an error\n"));
  EXPECT_EQ(install.host->left_out().Count(), 3u);
}

TEST_F(GolferTransferTest, RefusalsAndHeldFiles) {
  const std::string select = "message [Notice] You must select a ";
  const std::string before = " roster before you can transfer golfers. -> OK";
  const std::string held =
      "message [Notice] The Kelvane is currently open.  You must close this program before you can "
      "transfer golfers. -> OK";
  const std::string error75 = "message [Error] Error #  75 was generated by Golf Transfer\r";
  const struct {
    const char *kelvane, *quenby;
    std::string event;
    bool button;          // the button is still there
    const char* file{};   // the file that cannot be opened in the run
    ErrorNumber error{};  // the reason
  } kCases[] = {
      {" ", "x001", select + "Kelvane" + before, true},
      {"club", "", select + "Quenby" + before, true},
      {"none", "x001", "message [Notice] Cannot open Handicap Roster. -> OK", true},
      {"club", "x001", held, true, "club.kvg", ErrorNumber::kPermissionDenied},
      {"club", "x001", held, false, "QBGOLFER.Q9D", ErrorNumber::kPermissionDenied},
      {"club", "x001", error75, false, "QBGOLFER.Q9D", ErrorNumber::kPathAccess},
  };
  Prepare(SomeGolfers(), SomePlayers(), {});
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.event);
    install.Restart();
    install.Open("KVtoQB", [&](Screen& screen) {
      auto& transfer = dynamic_cast<KVtoQB&>(screen);
      transfer.HandicapRoster.SetText(c.kelvane);
      transfer.TournamentRoster.SetText(c.quenby);
      if (c.file != nullptr) install.platform->Fail({.error = c.error, .name = c.file});
      install.host->Press(screen, "TransferButton");
      EXPECT_TRUE(ToldBeginning(install, c.event));
      EXPECT_EQ(transfer.TransferButton.visible(), c.button);
    });
    EXPECT_TRUE(Holds(install.folder, "qbdata/QBGOLFER.Q9D", SomePlayers()));
  }
}

}  // namespace
}  // namespace golf
