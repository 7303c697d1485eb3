#include "transfers/zd_to_kv.h"

#include <gtest/gtest.h>

#include "stores/course/course_layout.h"
#include "stores/kelvane/screens/load_roster.h"
#include "stores/zandel/zandel_layouts.h"
#include "support/league_bytes.h"
#include "support/test_host.h"

namespace golf {
namespace {

constexpr std::size_t kGolferBytes = 2804, kHistoryBytes = 14700, kEntryBytes = 49;
constexpr double kDay = 45400;  // of event 2

// An entry that a run adds to the history at a place of the roster; a half of one if it says so.
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
  bool operator==(const Roster&) const = default;
};

// Golfers 11, nobody, 12, ... 18, and 11 again; three scores each, those of the last one 300.
Roster SomeRoster() {
  Roster roster;
  for (const int id : {11, -11, 12, 13, 14, 15, 16, 17, 18, 11}) {
    std::string golfer = Pattern(kGolferBytes);
    Put16(golfer, 0, {id > 0 ? 1 : 0});
    Put(golfer, 4, {std::int32_t{std::abs(id)}});
    golfer[454] = 0;
    const int scores = roster.golfers.size() == 9 * kGolferBytes ? 300 : 3;
    Put16(golfer, 455, {scores, scores, 1, 1});
    std::string history = Pattern(kHistoryBytes);
    for (int i = 0; i < scores; ++i) {
      Put(history, kEntryBytes * static_cast<std::size_t>(i) + 8, {kDay + 1 - i});
    }
    roster.golfers += golfer;
    roster.histories += history;
  }
  return roster;
}

// The roster after each write of a run, worked out entry by entry.
std::vector<Roster> States(const Roster& before, const std::vector<Posted>& posted) {
  std::vector<Roster> states = {before};
  for (const Posted& p : posted) {
    Roster now = states.back();
    std::string golfer = RecordAt(now.golfers, p.place, kGolferBytes);
    std::string entry(kEntryBytes, '\0');
    PutText(entry, 42, 7);
    Put16(entry, 0, {p.course});
    entry[2] = static_cast<char>(p.tee);
    Put(entry, 3, {p.rating});
    entry[7] = static_cast<char>(p.slope);
    Put(entry, 8, {p.date});
    entry[35] = static_cast<char>(p.score);
    if (p.kind == Posted::kJoinsHalf) entry[36] = 4;
    golfer[454] = 0;
    if (p.kind == Posted::kKeepsHalf) {
      golfer.replace(446, 8, entry, 0, 8);
      golfer[454] = entry[35];
    } else {
      std::string history = RecordAt(now.histories, p.place, kHistoryBytes);
      std::size_t at = 0;
      const auto scores = static_cast<std::size_t>(Int16At(golfer, 455));
      const auto date = [&] { return LoadLittleEndian<double>(&history[at * kEntryBytes + 8]); };
      while (at < std::min<std::size_t>(scores, 299) && p.date < date()) ++at;
      history.insert(at * kEntryBytes, entry).resize(kHistoryBytes);
      now.histories.replace((p.place - 1) * kHistoryBytes, kHistoryBytes, history);
      const bool counts[] = {true, p.date >= 45395, p.date > 45390, p.date > kDay};
      for (std::size_t i = 0; i < 4; ++i) {
        const int count = Int16At(golfer, 455 + 2 * i);
        if (counts[i] && count < 300) Put16(golfer, 455 + 2 * i, {count + 1});
      }
    }
    Roster halfway = now;
    now.golfers.replace((p.place - 1) * kGolferBytes, kGolferBytes, golfer);
    if (p.kind == Posted::kEntry)
      halfway = {now.golfers, halfway.histories = states.back().histories};
    states.push_back(halfway);
    states.push_back(now);
  }
  return states;
}

std::string Course(const std::string& name, int tee, const std::string& tee_name, int sex,
                   float rating, int slope) {
  Record<CourseLayout> course;
  course.Set<"Name">(name);
  course.Set<"ActiveTees">({tee}, 255);
  course.Set<"TeeName">({tee}, tee_name);
  course.Set<"Rating">({tee, sex}, rating);
  course.Set<"slope">({tee, sex}, static_cast<std::int16_t>(slope));
  return std::string(course.Bytes());
}

// A golfer of the league with a score for event 2 and, apart from events, three more.
std::string Player(int id, int sex, int team, int score, const std::string& last = "Z") {
  std::string bytes = LeaguePlayer(id, " Ann ", last);
  Put16(bytes, 382, {sex});
  Put16(bytes, 472, {team});
  Put16(bytes, 972, {score});
  std::fill_n(bytes.begin() + 3878, 100, '\0');
  if (id > 12) return bytes;
  bytes[3878 + 99] = bytes[3878 + 1] = 2;  // slots 100 and 2 before event 2
  bytes[3878] = 1;
  Put16(bytes, 3978, {80, 90});
  Put16(bytes, 4178, {712, 712});
  Put16(bytes, 4378, {113, 255});
  Put16(bytes, 3978 + 198, {id == 12 ? 199 : 200});
  Put16(bytes, 4178 + 198, {-1});
  Put16(bytes, 4378 + 198, {0});
  return bytes;
}

class ZDtoKVTest : public testing::Test {
 protected:
  void Prepare(int roster_holes, int league_holes) {
    const TempFolder& folder = install.folder;
    header = Pattern(781);
    header[152] = static_cast<char>(roster_holes);
    Put(header, 220, {45390.0, kDay, 45395.0});
    folder.Write("kvdata/CLUB.kv5", header);
    folder.Write("kvdata/CLUB.kvg", SomeRoster().golfers + "torn");
    folder.Write("kvdata/CLUB.kvs", SomeRoster().histories);
    header[153] = 1;
    std::string control = LeagueControl("League", 8, 9, 2);
    Put16(control, 192, {league_holes});
    folder.Write("zddata/00011.ZL8", control);
    folder.Write("zddata/00011.ZP8",
                 Joined({Player(11, 0, 1, 85), Player(12, 1, 2, 86), Player(13, 0, 1, 20),
                         Player(14, 0, 1, 200), Player(15, 0, 3, 21), Player(0, 0, 1, 85),
                         Player(17, 0, 0, 85), Player(18, 1, 101, 85), Player(99, 0, 1, 85)}) +
                     "torn");
    folder.Write("zddata/0001.ZS8",
                 Joined({Player(11, 7, 1, 1), "", "", "", "", Player(12, 1, 2, 86),
                         Player(16, 1, 50, 199, "Sub"), Player(13, 0, 0, 30)})
                     .insert(kLeaguePlayerBytes, 4 * kLeaguePlayerBytes, '\0'));
    Record<LeagueTeamLayout> teams[3];
    for (int t = 0; t < 3; ++t) teams[t].Set<"EventCourse">({2}, static_cast<std::int16_t>(t + 1));
    teams[1].Set<"EventTee">({2, 2}, 9);
    teams[2].Set<"EventTee">({2, 1}, 5);
    std::string bytes;
    for (const auto& team : teams) bytes += team.Bytes();
    folder.Write("zddata/00011.ZT8", bytes);
    std::string events(2 * 222, '\0');
    Put(events, 2, {float{kDay - 7}});
    Put(events, 224, {float{kDay}});
    folder.Write("zddata/00011.ZE8", events);
    // What the men of team 1 played is there twice; what the ladies of team 2 played differs.
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
  // The operator's way; the log in the end.
  std::string Run(const std::string& batch) {
    std::string log;
    install.host->drive = [&](Screen& screen) {
      if (auto* rosters = dynamic_cast<LoadRoster*>(&screen)) {
        rosters->grid1.SetActiveRow(1);
        return install.host->Press(screen, "LoadButton");
      }
      auto& transfer = dynamic_cast<ZDtoKV&>(screen);
      install.host->Press(screen, "SourceButton");
      install.host->Press(screen, "OKLEague");
      EXPECT_EQ(transfer.EventList.index(), 3);
      const auto& items = transfer.EventList.items();
      for (std::size_t i = 0; i < items.size(); ++i) {
        if (items[i].ends_with(batch)) transfer.EventList.Select(static_cast<int>(i));
      }
      install.host->Press(screen, "DestButton");
      install.host->Press(screen, "TransferButton");
      log = transfer.Message.text();
    };
    install.host->Operate([&] { OpenScreen(install.state(), *install.host, "ZDtoKV", ""); });
    return log;
  }
  Roster Left() {
    return {install.folder.Read("kvdata/CLUB.kvg").substr(0, 10 * kGolferBytes),
            install.folder.Read("kvdata/CLUB.kvs")};
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
  const char* batch;
  std::vector<Posted> posted;
  std::size_t asked;  // about golfers who are in the league twice
};

std::vector<Case> Cases() {
  constexpr auto kKeeps = Posted::kKeepsHalf, kJoins = Posted::kJoinsHalf;
  std::vector<Posted> event = {{1, 85, 2, 4},
                               {10, 85, 2, 4},
                               {3, 86, 0, 1, 70.2f, 120},
                               {6, 21, 5, 5, 66.0f, 99},
                               {7, 199, 0, 1, 0.0f, 113}};
  std::vector<Posted> nine_holes = event, halves = event;
  nine_holes[2].tee = nine_holes[4].tee = 2;
  for (Posted& half : halves) {
    half.kind = kKeeps;
    half.course = 0;
    half.tee = 1;
  }
  halves.push_back({3, 172, 0, 1, 70.2f + 70.2f, 120, kDay, kJoins});
  const auto practice = [](std::size_t place, int score, float rating, int slope) {
    return Posted{place, score, 0, 1, rating, slope, kDay - 1};
  };
  return {{18, 18, "002", event, 1},
          {9, 9, "002", nine_holes, 1},
          {18, 9, "002", halves, 0},
          {18,
           18,
           "502",
           {practice(1, 90, 71.2f, 255), practice(10, 90, 71.2f, 255), practice(3, 90, 71.2f, 255),
            practice(3, 199, -0.1f, 0)},
           2}};
}

TEST_F(ZDtoKVTest, FilesAndLogByteForByte) {
  for (const Case& c : Cases()) {
    SCOPED_TRACE(std::string(c.batch) + " " + std::to_string(c.league_holes));
    Prepare(c.roster_holes, c.league_holes);
    std::string expected = "===Scores Transfered===\r\n";
    for (const Posted& p : c.posted) {
      const int score = p.kind == Posted::kJoinsHalf ? p.score / 2 : p.score;
      expected +=
          std::to_string(score) + " - Ann " + FitText(p.place == 7 ? "Sub" : "Z", 15) + "\r\n";
    }
    EXPECT_EQ(Run(c.batch), expected);
    EXPECT_TRUE(Left() == States(SomeRoster(), c.posted).back());
    EXPECT_EQ(install.folder.Read("kvdata/CLUB.kv5"), header);
    EXPECT_EQ(Asked("Re-transfer score?"), c.asked);
    EXPECT_EQ(*(install.events().end() - 2), "message [Notice] Transfer Complete..." +
                                                 std::to_string(c.posted.size()) +
                                                 " scores transfered. -> OK");
  }
}

TEST_F(ZDtoKVTest, ASecondRunAsksFirst) {
  const struct {
    std::vector<const char*> answers;
    const char* cancel;
    std::size_t asked, asked_to_cancel, posted;
  } kCases[] = {{{}, "Yes", 3, 1, 0},
                {{}, "No", 6, 2, 0},
                {{"NO", "NO", "YES", "NO", "NO", "NO"}, "No", 6, 1, 1},
                {{"YES", "NO", "NO", "NO"}, "Yes", 4, 1, 1}};
  const Case first = Cases()[0];
  for (const auto& c : kCases) {
    Prepare(18, 18);
    Run("002");
    install.Restart();
    for (const char* answer : c.answers) install.host->QueueAnswer("Re-transfer score?", answer);
    install.host->QueueAnswer("Cancel Transfer?", c.cancel, true);
    Run("002");
    EXPECT_EQ(Asked("Re-transfer score?"), c.asked);
    EXPECT_EQ(Asked("Cancel Transfer?"), c.asked_to_cancel);
    std::vector<Posted> posted = first.posted;
    if (c.posted == 1) posted.push_back(posted[c.asked == 6 ? 2 : 0]);
    EXPECT_TRUE(Left() == States(SomeRoster(), posted).back());
  }
}

// Whatever fails, the roster is as after some write; trying again completes the histories.
TEST_F(ZDtoKVTest, EachFileOperationFailsOnce) {
  for (const std::size_t which : {0u, 2u}) {
    const Case c = Cases()[which];
    const auto states = States(SomeRoster(), c.posted);
    bool failed = true;
    for (int nth = 1; failed; ++nth) {
      SCOPED_TRACE(nth);
      ASSERT_LT(nth, 500);
      Prepare(c.roster_holes, c.league_holes);
      install.platform->Fail({.error = ErrorNumber::kPathAccess, .nth = nth});
      try {
        Run(c.batch);
      } catch (const ClickEnded& ended) {
        EXPECT_EQ(ended.error.number(), 75);
      }
      failed = install.platform->Failed();
      EXPECT_NE(std::find(states.begin(), states.end(), Left()), states.end());
      if (which != 0 || nth % 3 != 0) continue;
      install.Restart();
      install.host->QueueAnswer("Cancel Transfer?", "No", true);
      Run(c.batch);
      EXPECT_TRUE(Left().histories == states.back().histories);
    }
    EXPECT_TRUE(Left() == states.back());
  }
}

TEST_F(ZDtoKVTest, RefusalsAndBadInput) {
  std::string no_date(2 * 222, '\xFF');
  const struct {
    const char* file;
    std::string bytes;
    std::string event;
  } kCases[] = {
      {"zddata/ZDtoKV.DAT", "\"00011\"\r\n",
       "message [Info] You must select both source league and destination roster before you can "
       "transfer scores. -> OK"},
      {"zddata/ZDtoKV.DAT", "\"00011\"\r\n3\r\n\"GONE\"\r\n",
       "message [Notice] Transfer Complete...0 scores transfered. -> OK"},
      {"kvdata/CLUB.kv5", std::string(781, '\x09'),
       "message [Notice] Can not transfer scores from an 18 hole league to a 9 hole handicap "
       "roster -> OK"},
      {"zddata/00011.ZE8", no_date, "error 6"},
      {"zddata/00011.ZP8", Player(11, 2, 1, 85), "error 9"},
      {"zddata/ZDtoKV.DAT", "\"none\"\r\n3\r\n\"CLUB\"\r\n", "error 52"},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.event);
    Prepare(18, 18);
    install.folder.Write("zddata/ZDtoKV.DAT", "\"00011\"\r\n3\r\n\"CLUB\"\r\n");
    install.folder.Write(c.file, c.bytes);
    install.host->drive = [&](Screen& screen) { install.host->Press(screen, "TransferButton"); };
    try {
      install.host->Operate([&] { OpenScreen(install.state(), *install.host, "ZDtoKV", ""); });
    } catch (const ClickEnded&) {
    }
    EXPECT_EQ(install.events().at(1), c.event);
    EXPECT_TRUE(Left() == SomeRoster());
  }
}

}  // namespace
}  // namespace golf
