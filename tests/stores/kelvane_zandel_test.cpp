#include <numeric>

#include "stores/kelvane/kelvane_files.h"
#include "stores/kelvane/kelvane_scores.h"
#include "stores/zandel/zandel_batches.h"
#include "stores/zandel/zandel_files.h"
#include "support/bytes.h"
#include "support/test_host.h"

namespace golf {
namespace {

using Ints = std::vector<int>;

const DateValue kNow = DateFromCivil({2024, 5, 13, 14, 30, 15});

class KelvaneTest : public testing::Test {
 protected:
  KelvaneTest() {
    state.Now = [] { return kNow; };
  }

  // Sets a history with these dates, newest first. The course numbers are 1, 2, 3 and so on.
  void SetHistory(const std::vector<double>& dates) {
    buffers.history = {};
    for (int i = 1; i <= static_cast<int>(dates.size()); ++i) {
      buffers.history.Set<"Date">({i}, dates[static_cast<std::size_t>(i) - 1]);
      buffers.history.Set<"CourseNumber">({i}, static_cast<std::int16_t>(i));
    }
    SetCounter(1, static_cast<int>(dates.size()));
  }
  void SetCounter(int counter, int value) {
    buffers.golfer.Set<"ScoreCounter">({counter}, static_cast<std::int16_t>(value));
  }
  void AddScore(double date) {
    buffers.score.Set<"Date">(date);
    buffers.score.Set<"CourseNumber">(99);
    AddKVScore(state);
  }
  Ints Courses(std::size_t count) {
    Ints courses(count);
    for (int i = 0; int& course : courses) course = buffers.history.Get<"CourseNumber">(++i);
    return courses;
  }
  Ints Counters() {
    Ints counters(4);
    for (int i = 0; int& counter : counters) counter = buffers.golfer.Get<"ScoreCounter">(++i);
    return counters;
  }

  TestInstall install;
  SharedState& state = install.state();
  KelvaneBuffers& buffers = state.Kelvane();
};

TEST_F(KelvaneTest, NewBuffersByteForByte) {
  for (const int holes : {9, 18}) {
    const bool nine = holes == 9;
    std::string expected(781, '\0');
    Put16(expected, 0, {5000});
    PutText(expected, 2, 150);
    expected[152] = static_cast<char>(holes);
    Put<std::int32_t>(expected, 154, {639});
    for (std::size_t at = 158; at < 194; at += 2) Put16(expected, at, {1});
    PutText(expected, 194, 2);
    PutText(expected, 207, 2);
    Put<float>(expected, 209, {36});
    expected[200] = expected[213] = 113;
    Put16(expected, 214, {1, 1, 1});
    Put<double>(expected, 220, {kNow, kNow, kNow, kNow});
    expected[252] = 1;
    Put<float>(expected, 253, {80});
    Put16(expected, 257, {10, 1});
    Put16(expected, 381, {nine ? 18 : 36, nine ? 20 : 40});
    Put<float>(expected, 401, {nine ? 18.2f : 36.4f, nine ? 20.2f : 40.4f});
    Put16(expected, 409, {1, 1, 1, -1, -1, -1});
    for (std::size_t i = 1; i <= 20; ++i) {
      PutText(expected, 409 + 12 * i, 12, "Misc Text" + std::to_string(i));
      if (i > 5) continue;
      PutText(expected, 649 + 12 * i, 12, "Misc Date" + std::to_string(i));
      PutText(expected, 709 + 12 * i, 12, "Misc Curr" + std::to_string(i));
    }
    std::ranges::fill(buffers.header.MutableBytes(), '\x7F');
    BuildBlankKVHeader(state, static_cast<std::uint8_t>(holes));
    EXPECT_EQ(buffers.header.Bytes(), expected) << holes;
  }
  std::string score(49, '\0');
  Put<double>(score, 8, {kNow});
  PutText(score, 42, 7);
  std::ranges::fill(buffers.score.MutableBytes(), '\x7F');
  BlankKVScore(state);
  EXPECT_EQ(buffers.score.Bytes(), score);
}

TEST_F(KelvaneTest, SystemFileOfAnotherVersionIsRewritten) {
  std::string defaults(733, '\0');
  Put16(defaults, 0, {500});
  PutText(defaults, 2, 128, "None");
  PutText(defaults, 130, 60, "None");
  defaults[192] = '\xFF';
  for (std::size_t i = 0; i < 9; ++i) PutText(defaults, 193 + 60 * i, 60, "MS Sans Serif");
  std::string current = Pattern(733);
  std::string other = current;
  Put16(current, 0, {500});
  Put16(other, 0, {501});
  const std::pair<std::string, std::string> rows[] = {
      {"", defaults}, {other, defaults}, {other + "+", defaults + "+"}, {current, current}};
  for (const auto& [before, after] : rows) {
    install.folder.Write("kvsystem.fil", before);
    LoadKVSystemFile(state);
    EXPECT_EQ(install.folder.Read("kvsystem.fil"), after);
    EXPECT_EQ(buffers.system.Bytes(), after.substr(0, 733));
    EXPECT_EQ(ErrorOf([&] { state.files.Length(20); }), 0);  // the file stays open
  }
}

TEST_F(KelvaneTest, OpeningARoster) {
  install.folder.Write("kvdata/Club.KV5", "torn");
  state.files.Open(1, state.KVDataPath + "other", 1);
  state.files.Open(201, state.KVDataPath + "other", 1);
  const std::size_t changes = install.platform->changes().size();
  EXPECT_FALSE(OpenKVRoster(state, "Clubs"));
  EXPECT_EQ(state.files.Length(1), 0);  // number 1 is still the other file
  EXPECT_EQ(install.platform->changes().size(), changes);
  EXPECT_TRUE(OpenKVRoster(state, "CLUB"));
  EXPECT_EQ(state.files.Length(1), 4);
  EXPECT_EQ(ErrorOf([&] { state.files.Length(201); }), 52);
  for (const char* name : {"CLUB.kvg", "CLUB.kvs", "REPORTS.CFG"}) {
    EXPECT_EQ(install.folder.Read("kvdata/" + std::string(name)), "") << name;
  }
  CloseKVFiles(state);
  for (const int number : {1, 2, 3, 5}) {
    EXPECT_EQ(ErrorOf([&] { state.files.Length(number); }), 52) << number;
  }
  install.platform->Fail({ErrorNumber::kPermissionDenied, 1, Operation::kOpen, ".kvs"});
  EXPECT_EQ(ErrorOf([&] { OpenKVRoster(state, "CLUB"); }), 70);
}

TEST_F(KelvaneTest, AddingAScore) {
  const struct {
    std::vector<double> dates;
    double date;
    Ints courses;  // 99 is the added score
  } rows[] = {{{}, 5, {99, 0}},
              {{30, 20, 10}, 40, {99, 1, 2, 3, 0}},
              {{30, 20, 10}, 30, {99, 1, 2, 3, 0}},  // before the entry with the same date
              {{30, 20, 10}, 25, {1, 99, 2, 3, 0}},
              {{30, 20, 20, 10}, 20, {1, 99, 2, 3, 4, 0}},
              {{30, 20, 10}, 5, {1, 2, 3, 99, 0}},
              {{10, 30, 5}, 20, {99, 1, 2, 3, 0}}};  // only the next entry is compared
  for (const auto& row : rows) {
    SetHistory(row.dates);
    AddScore(row.date);
    EXPECT_EQ(Courses(row.courses.size()), row.courses) << row.date;
    EXPECT_EQ(Counters()[0], static_cast<int>(row.dates.size()) + 1);
  }
}

TEST_F(KelvaneTest, AFullHistoryLosesItsOldestEntry) {
  std::vector<double> dates(300);
  std::iota(dates.rbegin(), dates.rend(), 1);
  for (const auto& [date, place] : {std::pair{301.0, 1}, {150.5, 151}, {150, 151}, {0.5, 300}}) {
    SetHistory(dates);
    for (int counter = 2; counter <= 4; ++counter) SetCounter(counter, 300);
    Ints expected(299);
    std::iota(expected.begin(), expected.end(), 1);
    expected.insert(expected.begin() + place - 1, 99);
    AddScore(date);
    EXPECT_EQ(Courses(300), expected) << date;
    EXPECT_EQ(Counters(), Ints(4, 300));
  }
}

TEST_F(KelvaneTest, CountersGoByTheDatesOfTheHeader) {
  for (const int i : {1, 2, 3}) buffers.header.Set<"CounterDate">({i}, i * 100);
  const struct {
    double date;
    Ints before, after;
  } rows[] = {{100, {0, 1, 2, 3}, {1, 1, 2, 3}},
              {100.25, {0, 1, 2, 3}, {1, 1, 3, 3}},
              {200, {0, 1, 2, 3}, {1, 1, 3, 3}},
              {200.25, {0, 1, 2, 3}, {1, 1, 3, 4}},
              {299.75, {0, 1, 2, 3}, {1, 1, 3, 4}},
              {300, {0, 1, 2, 3}, {1, 2, 3, 4}},
              {400, {299, 299, 300, 299}, {300, 300, 300, 300}},
              {400, {301, 32767, -1, -32768}, {301, 32767, 0, -32767}}};
  for (const auto& row : rows) {
    for (int i = 0; const int count : row.before) SetCounter(++i, count);
    AddScore(row.date);
    EXPECT_EQ(Counters(), row.after) << row.date;
  }
}

TEST_F(KelvaneTest, RepositioningAnEntry) {
  const struct {
    int place;
    double date;  // of the entry at `place`; the other dates are 50 40 30 20 10
    int counter;
    Ints courses;
  } rows[] = {{1, 25, 5, {2, 3, 1, 4, 5}},  {1, 5, 5, {2, 3, 4, 5, 1}},
              {1, 45, 5, {1, 2, 3, 4, 5}},  {1, 40, 5, {1, 2, 3, 4, 5}},
              {5, 45, 5, {1, 5, 2, 3, 4}},  {5, 60, 5, {5, 1, 2, 3, 4}},
              {3, 40, 5, {1, 3, 2, 4, 5}},  {3, 20, 5, {1, 2, 3, 4, 5}},
              {3, 15, 5, {1, 2, 4, 3, 5}},  {1, 5, 3, {2, 3, 1, 4, 5}},  // some do not count
              {5, 5, 3, {1, 2, 3, 5, 4}},   {4, 5, 0, {4, 1, 2, 3, 5}},
              {4, 60, -1, {1, 2, 3, 4, 5}}, {5, 60, 400, {5, 1, 2, 3, 4}}};
  for (const auto& row : rows) {
    SetHistory({50, 40, 30, 20, 10});
    buffers.history.Set<"Date">({row.place}, row.date);
    SetCounter(1, row.counter);
    buffers.score.Set<"CourseNumber">(77);
    RepositionKVScore(state, row.place);
    EXPECT_EQ(Courses(5), row.courses) << row.place << " " << row.date;
    EXPECT_EQ(buffers.score.Get<"CourseNumber">(), row.counter < 0 ? 77 : row.place);
  }
}

class ZandelTest : public testing::Test {
 protected:
  std::string Control(const std::string& name, int events = 0, int current = 0) {
    std::string bytes = Pattern(405);
    PutText(bytes, 2, 40, name);
    Put16(bytes, 92, {events, current});
    return bytes;
  }

  TestInstall install;
  SharedState& state = install.state();
};

TEST_F(ZandelTest, TheListOfLeaguesClosesAllFiles) {
  install.folder.Write("zddata/00011.ZL8", Control("One \xC9t\xE9") + "torn");
  state.files.Open(5, state.KVDataPath + "other", 1);
  EXPECT_EQ(ListLeagues(state).at(1).Item(),
            "  DIV1 One \xC9t\xE9" + std::string(33 + 60, ' ') + "00011");
  for (const int number : {5, 21}) EXPECT_EQ(ErrorOf([&] { state.files.Length(number); }), 52);
  install.platform->Fail({ErrorNumber::kPermissionDenied, 1, Operation::kOpen, "00011.ZL8"});
  EXPECT_EQ(ErrorOf([&] { ListLeagues(state); }), 70);
}

TEST_F(ZandelTest, BatchesOfScores) {
  std::string events(4 * 222 - 1, '\0');  // event 4 is incomplete, and event 5 does not exist
  Put<float>(events, 2, {45432});
  Put<float>(events, 222 + 2, {1e30f});
  install.folder.Write("zddata/00011.ZE8", events);
  const struct {
    int events, current, selected;
  } rows[] = {{5, 1, 1}, {5, 5, 9}, {5, 6, 0}, {5, 0, -1}, {5, -7, -1}, {0, 1, 0}, {-1, 1, 0}};
  for (const auto& row : rows) {
    install.folder.Write("zddata/00011.ZL8", Control("Any", row.events, row.current));
    const auto batches = LoadScoreBatches(state, "LEAGUE 99  00011");
    ASSERT_TRUE(batches);
    EXPECT_EQ(batches->selected, row.selected) << row.current;
    ASSERT_EQ(batches->list.size(), row.events > 0 ? 10u : 1u);
    EXPECT_EQ(batches->list[0].Item(), "Practice Scores" + std::string(90, ' ') + "501");
    if (row.events <= 0) continue;
    const std::string blanks(50, ' ');
    EXPECT_EQ(BatchHeading(batches->list[1].Item()), "Event #1 scores 05/20/24");
    EXPECT_EQ(batches->list[1].Item(), "Event #1 scores 05/20/24" + blanks + "001");
    EXPECT_EQ(batches->list[2].Item(),
              "Non-Event scores after event #1 but before #2" + blanks + "502");
    EXPECT_EQ(batches->list[3].Item(), "Event #2 scores " + blanks + "002");  // no date
    EXPECT_EQ(batches->list[9].Item(), "Event #5 scores 12/30/99" + blanks + "005");
  }
  EXPECT_TRUE(install.folder.Exists("zddata/0001.ZS8"));
  EXPECT_EQ(state.files.Length(kLeagueEventFile), 4 * 222 - 1);
  EXPECT_FALSE(LoadScoreBatches(state, "0ABC1"));
  EXPECT_EQ(ErrorOf([&] { state.files.Length(kLeagueEventFile); }), 52);
  EXPECT_FALSE(install.folder.Exists("zddata/0ABC1.ZL8"));
}

}  // namespace
}  // namespace golf
