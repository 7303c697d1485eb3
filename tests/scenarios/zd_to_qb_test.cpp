#include "screens/transfers/zd_to_qb.h"

#include <cmath>

#include "screens/rosters/load_rosters.h"
#include "support/file_checks.h"
#include "support/league_test.h"

namespace golf {
namespace {

constexpr std::size_t kGolferBytes = 1867;
constexpr std::size_t kFirstGolfer = 10;

std::string Golfer(int id, const std::string& first, const std::string& last) {
  std::string bytes = Pattern(kGolferBytes);
  Put(bytes, 4, {id});
  Put16(bytes, 8, {4, 5, 0, 9});
  PutText(bytes, 16, 11, first);
  PutText(bytes, 27, 16, last);
  return bytes;
}

std::string Key(const std::string& record, std::size_t last, std::size_t last_width,
                std::size_t first, std::size_t first_width) {
  return UpperCase(std::string(Trim(record.substr(last, last_width))) +
                   std::string(Trim(record.substr(first, first_width))));
}

// Returns the next free ID by walking the whole list each time.
int NextID(std::vector<int> ids) {
  std::sort(ids.begin(), ids.end());
  std::erase_if(ids, [](int id) { return id <= 0; });
  if (ids.empty()) return 1;
  int next = ids.back() + 1;
  for (std::size_t i = ids.size() - 1; i > 0; --i) {
    if (ids[i] > ids[0] + static_cast<int>(i)) next = ids[0] + static_cast<int>(i);
  }
  return next > 99999 ? 1 : next;
}

struct Case {
  const char* what;
  std::string golfers;  // from record 10 on
  std::string players, substitutes;
  int last_substitute = 7;
  int factor = 3;
  std::string roster = "Club" + std::string(25, ' ') + "007";
  int in_roster = 7;
  bool doubled = false;
  bool with_substitutes = true;
  int event = 2;
};

// The golfer file after each golfer of the league, worked out by walks over whole files.
struct Outcome {
  explicit Outcome(const Case& c)
      : states{std::string((kFirstGolfer - 1) * kGolferBytes, 'x') + c.golfers} {
    if (c.golfers.empty()) states[0].clear();
    for (std::size_t r = kFirstGolfer; r <= states[0].size() / kGolferBytes; ++r) {
      const std::string golfer = RecordAt(states[0], r, kGolferBytes);
      const int id = Int32At(golfer, 4);
      keys.push_back(id >= 1 ? Key(golfer, 27, 16, 16, 11) : "");
      if (id >= 1) ids.push_back(id);
    }
    for (int i = 1; i <= c.factor; ++i) Copy(c, c.players, i);
    for (int i = 6; c.with_substitutes && i <= c.last_substitute; ++i) Copy(c, c.substitutes, i);
  }

  void Copy(const Case& c, const std::string& file, int record) {
    const std::size_t at = (static_cast<std::size_t>(record) - 1) * kLeaguePlayerBytes;
    if (at + kLeaguePlayerBytes > file.size()) return;
    const std::string from = file.substr(at, kLeaguePlayerBytes);
    if (Trim(from.substr(23, 15)) <= " ") return;
    std::string quenby = states.back();
    std::size_t r = kFirstGolfer;
    const auto found = std::find(keys.begin(), keys.end(), Key(from, 23, 15, 8, 15));
    std::string golfer;
    if (found != keys.end()) {
      r += static_cast<std::size_t>(found - keys.begin());
      golfer = RecordAt(quenby, r, kGolferBytes);
      ++updated;
    } else {
      while (r <= quenby.size() / kGolferBytes) {
        const int id = Int32At(quenby, (r - 1) * kGolferBytes + 4);
        if (id < 1 && id != -1) break;
        ++r;
      }
      golfer = BlankGolfer(45425);  // 13 May 2024
      ids.push_back(NextID(ids));
      Put(golfer, 4, {ids.back()});
      Put16(golfer, 8, {c.in_roster});
      ++added;
    }
    if (Trim(from.substr(8, 15)).size() > 11) ++cut;
    const auto copy = [&](std::size_t to, std::size_t width, std::size_t start,
                          std::size_t length) {
      golfer.replace(to, width, FitText(Trim(from.substr(start, length)), width));
    };
    copy(27, 16, 23, 15);
    copy(16, 11, 8, 15);
    golfer[43] = Int16At(from, 382) == 1 ? 1 : 0;
    for (std::size_t line = 0; line < 3; ++line) copy(44 + 30 * line, 30, 38 + 30 * line, 30);
    copy(284, 20, 384, 12);
    copy(304, 20, 396, 12);
    float handicap = SingleAt(from, 1266 + 4 * static_cast<std::size_t>(c.event));
    if (c.doubled) handicap = static_cast<float>(std::round(handicap * 100.0) / 100 * 2);
    Put(golfer, 441, {0.0f, handicap});
    PutRecord(quenby, r, golfer);
    states.push_back(quenby);
  }

  std::string log() const {
    return " Transfered\r\n" + std::to_string(updated) + " golfers updated.\r\n" +
           std::to_string(added) + " new golfers added.\r\n" + std::string(30, '=') + "\r\n";
  }

  std::vector<std::string> states;
  std::vector<std::string> keys;
  std::vector<int> ids;
  int updated = 0;
  int added = 0;
  int cut = 0;  // first names
};

void WriteInstall(const TestInstall& install, const Case& c) {
  install.folder.Write("zddata/00011.ZL8",
                       LeagueControl("x", c.last_substitute, c.factor, c.event));
  install.folder.Write("zddata/00011.ZP8", c.players);
  install.folder.Write("zddata/0001.ZS8", c.substitutes);
  if (!c.golfers.empty()) install.folder.Write("qbdata/QBGOLFER.Q9D", Outcome(c).states[0]);
  install.folder.Write("qbdata/ZDtoQB.DAT", "\"DIV1 x   00011\"\r\n\"" + c.roster + "\"\r\n" +
                                                (c.doubled ? "1" : "0") + "\r\n" +
                                                (c.with_substitutes ? "1" : "0") + "\r\n");
}

std::string Transfer(TestInstall& install) {
  return TransferFromMenu<ZDtoQB>(install, "ZDtoQBButton");
}

std::vector<Case> Cases() {
  const std::string golfers = Golfer(50, "Al", "Able") + Golfer(-1, "gone", "gone") +
                              Golfer(0, "No", "Body") + Golfer(52, "B", "\xE9 b") +
                              Golfer(-7, "", "") + Golfer(50, "al", "ABLE") + Golfer(54, "X", "Y");
  const std::string players =
      LeaguePlayer(1, "No", "Body", 9.996f) + LeaguePlayer(2, "aL", "aBLE", -3.251f) +
      LeaguePlayer(3, "First", "  ", 1) + LeaguePlayer(4, "Twice", "New", 36.4f) +
      LeaguePlayer(5, "Twice", "New", 0) + LeaguePlayer(6, "Christopherson", "Long");
  const std::string substitutes =
      players + LeaguePlayer(7, "B", "\xC9 B") + LeaguePlayer(8, "", "Last");
  const std::string all = "Show ALL Rosters" + std::string(25, ' ') + "000";
  return {
      {"matched, new, blank", golfers, players, substitutes, 8, 6},
      {"doubled, without substitutes", golfers, players, substitutes, 8, 6, all, 0, true, false},
      {"into nothing", "", players, substitutes, 8, 2},
      {"a product beyond torn files", golfers, players + players.substr(0, 8000),
       substitutes + substitutes.substr(0, 8000), 32767, 32767},
      {"negative factors", golfers, players, substitutes, -1, -6},
      {"all numbers given", Golfer(99999, "Q", "Q"), players, "", 5, 6}};
}

TEST(ZDtoQBTest, FilesAndReportByteForByte) {
  for (const Case& c : Cases()) {
    SCOPED_TRACE(c.what);
    TestInstall install;
    WriteInstall(install, c);
    const Outcome outcome(c);
    EXPECT_EQ(Transfer(install), outcome.log());
    EXPECT_EQ(Counts(install), "updated " + std::to_string(outcome.updated) + ", added " +
                                   std::to_string(outcome.added));
    EXPECT_TRUE(Holds(install.folder, "qbdata/QBGOLFER.Q9D", outcome.states.back()));
    EXPECT_TRUE(Holds(install.folder, "zddata/00011.ZP8", c.players));
    EXPECT_TRUE(Holds(install.folder, "zddata/0001.ZS8", c.substitutes));
    std::vector<std::string> events = {"open TransferMenu", "open ZDtoQB", "beep",
                                       "message [Message] " +
                                           std::to_string(outcome.updated + outcome.added) +
                                           " golfers transfered. -> OK"};
    if (outcome.cut > 0) {
      events.push_back("notice " + std::to_string(outcome.cut) +
                       (outcome.cut == 1
                            ? " first name does not fit Quenby's 11 characters. Another transfer "
                              "adds this golfer again."
                            : " first names do not fit Quenby's 11 characters. Another transfer "
                              "adds these golfers again."));
    }
    events.insert(events.end(), {"close ZDtoQB", "end"});
    EXPECT_EQ(install.events(), events);
  }
}

TEST(ZDtoQBTest, BadInputChangesNothing) {
  const BadInput kCases[] = {
      {"qbdata/ZDtoQB.DAT", "", "message [Message] First select the source league -> OK"},
      {"qbdata/ZDtoQB.DAT", "\"00011\"\r\n",
       "message [Notice] You must select a Quenby roster before you can transfer golfers. -> OK"},
      {"zddata/00011.ZL8", "", "message [Message] 0 golfers transfered. -> OK"},
      BadControl(LeagueControl("x", 9, 3, 0)),
      BadControl(LeagueControl("x", 9, 3, 51)),
      BadControl(LeagueControl("x", 9, 3, 5).substr(0, 94))};
  for (const auto& c : kCases) {
    TestInstall install;
    const Case usual = Cases()[0];
    WriteInstall(install, usual);
    install.folder.Write(c.file, c.bytes);
    Transfer(install);
    EXPECT_TRUE(Told(install, c.event)) << c.event;
    EXPECT_TRUE(Holds(install.folder, "qbdata/QBGOLFER.Q9D", Outcome(usual).states[0]));
  }
}

Case DifferentNames() {
  return {"different names",
          Golfer(50, "Al", "Able") + Golfer(52, "B", "Be"),
          LeaguePlayer(1, "Al", "Able", 5) + LeaguePlayer(2, "New", "Guest", 6) +
              LeaguePlayer(3, "B", "Be", 7) + LeaguePlayer(4, "More", "Guests", 8),
          "",
          8,
          4};
}

// A retry completes the run. If the operator gives up, the golfers before the fault stay.
TEST(ZDtoQBTest, ADiskErrorIsTriedAgainOrGivenUp) {
  const auto states = Outcome(DifferentNames()).states;
  const struct {
    Fault fault;
    const char* text;
    std::size_t golfers;  // that are transferred before the fault
  } kCases[] = {
      {{ErrorNumber::kPathAccess, 1, Operation::kRead, "QBGOLFER.Q9D"}, "DISK ERROR 75", 0},
      {{ErrorNumber::kPathAccess, 3, Operation::kRead, ".ZP8"}, "DISK ERROR 75", 3},
      {{ErrorNumber::kDiskFull, 1, Operation::kWrite, "QBGOLFER.Q9D"},
       "DISK IS FULL - You may need to delete nonessential",
       0},
  };
  for (const auto& c : kCases) {
    for (const std::string answer : {"Retry", "Cancel"}) {
      SCOPED_TRACE(c.fault.name + " " + answer);
      TestInstall install;
      WriteInstall(install, DifferentNames());
      install.host->QueueAnswer("Message", answer);
      install.platform->Fail(c.fault);
      Transfer(install);
      EXPECT_TRUE(Told(install, std::string("message [Message] ") + c.text + " -> " + answer));
      EXPECT_EQ(install.host->run_ended_by() || ToldBeginning(install, "error"),
                answer == "Cancel");
      EXPECT_TRUE(Holds(install.folder, "qbdata/QBGOLFER.Q9D",
                        answer == "Retry" ? states.back() : states[c.golfers]));
    }
  }
}

TEST(ZDtoQBTest, WhoIsLeftOut) {
  const std::string players = LeaguePlayer(1, "Al", "Able") + LeaguePlayer(2, "New", "Guest") +
                              LeaguePlayer(3, "First", " ") + LeaguePlayer(0, "gone", " ") +
                              LeaguePlayer(5, "B", "Be");
  const std::string substitutes = players + LeaguePlayer(6, "Sub", "One") + LeaguePlayer(7, "", "");
  const Case kCases[] = {
      {.what = "First: without a last name\n"
               "One, Sub: among the substitutes, who were not asked for\n",
       .golfers = "",
       .players = players,
       .substitutes = substitutes,
       .factor = 5,
       .with_substitutes = false},
      {.what =
           "Guest, New: stopped by an error\n"
           "Be, B: not reached before the run ended\nOne, Sub: not reached before the run ended\n",
       .golfers = "",
       .players = players,
       .substitutes = substitutes,
       .factor = 5}};
  for (const Case& c : kCases) {
    TestInstall install;
    WriteInstall(install, c);
    if (c.with_substitutes) {
      install.platform->Fail({.nth = 2, .only = Operation::kRead, .name = "00011.ZP8"});
      install.host->QueueAnswer("Message", "Cancel");
    }
    Transfer(install);
    EXPECT_EQ(LeftOutLines(install), c.what);
  }
}

TEST(ZDtoQBTest, AReadFaultThatIsNotTriedAgainLeavesTheRestToTheNextRun) {
  TestInstall install;
  WriteInstall(install, DifferentNames());
  WalkReadFaults(install, [&] { Transfer(install); });
}

TEST(ZDtoQBTest, TheManagerOfRostersDeletesThroughThisScreen) {
  TestInstall install;
  install.folder.Write("qbdata/QBROSTER.Q9D", std::string(413, '\xff'));
  install.host->QueueAnswer("DELETE Roster?", "YES");
  install.Open("ZDtoQB", [&](Screen& screen) {
    if (auto* manager = dynamic_cast<LoadRosters*>(&screen)) {
      manager->grid1.SetActiveRow(2);
      install.host->Press(screen, "DeleteButton");
      EXPECT_EQ(manager->grid1.rows(), 1);
      install.host->Press(screen, "LoadButton");
    } else {
      install.host->Press(screen, "DestButton");
      EXPECT_EQ(dynamic_cast<ZDtoQB&>(screen).TournamentRoster.text(),
                "Show ALL Rosters" + std::string(25, ' ') + "000");
    }
  });
}

}  // namespace
}  // namespace golf
