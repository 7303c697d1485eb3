#include "screens/transfers/qb_to_kv.h"

#include <gtest/gtest.h>

#include "screens/rosters/load_roster.h"
#include "stores/kelvane/kelvane_layouts.h"
#include "support/bytes.h"
#include "support/file_checks.h"
#include "support/scored_round.h"
#include "transfers/common_beginning.h"

namespace golf {
namespace {

constexpr std::size_t kGolfer = 2804, kHistory = 14700, kScore = 49, kEntryLength = 3052;
constexpr std::size_t kRecordOfHalf = 446, kCounters = 455, kFlags = 30, kOldCounter = 7;

struct Player {
  int id;  // 0: a free entry of the tournament
  bool lady = false;
  int missing_hole = 0;
  bool sent = false;
  int adjusted = 0;  // a total that was entered
};

// The operator's choices and the tournament.
struct Setting {
  int course = -1;  // the item in the list; below 0: the matched one
  bool as_tournament = false, points = false, by_total = false, date = true, previewed = false;
  int holes = 18, roster_holes = 18;
  std::string half = std::string(9, '\0');  // the waiting nine of each golfer
};

std::string Half(int score, float rating, int slope, int tee = 1) {
  std::string half(9, '\0');
  half[2] = static_cast<char>(tee);
  Put(half, 3, {rating});
  half[7] = static_cast<char>(slope);
  half[8] = static_cast<char>(score);
  return half;
}

// The expected entry of a history: the bytes from its course to its slope, and so on.
struct Score {
  int course, tee;
  float rating;
  int slope;
  int first_hole;  // the first hole that holds a 4; 0 for none
  int gross, adjusted, type, handicap;
  bool counts = true;  // putts, fairways, greens

  std::string Bytes(double date) const {
    std::string bytes(kScore, '\0');
    Put16(bytes, 0, {course});
    bytes.replace(2, 6, Half(0, rating, slope, tee).substr(2, 6));
    Put(bytes, 8, {date});
    for (int hole = first_hole; first_hole > 0 && hole <= (gross == 36 ? first_hole + 8 : 18);) {
      bytes[15 + static_cast<std::size_t>(hole++)] = 4;
    }
    bytes.replace(34, 3,
                  {static_cast<char>(gross), static_cast<char>(adjusted), static_cast<char>(type)});
    Put16(bytes, 37, {handicap});
    if (counts) bytes.replace(39, 3, "\x1e\x7\x5");
    PutText(bytes, 42, 7);
    return bytes;
  }
};

// Returns the texts of the labels and lists that the screen shows.
std::string Shown(const Screen& screen) {
  std::string shown;
  for (Control* control : screen.controls()) {
    if (!control->IsShown()) continue;
    if (const auto* label = dynamic_cast<Label*>(control)) shown += label->caption() + "|";
    if (const auto* list = dynamic_cast<ComboBox*>(control)) shown += list->text() + "|";
  }
  return shown;
}

class QbToKvTest : public testing::Test {
 protected:
  static constexpr double kDay = 45000, kNow = 45600.5;

  void Prepare(const Setting& setting, const std::vector<Player>& players) {
    ScoredRound made;
    auto& course = made.course;
    course.Set<"HoleNumFlag">(setting.roster_holes == 18 ? 18 : -9);
    const char* const tees[] = {"Red", "White", "Whitest"};
    for (int tee = 2; tee <= 4; ++tee) {
      course.Set<"TeeName">({tee}, tees[tee - 2]);
      for (int sex = 0; sex <= 1; ++sex) {
        course.Set<"Rating">({tee, sex}, static_cast<float>(20.1 * tee + sex));
        course.Set<"slope">({tee, sex}, static_cast<std::int16_t>(100 + 10 * tee + sex));
      }
    }
    const auto courses = [&](const char* name, std::initializer_list<const char*> names) {
      std::string file;
      for (int tee = 2; tee <= 4; ++tee)
        course.Set<"ActiveTees">({tee}, name[0] == 'q' || tee != 2 ? 255 : 0);
      for (const char* of : names) {
        course.Set<"Name">(of);
        if (setting.roster_holes == 9) course.Set<"HoleNumFlag">(of == *(names.end() - 1) ? 9 : -9);
        file += course.Bytes();
      }
      install.folder.Write(name, file);
    };
    courses("qbdata/qbcrs.dat", {"North park"});
    courses("kvdata/kvcrs.dat", {"North", "NORTH PARK B", "North Star"});
    for (const std::string list : {"18", "9", "ALL"}) {
      install.folder.Write("kvdata/" + list + "CRSKV.INX", Index({3, 1, 2, 3}));
    }
    auto& control = made.control;
    control.Set<"Name">("Medal");
    control.Set<"NumRounds">(2);
    control.Set<"NumTeesMenPlay">(1);
    control.Set<"NumTeesLadiesPlay">(2);
    control.Fill<"TeeNumberPlayed">(3);
    control.Set<"RoundType">(static_cast<std::int16_t>(setting.holes));
    control.Set<"ScoreEntryTotal">(setting.by_total ? -1 : 0);
    control.Fill<"DateofRound">(setting.date ? kDay + 0.75 : 1e9);
    install.folder.Write("qbdata/X0001.Q9C", std::string(control.Bytes()));
    install.folder.Write("qbdata/XOLD.Q9C", "no tournament");
    std::string golfers, entries;
    for (std::size_t i = 0; i < players.size(); ++i) {
      const Player& player = players[i];
      made.golfer.Set<"IDNum">(player.id);
      made.golfer.Set<"NameLast">("Player " + std::to_string(i + 1));
      made.golfer.Set<"NameFirst">("A");
      made.golfer.Set<"Sex">(player.lady ? 1 : 0);
      golfers += made.golfer.Bytes();
      auto& entry = made.entry;
      entry.Set<"TourRosterRecordPointer">(static_cast<std::int16_t>(player.id == 0 ? 0 : i + 1));
      for (int hole = 1; hole <= 18; ++hole) {
        const bool played = hole <= setting.holes && hole != player.missing_hole;
        entry.Set<"TourScoreGross">({hole, 2}, played ? 4 : 0);
      }
      entry.Set<"TourScoreGrossTotal">({2}, 80);
      entry.Set<"TourScoreAdjusted">({2}, static_cast<std::int16_t>(player.adjusted));
      entry.Set<"TourGrossHandicap">({2}, 9.4f);
      entry.Fill<"TourGroupTee">(player.lady ? 2 : 1);
      entry.Set<"TourFlags">({2}, player.sent ? 3 : 1);
      entry.Set<"TourPutts">({2}, 30);
      entry.Set<"TourFairways">({2}, 7);
      entry.Set<"TourGreens">({2}, 5);
      entries += entry.Bytes();
    }
    install.folder.Write("qbdata/QBGOLFER.Q9D", golfers);
    install.folder.Write("qbdata/X0001.Q9G", entries_before = entries);
    std::string header(781, '\1');
    header[152] = static_cast<char>(setting.roster_holes);
    header[153] = '\0';
    Put(header, 220, {kNow, kDay - 1, kDay, 0.0});  // counter 3 does not count it, 4 and 2 do
    install.folder.Write("kvdata/CLUB.KV5", header);
    roster_before.clear();
    for (const int id : {50, 11, 12, 11, 1}) {  // the first place is free
      std::string golfer = Pattern(kGolfer);
      Put16(golfer, 0, {id == 50 ? 0 : 1});
      Put(golfer, 4, {std::int32_t{id}});
      golfer.replace(kRecordOfHalf, 9, setting.half);
      Put16(golfer, kCounters, {kOldCounter, kOldCounter, kOldCounter, kOldCounter});
      roster_before += golfer;
    }
    install.folder.Write("kvdata/CLUB.KVG", roster_before);
    history_before.assign(5 * kHistory, '\0');
    for (std::size_t i = 0; i < 5; ++i) Put(history_before, i * kHistory + 8, {kDay - 100});
    install.folder.Write("kvdata/CLUB.KVS", history_before);
    install.folder.Write("qbdata/QBtoKV.DAT", "");
    install.Restart();
    install.state().Now = [] { return kNow; };
  }

  void Run(const Setting& setting) {
    if (setting.points) install.host->QueueAnswer("Transfer QB points to KV Score?", "yes");
    install.Open("QBtoKV", [&](Screen& screen) {
      if (screen.name() == "ChangePreview") return;  // it is closed
      if (PickRoster<LoadRoster>(*install.host, screen, 1)) return;
      auto& transfer = dynamic_cast<QBtoKV&>(screen);
      install.host->Press(screen, "DestButton");
      captions = transfer.TransferButton.caption();
      transfer.RoundList.Select(1);
      captions += ", " + transfer.TransferButton.caption();
      const std::string matched = Shown(transfer);
      transfer.QBCourse.SetCaption("");
      if (setting.previewed) {
        install.host->Press(screen, "PreviewButton");
        for (const int round : {0, 1}) transfer.RoundList.Select(round);
        EXPECT_EQ(Shown(transfer), matched);
      }
      if (setting.course >= 0) transfer.CourseCombo.Select(setting.course);
      transfer.TCheck.Choose(setting.as_tournament);
      if (setting.points) transfer.TCheck2.Choose(true);
      install.host->Press(screen, "TransferButton");
      report = transfer.Message.text();
      EXPECT_EQ(transfer.TransferButton.visible(), report.empty());
      EXPECT_EQ(transfer.QBCourse.caption(), "North park");
      transfer.RoundList.Select(0);
      EXPECT_TRUE(transfer.TransferButton.visible());
    });
  }

  // Puts a score into the expected history of a golfer's place, from 1.
  void Post(std::size_t place, const std::string& bytes) {
    std::string history = bytes + history_before.substr((place - 1) * kHistory, kHistory - kScore);
    history_before.replace((place - 1) * kHistory, kHistory, history);
    for (const std::size_t counter : {0u, 1u, 3u}) {
      const std::size_t at = (place - 1) * kGolfer + kCounters + 2 * counter;
      Put16(roster_before, at, {Int16At(roster_before, at) + 1});
    }
  }
  void ExpectFiles(const std::vector<std::size_t>& flagged) {
    for (const std::size_t entry : flagged) {
      entries_before[(entry - 1) * kEntryLength + kFlags + 2] = 3;
    }
    EXPECT_TRUE(Holds(install.folder, "kvdata/CLUB.KVG", roster_before));
    EXPECT_TRUE(Holds(install.folder, "kvdata/CLUB.KVS", history_before));
    EXPECT_TRUE(Holds(install.folder, "qbdata/X0001.Q9G", entries_before));
    EXPECT_EQ(install.folder.Read("kvdata/CLUB.KV5")[153], '\1');
    EXPECT_FALSE(install.folder.Exists("qbdata/X0000.Q9C"));
  }

  TestInstall install;
  std::string roster_before, history_before, entries_before;  // later as expected
  std::string report, captions;
};

TEST_F(QbToKvTest, AnEntryByteForByte) {
  const Score plain{2, 4, 60.3f, 130, 1, 72, 72, 0, 9};
  const Score away{0, 0, 60.3f, 130, 1, 72, 72, 2, 9};
  const Score points{0, 0, 0, 130, 1, 72, 36, 0, 9};
  const Score typed{2, 4, 60.3f, 130, 0, 80, 21, 0, 9};
  const Score back{2, 4, 60.3f, 130, 10, 36, 36, 0, 9};
  const Score joined{0, 1, 96.4f, 131, 0, 0, 77, 4, 18, false};
  const Score joined_points{0, 1, 0, 131, 0, 0, 59, 4, 18, false};
  const struct {
    const char* what;
    Setting setting;
    const Score* score;  // null: a half waits instead
    double date = kDay;
  } kCases[] = {
      {"course and tee by name", {.previewed = true}, &plain},
      {"away, tournament", {.course = 0, .as_tournament = true}, &away},
      {"points", {.points = true}, &points},
      {"a typed total", {.by_total = true}, &typed},
      {"no date", {.date = false}, &plain, kNow},
      {"back nine", {.holes = 9, .roster_holes = 9}, &back},
      {"first half", {.holes = 9}, nullptr},
      {"first half with points", {.points = true, .holes = 9}, nullptr},
      {"second half", {.holes = 9, .half = Half(41, 36.1f, 131)}, &joined},
      {"its points", {.points = true, .holes = 9, .half = Half(41, 36.1f, 131)}, &joined_points},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.what);
    Prepare(c.setting, {{.id = 11, .adjusted = 21}});
    install.host->QueueAnswer("Continue", "Yes");
    Run(c.setting);
    std::string half = c.setting.half;
    if (c.score != nullptr) {
      Post(2, c.score->Bytes(c.date));
      half[8] = 0;
    } else {
      half = Half(36, 60.3f, 130);
    }
    roster_before.replace(kGolfer + kRecordOfHalf, 9, half);
    ExpectFiles({1});
    EXPECT_EQ(install.host->faults().size(), c.setting.date ? 0 : 1);
    EXPECT_EQ(install.LastMessage(), "message [Notice] 1 Scores transferred. -> OK");
  }
}

TEST_F(QbToKvTest, EachPlayerAndTheSecondRun) {
  const Player plays{11}, lady_plays{12, true}, incomplete{12, false, 18}, unknown{99}, nobody{0};
  const Player sent{11, false, 0, true}, unknown_and_sent{77, false, 0, true}, deleted{-1};
  Prepare({},
          {plays, lady_plays, plays, incomplete, unknown, nobody, sent, unknown_and_sent, deleted});
  Run({});
  const Score man{2, 4, 60.3f, 130, 1, 72, 72, 0, 9};
  const Score lady{2, 4, 61.3f, 131, 1, 72, 72, 0, 9};
  Post(2, man.Bytes(kDay));
  Post(3, lady.Bytes(kDay));
  Post(2, man.Bytes(kDay));
  ExpectFiles({1, 2, 3});
  EXPECT_EQ(report,
            "3 Scores TO transfer.\r\n2 Scores already transferred.\r\n3 Scores transferred.\r\n"
            "Player 4, A (Round 2 not complete)\r\nPlayer 5, A (No ID# match found)\r\n"
            "Player 9, A (No ID# match found)\r\n");
  EXPECT_EQ(LeftOutLines(install),
            "Player 4, A: without a complete round\nPlayer 5, A: not in this roster\n"
            "Player 9, A: not in this roster\n"
            "Player 7, A: already transferred, and not transferred again\n"
            "Player 8, A: already transferred, and not in this roster\n");
  EXPECT_EQ(Counts(install), "transferred 3, alreadyTransferred 2, toTransfer 3, notFound 2");
  EXPECT_EQ(captions, "Transfer round #1 scores, Transfer round #2 scores");
  EXPECT_TRUE(
      Told(install,
           "message [Transfer again?] The score for 'Player 7, A' (round #2) has already been "
           "transferred.  Do you want to transfer it again? -> No"));
  EXPECT_TRUE(Told(install, "message [Notice] 2 golfers were NOT found. -> OK"));

  install.host->QueueAnswer("Transfer again?", "Yes");
  Run({});  // the first one is transferred again
  Post(2, man.Bytes(kDay));
  ExpectFiles({});
  EXPECT_EQ(
      report.substr(0, 80),
      "3 Scores TO transfer.\r\n4 Scores already transferred.\r\n1 Scores transferred.\r\nPla");
  EXPECT_EQ(install.folder.Read("qbdata/QBtoKV.DAT").substr(0, 18), "\"NO\"\r\n\"CLUB\"\r\n0\r\n0");
}

TEST_F(QbToKvTest, ScoresThatAreMissingAreLeftOut) {
  Prepare({.points = true, .by_total = true},
          {{.id = 11, .adjusted = 80}, {.id = 11}, {.id = 11, .adjusted = 20}});
  Run({.points = true, .by_total = true});
  ExpectFiles({});
  EXPECT_EQ(LeftOutLines(install),
            "Player 1, A: without hole scores, so without points\nPlayer 2, A: without a score\n"
            "Player 3, A: without a complete round\n");
}

TEST_F(QbToKvTest, Refusals) {
  const std::pair<Setting, std::string> kCases[] = {
      {{.holes = 9}, "message [Continue] Transfers 9 hole scores to an 18 hole roster? -> No"},
      {{.roster_holes = 9},
       "message [Can not contine] You have selected an 9 hole Handicap Roster for a 18 hole "
       "tournament. -> OK"},
  };
  for (const auto& [setting, message] : kCases) {
    Prepare(setting, {{11}});
    install.host->QueueAnswer("Continue", "No");
    Run(setting);
    ExpectFiles({});
    EXPECT_EQ(install.LastMessage(), message);
  }
}

// A player whose records cannot be read is left out. The score, the history and the flag of an
// entry change together.
TEST_F(QbToKvTest, AReadFaultLeavesOutByNameAndTheNextRunPostsTheRest) {
  Prepare({}, {{0}, {11}, {12, true}});
  const auto run = [this] {
    install.state().Now = [] { return kNow; };
    Run({});
  };
  EXPECT_GT(
      WalkReadFaults(install, run, {"kvdata/CLUB.KVG", "kvdata/CLUB.KVS", "qbdata/X0001.Q9G"}), 5);
}

// The course cannot be read. It determines which nine holes of the history contain the scores.
TEST_F(QbToKvTest, NineHolesArePostedAsTheRightHalfOrNotAtAll) {
  const Setting setting{.holes = 9, .roster_holes = 9};
  bool failed = true;
  for (int nth = 1; failed; ++nth) {
    SCOPED_TRACE(nth);
    Prepare(setting, {{11}});
    const std::string unposted = history_before;
    Post(2, Score{2, 4, 60.3f, 130, 10, 36, 36, 0, 9}.Bytes(kDay));
    install.platform->Fail({ErrorNumber::kDeviceFault, nth, Operation::kRead, "kvcrs.dat", true});
    ClickErrorOf([&] { Run(setting); });
    failed = install.platform->Failed();
    const std::string history = install.folder.Read("kvdata/CLUB.KVS");
    EXPECT_TRUE(history == history_before || (failed && history == unposted));
  }
}

TEST(CommonBeginningTest, TheLastOfTheLongest) {
  const struct {
    std::vector<std::string> items;
    const char* name;
    int chosen;
  } kCases[] = {
      {{"Away", "Elm", "Elm Hill", "Oak"}, "elm hills", 2},
      {{"Away", "ELM", "Elm Hill", "Oak"}, "Elm", 2},  // both have the same length: the last item
      {{"Away", "Elm Hill", "Elk", "Oak"}, "Elm", 1},
      {{"Away", "Elm", "Oak"}, "Ohio", 2},  // one letter is enough
      {{"Away", "Elm", "Oak"}, "Pine", 0},  // no item begins like this: the first item
      {{"Oak", "Elm", ""}, "", 0},
      {{}, "Elm", 0},
  };
  for (const auto& c : kCases) {
    EXPECT_EQ(ItemWithLongestCommonBeginning(c.items, c.name), c.chosen) << c.name;
  }
}

}  // namespace
}  // namespace golf
