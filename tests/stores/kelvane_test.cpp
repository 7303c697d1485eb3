#include <gtest/gtest.h>

#include <algorithm>

#include "stores/kelvane/kelvane_files.h"
#include "stores/kelvane/kelvane_scores.h"
#include "support/bytes.h"
#include "support/error_of.h"
#include "support/test_host.h"

namespace golf {
namespace {

const DateValue kNow = DateFromCivil({2024, 5, 13, 14, 30, 15});

class KelvaneTest : public testing::Test {
 protected:
  KelvaneTest() {
    state.Now = [] { return kNow; };
  }

  // A history whose entries have these dates, the newest first, and the course numbers 1, 2, ...
  void SetHistory(const std::vector<double>& dates) {
    buffers.history = {};
    for (std::size_t i = 0; i < dates.size(); ++i) {
      const int entry = static_cast<int>(i) + 1;
      buffers.history.Set<"Date">({entry}, dates[i]);
      buffers.history.Set<"CourseNumber">({entry}, static_cast<std::int16_t>(entry));
    }
    SetCounter(1, static_cast<int>(dates.size()));
  }
  void SetCounter(int counter, int value) {
    buffers.golfer.Set<"ScoreCounter">({counter}, static_cast<std::int16_t>(value));
  }
  void SetWorkingEntry(double date) {
    buffers.score.Set<"Date">(date);
    buffers.score.Set<"CourseNumber">(99);
  }
  std::vector<int> Courses(std::size_t count) {
    std::vector<int> courses;
    for (int i = 1; courses.size() < count; ++i) {
      courses.push_back(buffers.history.Get<"CourseNumber">(i));
    }
    return courses;
  }
  std::vector<int> Counters() {
    std::vector<int> counters;
    for (int i = 1; i <= 4; ++i) counters.push_back(buffers.golfer.Get<"ScoreCounter">(i));
    return counters;
  }

  TestInstall install;
  SharedState& state = install.state();
  KelvaneBuffers& buffers = state.Kelvane();
};

TEST_F(KelvaneTest, HeaderOfANewRosterByteForByte) {
  const struct {
    std::uint8_t holes;
    std::int16_t handicap_men, handicap_ladies;
    float index_men, index_ladies;
  } rows[] = {{9, 18, 20, 18.2f, 20.2f}, {18, 36, 40, 36.4f, 40.4f}};
  for (const auto& row : rows) {
    std::string expected(781, '\0');
    Put16(expected, 0, {5000});
    PutText(expected, 2, 150);
    Put(expected, 152, {row.holes});
    Put<std::int32_t>(expected, 154, {639});
    for (std::size_t at = 158; at < 194; at += 2) Put16(expected, at, {1});
    PutText(expected, 194, 2);
    expected[200] = 113;
    PutText(expected, 207, 2);
    Put<float>(expected, 209, {36});
    expected[213] = 113;
    Put16(expected, 214, {1, 1, 1});
    Put<double>(expected, 220, {kNow, kNow, kNow, kNow});
    expected[252] = 1;
    Put<float>(expected, 253, {80});
    Put16(expected, 257, {10, 1});
    Put16(expected, 381, {row.handicap_men, row.handicap_ladies});
    Put<float>(expected, 401, {row.index_men, row.index_ladies});
    Put16(expected, 409, {1, 1, 1, -1, -1, -1});
    for (std::size_t i = 1; i <= 20; ++i) {
      PutText(expected, 409 + 12 * i, 12, "Misc Text" + std::to_string(i));
    }
    for (std::size_t i = 1; i <= 5; ++i) {
      PutText(expected, 649 + 12 * i, 12, "Misc Date" + std::to_string(i));
      PutText(expected, 709 + 12 * i, 12, "Misc Curr" + std::to_string(i));
    }
    std::ranges::fill(buffers.header.MutableBytes(), '\x7F');
    BuildBlankKVHeader(state, row.holes);
    EXPECT_EQ(buffers.header.Bytes(), expected) << int{row.holes};
  }
}

TEST_F(KelvaneTest, BlankScoreByteForByte) {
  std::string expected(49, '\0');
  Put<double>(expected, 8, {kNow});
  PutText(expected, 42, 7);
  std::ranges::fill(buffers.score.MutableBytes(), '\x7F');
  BlankKVScore(state);
  EXPECT_EQ(buffers.score.Bytes(), expected);
}

TEST_F(KelvaneTest, SystemFileOfAnotherVersionIsRewritten) {
  std::string defaults(733, '\0');
  Put16(defaults, 0, {500});
  PutText(defaults, 2, 128, "None");
  PutText(defaults, 130, 60, "None");
  defaults[192] = '\xFF';
  for (std::size_t i = 0; i < 9; ++i) PutText(defaults, 193 + 60 * i, 60, "MS Sans Serif");
  std::string current = Pattern(733);
  Put16(current, 0, {500});
  std::string other = current;
  Put16(other, 0, {501});
  const struct {
    std::string before, after;
  } rows[] = {{"", defaults}, {other, defaults}, {other + "+", defaults + "+"}, {current, current}};
  for (const auto& row : rows) {
    install.folder.Write("kvsystem.fil", row.before);
    LoadKVSystemFile(state);
    EXPECT_EQ(install.folder.Read("kvsystem.fil"), row.after);
    EXPECT_EQ(buffers.system.Bytes(), row.after.substr(0, 733));
    EXPECT_EQ(state.files.Length(20), static_cast<std::int64_t>(row.after.size()));  // it is open
  }
}

TEST_F(KelvaneTest, OpeningARoster) {
  install.folder.Write("kvdata/Club.KV5", "torn");
  state.files.Open(1, state.KVDataPath + "other", 1);
  const std::size_t changes = install.platform->changes().size();
  EXPECT_FALSE(OpenKVRoster(state, "Clubs"));
  EXPECT_EQ(state.files.Length(1), 0);  // still open
  EXPECT_EQ(install.platform->changes().size(), changes);

  state.files.Open(201, state.KVDataPath + "other", 1);
  EXPECT_TRUE(OpenKVRoster(state, "CLUB"));
  EXPECT_EQ(state.files.Length(1), 4);
  for (const int number : {2, 3, 5}) EXPECT_EQ(state.files.Length(number), 0) << number;
  EXPECT_EQ(ErrorOf([&] { state.files.Length(201); }), 52);
  for (const char* name : {"CLUB.kvg", "CLUB.kvs", "REPORTS.CFG"}) {
    EXPECT_EQ(install.folder.Read("kvdata/" + std::string(name)), "") << name;
  }
  // The lengths of their records: the last byte of record 2 is no longer within record 1.
  const std::pair<int, std::size_t> lengths[] = {{1, 781}, {2, 2804}, {3, 14700}, {5, 4744}};
  for (const auto& [number, length] : lengths) {
    std::string bytes(length, '\0');
    EXPECT_EQ(ErrorOf([&] { state.files.ReadBytes(number, 1, bytes); }), 0) << number;
    bytes += '\0';
    EXPECT_EQ(ErrorOf([&] { state.files.ReadBytes(number, 1, bytes); }), 59) << number;
  }
  CloseKVFiles(state);
  for (const int number : {1, 2, 3, 5}) {
    EXPECT_EQ(ErrorOf([&] { state.files.Length(number); }), 52) << number;
  }
  install.platform->Fail({ErrorNumber::kPermissionDenied, 1, Operation::kOpen, ".kvs"});
  EXPECT_EQ(ErrorOf([&] { OpenKVRoster(state, "CLUB"); }), 70);
}

TEST_F(KelvaneTest, FindingAGolfer) {
  const std::pair<int, int> places[] = {{0, 7}, {-1, 7}, {0, 0}, {3, 8}, {1, 7}, {2, 7}};
  std::string file;
  for (const auto& [status, id] : places) {
    std::string place(2804, 'x');
    Put16(place, 0, {static_cast<std::int16_t>(status)});
    Put<std::int32_t>(place, 4, {id});
    file += place;
  }
  install.folder.Write("kvdata/Club.kv5", "");
  install.folder.Write("kvdata/Club.kvg", file + std::string(2803, '\1'));
  OpenKVRoster(state, "Club");
  EXPECT_EQ(KVGolferPlaces(state), 6);
  const struct {
    int id, place, last_id;  // in the buffer afterwards
  } rows[] = {{7, 5, 7}, {8, 4, 8}, {0, 0, 7}, {0x01010101, 0, 7}, {-7, 0, 7}};
  for (const auto& row : rows) {
    EXPECT_EQ(FindKVGolfer(state, row.id), row.place) << row.id;
    EXPECT_EQ(buffers.golfer.Get<"IDNum">(), row.last_id) << row.id;
  }
  install.folder.Write("kvdata/Club.kvg", "");
  state.files.Synchronize();
  EXPECT_EQ(FindKVGolfer(state, 7), 0);
}

TEST_F(KelvaneTest, AddingAScore) {
  const struct {
    std::vector<double> dates;
    double date;
    std::vector<int> courses;  // 99 is the one added
  } rows[] = {
      {{}, 5, {99, 0}},
      {{30, 20, 10}, 40, {99, 1, 2, 3, 0}},
      {{30, 20, 10}, 30, {99, 1, 2, 3, 0}},  // in front of its like
      {{30, 20, 10}, 25, {1, 99, 2, 3, 0}},
      {{30, 20, 20, 10}, 20, {1, 99, 2, 3, 4, 0}},
      {{30, 20, 10}, 10, {1, 2, 99, 3, 0}},
      {{30, 20, 10}, 5, {1, 2, 3, 99, 0}},
      {{10, 30, 5}, 20, {99, 1, 2, 3, 0}},  // only the next entry is looked at
  };
  for (const auto& row : rows) {
    SetHistory(row.dates);
    SetWorkingEntry(row.date);
    AddKVScore(state);
    EXPECT_EQ(Courses(row.courses.size()), row.courses) << row.date;
    EXPECT_EQ(buffers.golfer.Get<"ScoreCounter">(1), static_cast<int>(row.dates.size()) + 1);
  }
}

TEST_F(KelvaneTest, AFullHistoryLosesItsOldestEntry) {
  const std::pair<double, std::size_t> rows[] = {{301, 1}, {150.5, 151}, {150, 151}, {0.5, 300}};
  for (const auto& [date, place] : rows) {
    std::vector<double> dates(300);
    for (std::size_t i = 0; i < 300; ++i) dates[i] = static_cast<double>(300 - i);
    SetHistory(dates);
    SetWorkingEntry(date);
    for (int counter = 2; counter <= 4; ++counter) SetCounter(counter, 300);
    std::vector<int> expected(299);
    for (std::size_t i = 0; i < 299; ++i) expected[i] = static_cast<int>(i) + 1;
    expected.insert(expected.begin() + static_cast<std::ptrdiff_t>(place) - 1, 99);
    AddKVScore(state);
    EXPECT_EQ(Courses(300), expected) << date;
    EXPECT_EQ(Counters(), (std::vector<int>{300, 300, 300, 300}));
  }
}

TEST_F(KelvaneTest, CountersGoByTheDatesOfTheHeader) {
  buffers.header.Set<"CounterDate">({1}, 100);
  buffers.header.Set<"CounterDate">({2}, 200);
  buffers.header.Set<"CounterDate">({3}, 300);
  const struct {
    double date;
    std::vector<int> before, after;
  } rows[] = {
      {100, {0, 1, 2, 3}, {1, 1, 2, 3}},
      {100.25, {0, 1, 2, 3}, {1, 1, 3, 3}},
      {200, {0, 1, 2, 3}, {1, 1, 3, 3}},
      {200.25, {0, 1, 2, 3}, {1, 1, 3, 4}},
      {299.75, {0, 1, 2, 3}, {1, 1, 3, 4}},
      {300, {0, 1, 2, 3}, {1, 2, 3, 4}},
      {400, {299, 299, 299, 299}, {300, 300, 300, 300}},
      {400, {300, 0, 300, 0}, {300, 1, 300, 1}},
      {400, {301, 32767, -1, -32768}, {301, 32767, 0, -32767}},
  };
  for (const auto& row : rows) {
    for (int counter = 1; counter <= 4; ++counter) {
      SetCounter(counter, row.before[static_cast<std::size_t>(counter) - 1]);
    }
    SetWorkingEntry(row.date);
    AddKVScore(state);
    EXPECT_EQ(Counters(), row.after) << row.date;
  }
}

TEST_F(KelvaneTest, RepositioningAnEntry) {
  const struct {
    int place;
    double date;  // of the entry at that place, of 50 40 30 20 10
    int counter;
    std::vector<int> courses;
    int working;  // course of the working entry
  } rows[] = {
      {1, 25, 5, {2, 3, 1, 4, 5}, 1},
      {1, 5, 5, {2, 3, 4, 5, 1}, 1},
      {1, 45, 5, {1, 2, 3, 4, 5}, 1},
      {1, 40, 5, {1, 2, 3, 4, 5}, 1},
      {5, 45, 5, {1, 5, 2, 3, 4}, 5},
      {5, 60, 5, {5, 1, 2, 3, 4}, 5},
      {3, 30, 5, {1, 2, 3, 4, 5}, 3},
      {3, 40, 5, {1, 3, 2, 4, 5}, 3},
      {3, 20, 5, {1, 2, 3, 4, 5}, 3},
      {3, 15, 5, {1, 2, 4, 3, 5}, 3},
      {1, 5, 3, {2, 3, 1, 4, 5}, 1},  // entries behind the counter are not looked at
      {5, 5, 3, {1, 2, 3, 5, 4}, 5},
      {4, 5, 0, {4, 1, 2, 3, 5}, 4},
      {4, 60, -1, {1, 2, 3, 4, 5}, 77},
      {5, 60, 400, {5, 1, 2, 3, 4}, 5},  // a counter that no history can have
  };
  for (const auto& row : rows) {
    SetHistory({50, 40, 30, 20, 10});
    buffers.history.Set<"Date">({row.place}, row.date);
    SetCounter(1, row.counter);
    buffers.score.Set<"CourseNumber">(77);
    RepositionKVScore(state, row.place);
    EXPECT_EQ(Courses(5), row.courses) << row.place << " " << row.date;
    EXPECT_EQ(buffers.score.Get<"CourseNumber">(), row.working) << row.place << " " << row.date;
  }
  for (const int place : {0, 301}) {
    EXPECT_EQ(ErrorOf([&] { RepositionKVScore(state, place); }), 9);
  }
}

}  // namespace
}  // namespace golf
