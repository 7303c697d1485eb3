#include "screens/transfers/kv_to_zd.h"

#include "support/file_checks.h"
#include "support/league_test.h"

namespace golf {
namespace {

constexpr std::size_t kGolferBytes = 2804;
const std::string kLeague = "DIV1 Twilight" + std::string(87, ' ') + "00011";

std::string Golfer(int status, int id, const std::string& last, float handicap, char sex = 0) {
  std::string bytes = Pattern(kGolferBytes);
  Put16(bytes, 0, {status});
  Put(bytes, 4, {id});
  PutText(bytes, 19, 16, last);
  bytes[35] = sex;
  Put(bytes, 427, {handicap});
  return bytes;
}

struct Case {
  const char* what;
  std::string golfers, players, substitutes;
  int last_substitute = 8;
  std::string percent = "80";
  int used_percent = 80;
  bool nine = false;
  int event = 2;
};

// The files after a run, worked out record by record with searches.
struct Outcome {
  explicit Outcome(const Case& c) : players(c.players), substitutes(c.substitutes) {
    for (std::size_t g = 1; g <= c.golfers.size() / kGolferBytes; ++g) {
      const std::string golfer = RecordAt(c.golfers, g, kGolferBytes);
      const int id = Int32At(golfer, 4);
      if (Int16At(golfer, 0) < 1 || id < 1) continue;
      const int count = static_cast<int>(players.size() / kLeaguePlayerBytes);
      for (int p = 1; p <= count; ++p) {
        if (Update(players, p, id, golfer, c)) break;
      }
      for (int s = c.last_substitute; s >= 6; --s) {
        if (Update(substitutes, s, id, golfer, c)) break;
      }
    }
    log += std::to_string(transferred) + " golfers transferred.";
  }

  bool Update(std::string& file, int record, int id, const std::string& golfer, const Case& c) {
    const std::size_t at = (static_cast<std::size_t>(record) - 1) * kLeaguePlayerBytes;
    if (at + kLeaguePlayerBytes > file.size()) return false;
    if (Int32At(file, at + 4) != id) return false;
    const auto copy = [&](std::size_t to, std::size_t width, std::size_t from, std::size_t length) {
      file.replace(at + to, width, FitText(golfer.substr(from, length), width));
    };
    copy(8, 15, 8, 11);
    copy(23, 15, 19, 16);
    copy(38, 90, 36, 90);
    copy(128, 40, 336, 60);
    copy(384, 12, 276, 20);
    copy(396, 12, 296, 20);
    Put16(file, at + 382, {golfer[35] != 0 ? 1 : 0});
    double handicap = c.used_percent / 100.0 * SingleAt(golfer, 427);
    if (c.nine) handicap /= 2;
    Put(file, at + 1266 + 4 * static_cast<std::size_t>(c.event),
        {static_cast<float>(handicap + 0.001)});
    log += golfer.substr(8, 27) + " TRANSFERRED\r\n";
    ++transferred;
    return true;
  }

  std::string players, substitutes;
  std::string log = "CLUB\r\n<< TRANSFERED TO >>\r\n" + kLeague.substr(0, 30) + "\r\n\r\n";
  int transferred = 0;
};

void WriteInstall(const TestInstall& install, const Case& c) {
  install.folder.Write("kvdata/CLUB.kv5", std::string(781, ' '));
  install.folder.Write("kvdata/CLUB.kvg", c.golfers);
  install.folder.Write("zddata/00011.ZL8",
                       LeagueControl("Twilight", c.last_substitute, 3, c.event));
  install.folder.Write("zddata/00011.ZP8", c.players);
  install.folder.Write("zddata/0001.ZS8", c.substitutes);
  // A number brings the option back, unlike the word that the screen writes.
  install.folder.Write("KVtoZD.DAT", "\"CLUB\"\r\n\"" + kLeague + "\"\r\n" + (c.nine ? "1" : "0") +
                                         "\r\n\"" + c.percent + "\"\r\n");
}

std::string Transfer(TestInstall& install) {
  return TransferFromMenu<KVtoZD>(install, "KVtoZDButton");
}

void ExpectLeague(const TestInstall& install, const std::string& players,
                  const std::string& substitutes) {
  EXPECT_TRUE(Holds(install.folder, "zddata/00011.ZP8", players));
  EXPECT_TRUE(Holds(install.folder, "zddata/0001.ZS8", substitutes));
}

std::vector<Case> Cases() {
  const std::string golfers = Golfer(1, 7, "Sixteen letters!", 10.0f, 2) + Golfer(0, 8, "Free", 1) +
                              Golfer(1, 0, "Nobody", 1) + Golfer(5, 9, "Plus", -2.5f) +
                              Golfer(1, 77, "Elsewhere", 3) + Golfer(1, 9, "Again", 33.3f);
  const std::string players = LeaguePlayer(0, "", "") + LeaguePlayer(9, "a", "b") +
                              LeaguePlayer(7, "c", "d") + LeaguePlayer(9, "e", "f") +
                              LeaguePlayer(8, "g", "h");
  const std::string substitutes = LeaguePlayer(7, "1", "1") + players + LeaguePlayer(7, "7", "7") +
                                  LeaguePlayer(7, "8", "8") + LeaguePlayer(9, "9", "9");
  const std::string torn = LeaguePlayer(77, "t", "t").substr(0, 8000);
  return {{"in both files", golfers, players, substitutes},
          {"torn files", golfers + golfers.substr(0, 2000), players + torn, substitutes + torn, 10},
          {"substitutes beyond the file", golfers, players, substitutes, 32767, "1e300", 100, true},
          {"no substitutes", golfers, players, substitutes, 5, "101", 100},
          {"rounded up to the least", golfers, players, substitutes, 8, "9.6", 10, true},
          {"half to even, far below", golfers, players, "", -32768, " 12.5x", 12},
          {"nothing entered", golfers, players, substitutes, 9, "", 100},
          {"the last event", golfers, players, substitutes, 9, "100", 100, false, 50},
          {"nobody", "", "", "", 8, "80", 80, false, 0}};
}

TEST(KVtoZDTest, FilesAndLogByteForByte) {
  for (const Case& c : Cases()) {
    SCOPED_TRACE(c.what);
    TestInstall install;
    WriteInstall(install, c);
    const Outcome outcome(c);
    EXPECT_EQ(Transfer(install), outcome.log);
    EXPECT_EQ(Counts(install), "transferred " + std::to_string(outcome.transferred));
    ExpectLeague(install, outcome.players, outcome.substitutes);
    EXPECT_TRUE(Holds(install.folder, "kvdata/CLUB.kvg", c.golfers));
    EXPECT_EQ(install.folder.Read("KVtoZD.DAT"), "\"CLUB\"\r\n\"" + kLeague + "\"\r\n" +
                                                     (c.nine ? "True" : "False") + "\r\n\"" +
                                                     std::to_string(c.used_percent) + "\"\r\n");
  }
}

TEST(KVtoZDTest, ScoresOfTheCurrentEventAreAskedAbout) {
  Case c = Cases()[0];
  Put16(c.players, kLeaguePlayerBytes + 872, {40});  // of event 2
  Put16(c.players, 870, {40, 0, 40});                // of other events
  for (const char* answer : {"No", "Yes"}) {
    TestInstall install;
    WriteInstall(install, c);
    install.host->QueueAnswer("Question", answer, true);
    const bool goes_on = *answer == 'Y';
    const Outcome outcome(c);
    EXPECT_EQ(Transfer(install), goes_on ? outcome.log : "");
    ExpectLeague(install, goes_on ? outcome.players : c.players,
                 goes_on ? outcome.substitutes : c.substitutes);
    EXPECT_TRUE(Told(install, "beep"));
    EXPECT_TRUE(
        Told(install,
             "message [Question]  1 scores have already been entered for event 2.  Do you really "
             "want to assign a new handicap for this event?  Goto ZD and move to the next event "
             "to be played before transferring handicaps. -> " +
                 std::string(answer)));
    TransferFromMenu<KVtoZD>(install, "KVtoZDButton", "PreviewButton");
    EXPECT_EQ(Told(install, "open ChangePreview"), goes_on);  // a refusal has no list of changes
  }
}

TEST(KVtoZDTest, BadInputChangesNothing) {
  const std::string control = LeagueControl("x", 9, 3, 5);
  const BadInput kCases[] = {
      {"KVtoZD.DAT", "",
       "message [Info] You must select both source roster and destination league before you can "
       "transfer golfers. -> OK"},
      {"KVtoZD.DAT", "\"GONE\"\r\n\"00011\"\r\n",
       "message [Notice] Cannot open the Kelvane roster -> OK"},
      BadControl(LeagueControl("x", 9, 3, 0)),
      BadControl(LeagueControl("x", 9, 3, 51)),
      BadControl(control.substr(0, 80)),
      BadControl("")};
  for (const auto& c : kCases) {
    TestInstall install;
    const Case usual = Cases()[0];
    WriteInstall(install, usual);
    install.folder.Write(c.file, c.bytes);
    Transfer(install);
    EXPECT_TRUE(Told(install, c.event)) << c.event;
    ExpectLeague(install, usual.players, usual.substitutes);
  }
}

// A golfer who cannot be read is left out, and the others follow.
TEST(KVtoZDTest, AReadFaultLeavesOutByNameAndTheNextRunBringsTheRest) {
  Case c = Cases()[0];
  c.golfers = Golfer(1, 7, "Seven", 10) + Golfer(1, 9, "Nine", 9) + Golfer(1, 8, "Eight", 8);
  TestInstall install;
  WriteInstall(install, c);
  EXPECT_GT(WalkReadFaults(install, [&] { Transfer(install); }), 5);
}

TEST(KVtoZDTest, EachUnreadableRecordOfTheLeagueIsReported) {
  const Case c = Cases()[0];
  const Outcome outcome(c);
  for (const bool players : {true, false}) {
    TestInstall install;
    WriteInstall(install, c);
    const char* const file = players ? ".ZP8" : ".ZS8";
    install.platform->Fail({.only = Operation::kRead, .name = file, .stays = true});
    Transfer(install);
    const auto& faults = install.host->faults();
    ASSERT_EQ(faults.size(), players ? 5U : 3U);
    EXPECT_TRUE(faults[0].description().starts_with(
        players ? "Record 1 of the league's players" : "Record 6 of the league's substitutes"));
    ExpectLeague(install, players ? c.players : outcome.players,
                 players ? outcome.substitutes : c.substitutes);
  }
}

TEST(KVtoZDTest, LeaguesToPickAndWhatIsKeptOfThem) {
  TestInstall install;
  install.folder.Write("zddata/00021.ZL8", LeagueControl("Mens: A: 12345", 5, 1, 1));
  install.folder.Write("zddata/00032.ZL8", LeagueControl("No first: division", 5, 1, 1));
  install.folder.Write("zddata/00041.ZL8", "");
  const std::vector<std::string> kept = {"A: 12345", "DIV1 Mens: A: 12345",
                                         "DIV2 No first: division"};
  install.Open("KVtoZD", [&](Screen& shown) {
    auto& screen = dynamic_cast<KVtoZD&>(shown);
    ASSERT_EQ(screen.picker.LeagueList.items().size(), 5u);
    EXPECT_EQ(screen.picker.LeagueList.index(), 0);
    for (int item = 0; item < 3; ++item) {
      install.host->Press(screen, "FindZDButton");
      EXPECT_FALSE(screen.Frame1.visible());
      EXPECT_TRUE(screen.picker.CancelLeague.is_cancel() && !screen.CancelButton.is_cancel());
      screen.picker.LeagueList.Select(item);
      EXPECT_TRUE(LeaguePicker::HeadingOf(screen.picker.LeagueList.text())
                      .ends_with(kept[static_cast<std::size_t>(item)]));
      EXPECT_TRUE(screen.picker.LeagueList.on_key("Enter"));
      EXPECT_TRUE(screen.Frame1.visible() && screen.CancelButton.is_cancel());
      EXPECT_TRUE(
          screen.DestLabel.caption().starts_with(kept[static_cast<std::size_t>(item)] + "  "));
      EXPECT_EQ(LastCharacters(screen.DestLabel.caption(), 5), item < 2 ? "00021" : "00032");
    }
  });
}

}  // namespace
}  // namespace golf
