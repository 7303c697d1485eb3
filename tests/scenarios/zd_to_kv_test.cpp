#include "screens/transfers/zd_to_kv.h"

#include "screens/rosters/load_roster.h"
#include "stores/course/course_layout.h"
#include "support/file_checks.h"
#include "support/league_test.h"

namespace golf {
namespace {

constexpr std::size_t kGolferBytes = 2804, kHistoryBytes = 14700, kEntryBytes = 49;
constexpr double kDay = 45400;                 // of event 2
constexpr int kEvent2 = 3, kBeforeEvent2 = 2;  // in the list of batches

// An entry that a run adds to the history at a place of the roster, or a waiting half.
struct Posted {
  std::size_t place;
  int score, course, tee;
  float rating = 71.2f;
  int slope = 125;
  double date = kDay;
  enum { kEntry, kKeepsHalf, kJoinsHalf } kind = kEntry;
};

struct Roster {
  std::string golfers, histories;
};

// Returns golfers with these IDs, one of them deleted. Each has a score a day, the newest on kDay +
// 1.
Roster SomeRoster() {
  Roster roster;
  for (const int id : {11, -11, 12, 13, 14, 15, 16, 17, 18, 11}) {
    std::string golfer = Pattern(kGolferBytes), history = Pattern(kHistoryBytes);
    Put16(golfer, 0, {id > 0 ? 1 : 0});
    Put(golfer, 4, {std::int32_t{std::abs(id)}});
    golfer[454] = 0;
    Put16(golfer, 455, {3, 0, 0, 0});
    for (std::size_t i = 0; i < 3; ++i)
      Put(history, kEntryBytes * i + 8, {kDay + 1 - static_cast<double>(i)});
    roster.golfers += golfer;
    roster.histories += history;
  }
  return roster;
}

// Returns the roster after a run that posts these entries.
Roster After(const std::vector<Posted>& posted) {
  Roster now = SomeRoster();
  for (const Posted& p : posted) {
    std::string golfer = RecordAt(now.golfers, p.place, kGolferBytes);
    std::string entry(kEntryBytes, '\0');
    PutText(entry, 42, 7);
    Put16(entry, 0, {p.course, p.tee});
    Put(entry, 3, {p.rating});
    entry[7] = static_cast<char>(p.slope);
    Put(entry, 8, {p.date});
    entry[35] = static_cast<char>(p.score);
    entry[36] = p.kind == Posted::kJoinsHalf ? 4 : 0;
    golfer[454] = 0;
    if (p.kind == Posted::kKeepsHalf) {
      golfer.replace(446, 8, entry, 0, 8);
      golfer[454] = entry[35];
    } else {
      const std::size_t history = (p.place - 1) * kHistoryBytes;
      const auto newer = static_cast<std::size_t>(kDay + 1 - p.date);
      now.histories.insert(history + newer * kEntryBytes, entry);
      now.histories.erase(history + kHistoryBytes, kEntryBytes);
      for (std::size_t at = 455; at < 463; at += 2) Put16(golfer, at, {Int16At(golfer, at) + 1});
    }
    PutRecord(now.golfers, p.place, golfer);
  }
  return now;
}

std::string Course(const std::string& name, int tee, const std::string& tee_name, int sex,
                   float rating, int slope) {
  Record<CourseLayout> course;
  course.Set<"Name">(name);
  for (const int active : {1, tee}) course.Set<"ActiveTees">({active}, 255);
  course.Set<"TeeName">({tee}, tee_name);
  course.Set<"Rating">({tee, sex}, rating);
  course.Set<"slope">({tee, sex}, static_cast<std::int16_t>(slope));
  return std::string(course.Bytes());
}

// Returns a golfer of the league with a score for event 2 and some scores outside events.
std::string Player(int id, int sex, int team, int score, const std::string& last_name = "Z") {
  std::string bytes = LeaguePlayer(id, " Ann ", last_name);
  Put16(bytes, 382, {sex});
  Put16(bytes, 472, {team});
  Put16(bytes, 972, {score});
  std::fill_n(bytes.begin() + 3878, 700, '\0');
  if (id > 12) return bytes;
  const int kSlots[][5] = {
      {1, 1, 90, 712, 255}, {2, 2, 90, 712, 255}, {100, 2, 199 + id % 2, -1, 0}};
  for (const auto& [slot, event, played, rating10, slope] : kSlots) {
    const auto at = static_cast<std::size_t>(slot);
    bytes[3877 + at] = static_cast<char>(event);
    Put16(bytes, 3976 + 2 * at, {played});
    Put16(bytes, 4176 + 2 * at, {rating10});
    Put16(bytes, 4376 + 2 * at, {slope});
  }
  return bytes;
}

class ZDtoKVTest : public testing::Test {
 protected:
  void Prepare(int roster_holes, int league_holes) {
    const TempFolder& folder = install.folder;
    header = Pattern(781);
    header[152] = static_cast<char>(roster_holes);
    Put(header, 220, {0.0, 0.0, 0.0});
    folder.Write("kvdata/CLUB.kv5", header);
    folder.Write("kvdata/CLUB.kvg", SomeRoster().golfers + "torn");
    folder.Write("kvdata/CLUB.kvs", SomeRoster().histories);
    header[153] = 1;
    std::string control = LeagueControl("League", 8, 9, 2);
    Put16(control, 192, {league_holes});
    folder.Write("zddata/00011.ZL8", control);
    folder.Write("zddata/00011.ZP8",
                 Player(11, 0, 1, 85) + Player(12, 1, 2, 86) + Player(13, 0, 1, 20) +
                     Player(14, 0, 1, 200) + Player(15, 0, 3, 21) + Player(0, 0, 1, 85) +
                     Player(17, 0, 0, 85) + Player(18, 1, 101, 85) + Player(99, 0, 1, 85) + "torn");
    folder.Write("zddata/0001.ZS8",
                 Player(11, 7, 1, 1) + std::string(4 * kLeaguePlayerBytes, '\0') +
                     Player(12, 1, 2, 86) + Player(16, 1, 50, 199, "Sub") + Player(13, 0, 0, 30));
    std::string teams(3 * 4400, '\0');
    for (int t = 0; t < 3; ++t) Put16(teams, 2302 + 4400 * static_cast<std::size_t>(t), {t + 1});
    teams[4400 + 3405] = 9;  // the ladies of team 2
    teams[8800 + 3404] = 5;  // the men of team 3
    folder.Write("zddata/00011.ZT8", teams);
    std::string events(2 * 222, '\0');
    Put(events, 2, {float{kDay - 7}});
    Put(events, 224, {float{kDay}});
    folder.Write("zddata/00011.ZE8", events);
    // The course that the men of team 1 played exists twice. That of the ladies of team 2 differs.
    folder.Write("zddata/zdcrs.dat", Course(" Pine", 2, "Blue", 0, 71.2f, 125) +
                                         Course("Oak", 3, "Red", 1, 70.2f, 120) +
                                         Course("Elm", 5, "Gold", 0, 66.04f, 99));
    folder.Write("kvdata/kvcrs.dat", Course("pine ", 2, "BLUE", 0, 71.2f, 125) +
                                         Course("PINE", 4, "blue", 0, 71.2f, 125) +
                                         Course("PINE", 6, "blue", 0, 71.2f, 125) +
                                         Course("Oak", 3, "Red", 1, 70.1f, 120) +
                                         Course("Elm", 5, "gold", 0, 65.96f, 99));
    install.Restart();
  }
  // Works as the operator does with this item of the list of batches. Returns the final log.
  std::string Run(int batch, bool previewed = false) {
    std::string log;
    install.Open("ZDtoKV", [&](Screen& screen) {
      if (screen.name() == "ChangePreview") return;  // it is closed
      if (PickRoster<LoadRoster>(*install.host, screen, 1)) return;
      auto& transfer = dynamic_cast<ZDtoKV&>(screen);
      for (const char* button : {"SourceButton", "OKLEague", "DestButton"}) {
        install.host->Press(screen, button);
      }
      EXPECT_EQ(transfer.EventList.index(), kEvent2);
      transfer.EventList.Select(batch);
      if (previewed) install.host->Press(screen, "PreviewButton");
      install.host->Press(screen, "TransferButton");
      log = transfer.Message.text();
    });
    return log;
  }
  void ExpectRoster(const Roster& expected) {
    EXPECT_TRUE(Holds(install.folder, "kvdata/CLUB.kvg", expected.golfers + "torn"));
    EXPECT_TRUE(Holds(install.folder, "kvdata/CLUB.kvs", expected.histories));
  }
  std::size_t Asked(const std::string& title) {
    const auto& events = install.events();
    return static_cast<std::size_t>(std::count_if(events.begin(), events.end(), [&](auto& event) {
      return event.find("[" + title + "]") != std::string::npos;
    }));
  }

  TestInstall install;
  std::string header;
};

struct Case {
  int roster_holes, league_holes;
  int batch;
  std::vector<Posted> posted;
  std::size_t asked;  // about golfers who are in the league twice
};

std::vector<Case> Cases() {
  std::vector<Posted> event = {{1, 85, 2, 4},
                               {10, 85, 2, 4},
                               {3, 86, 0, 1, 70.2f, 120},
                               {6, 21, 5, 5, 66.0f, 99},
                               {7, 199, 0, 1, 0.0f, 113}};
  std::vector<Posted> nine_holes = event, halves = event, before;
  nine_holes[2].tee = nine_holes[4].tee = 2;
  for (Posted& half : halves) {
    half.kind = Posted::kKeepsHalf;
    half.course = 0;
    half.tee = 1;
  }
  halves.push_back({3, 172, 0, 1, 70.2f + 70.2f, 120, kDay, Posted::kJoinsHalf});
  for (const std::size_t place : {1u, 10u, 3u}) {
    before.push_back({place, 90, 0, 1, 71.2f, 255, kDay - 1});
  }
  before.push_back({3, 199, 0, 1, -0.1f, 0, kDay - 1});
  return {{18, 18, kEvent2, event, 1},
          {9, 9, kEvent2, nine_holes, 1},
          {18, 9, kEvent2, halves, 0},
          {18, 18, kBeforeEvent2, before, 2}};
}

TEST_F(ZDtoKVTest, FilesAndLogByteForByte) {
  for (const Case& c : Cases()) {
    SCOPED_TRACE(c.batch * 100 + c.league_holes);
    Prepare(c.roster_holes, c.league_holes);
    std::string expected = "===Scores Transfered===\r\n";
    for (const Posted& p : c.posted) {
      const int score = p.kind == Posted::kJoinsHalf ? p.score / 2 : p.score;
      expected +=
          std::to_string(score) + " - Ann " + FitText(p.place == 7 ? "Sub" : "Z", 15) + "\r\n";
    }
    EXPECT_EQ(Run(c.batch), expected);
    ExpectRoster(After(c.posted));
    EXPECT_EQ(install.folder.Read("kvdata/CLUB.kv5"), header);
    EXPECT_EQ(Asked("Re-transfer score?"), c.asked);
    EXPECT_EQ(Counts(install), "transferred " + std::to_string(c.posted.size()));
    EXPECT_EQ(*(install.events().end() - 2), "message [Notice] Transfer Complete..." +
                                                 std::to_string(c.posted.size()) +
                                                 " scores transfered. -> OK");
  }
}

TEST_F(ZDtoKVTest, WhoIsLeftOut) {
  Prepare(18, 18);
  Run(kEvent2, true);
  ExpectRoster(After(Cases()[0].posted));
  EXPECT_EQ(LeftOutLines(install),
            "Z, Ann (20): with a score that is not between 21 and 199\n"
            "Z, Ann (200): with a score that is not between 21 and 199\n"
            "Z, Ann: without an ID number\n"
            "Z, Ann: without a team in this event\n"
            "Z, Ann: without a team in this event\n"
            "Z, Ann: without a team in this event\n"
            "Z, Ann: not in this roster\n"
            "Z, Ann (86): already transferred, and not transferred again\n");
}

TEST_F(ZDtoKVTest, ASecondRunAsksFirst) {
  const struct {
    std::vector<const char*> answers;
    const char* cancel;
    std::size_t asked, asked_to_cancel, left_out;
    std::optional<std::size_t> again;  // the score that is posted again
  } kCases[] = {{{}, "Yes", 3, 1, 3 + 10, {}},
                {{"NO", "NO", "YES", "NO", "NO", "NO"}, "No", 6, 1, 5 + 7, 2},
                {{"NO", "NO", "NO", "NO", "NO", "YES"}, "No", 6, 1, 5 + 7, 2}};
  for (const auto& c : kCases) {
    Prepare(18, 18);
    Run(kEvent2);
    install.Restart();
    for (const char* answer : c.answers) install.host->QueueAnswer("Re-transfer score?", answer);
    install.host->QueueAnswer("Cancel Transfer?", c.cancel, true);
    Run(kEvent2);
    EXPECT_EQ(Asked("Re-transfer score?"), c.asked);
    EXPECT_EQ(Asked("Cancel Transfer?"), c.asked_to_cancel);
    EXPECT_EQ(install.host->left_out().Count(), c.left_out);
    std::vector<Posted> posted = Cases()[0].posted;
    if (c.again) posted.push_back(posted[*c.again]);
    ExpectRoster(After(posted));
  }
}

// A golfer whose records cannot be read is left out. A golfer and his history change together.
TEST_F(ZDtoKVTest, AReadFaultLeavesOutByNameAndTheNextRunPostsTheRest) {
  Prepare(18, 18);
  // Fewer records make fewer reads.
  install.folder.Write("zddata/00011.ZP8", Player(11, 0, 1, 85) + Player(12, 1, 2, 86));
  install.folder.Write("zddata/zdcrs.dat", Course("Pine", 2, "Blue", 0, 71.2f, 125));
  install.folder.Write("kvdata/kvcrs.dat", Course("Pine", 2, "Blue", 0, 71.2f, 125));
  const auto run = [this] {
    install.host->QueueAnswer("Cancel Transfer?", "No", true);
    Run(kEvent2);
  };
  EXPECT_GT(WalkReadFaults(install, run, {"kvdata/CLUB.kvg", "kvdata/CLUB.kvs"}), 5);
}

// The scores of the golfer before one who cannot be read are not posted again.
TEST_F(ZDtoKVTest, NoHalfIsPostedForAGolferWhoCannotBeRead) {
  Prepare(18, 9);
  install.platform->Fail({.nth = 2, .only = Operation::kRead, .name = ".ZP8"});
  Run(kEvent2);
  std::vector<Posted> posted = Cases()[2].posted;
  posted.pop_back();  // his second half, as a substitute, is the only one
  ExpectRoster(After(posted));
  EXPECT_EQ(install.host->faults().size(), 1u);
}

TEST_F(ZDtoKVTest, RefusalsAndBadInput) {
  const char* settings = "zddata/ZDtoKV.DAT";
  const struct {
    const char* file;
    std::string bytes;
    std::string event;  // its beginning
  } kCases[] = {
      {settings, "\"00011\"\r\n", "message [Info] You must select both source league and"},
      {settings, "\"00011\"\r\n3\r\n\"GONE\"\r\n", "message [Notice] Transfer Complete...0 scores"},
      {settings, "\"none\"\r\n3\r\n\"CLUB\"\r\n", "error 52"},
      {"kvdata/CLUB.kv5", std::string(781, '\x09'),
       "message [Notice] Can not transfer scores from"},
      {"zddata/00011.ZE8", std::string(444, '\xFF'), "error 6"},
      {"zddata/00011.ZP8", Player(11, 2, 1, 85), "error 9"},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.event);
    Prepare(18, 18);
    install.folder.Write(settings, "\"00011\"\r\n3\r\n\"CLUB\"\r\n");
    install.folder.Write(c.file, c.bytes);
    TransferFromMenu<ZDtoKV>(install, "ZDtoKVButton");
    EXPECT_TRUE(ToldBeginning(install, c.event));
    ExpectRoster(SomeRoster());
  }
}

}  // namespace
}  // namespace golf
