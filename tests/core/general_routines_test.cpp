#include "core/general_routines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <limits>
#include <vector>

#include "core/id_number_list.h"
#include "core/number_text.h"
#include "support/error_of.h"

namespace golf {
namespace {

using Ints = std::vector<std::int32_t>;

TEST(GeneralRoutines, FilterKey) {
  const std::string keys = "AZaz 09\b-/:@[`{\xE9";
  const std::pair<unsigned, std::string> rows[] = {
      // In the expected texts "." means a refused key.
      {0, "AZaz.09\b........"}, {1, "AZaz 09\b........"}, {2, "AZAZ.09\b........"},
      {3, "AZAZ 09\b........"}, {4, "AZaz...\b........"}, {7, "AZAZ ..\b........"}};
  for (const auto& [options, passed] : rows) {
    std::string found;
    for (const char key : keys) found += FilterKey(key, options) ? FilterKey(key, options) : '.';
    EXPECT_EQ(found, passed) << options;
  }
}

TEST(GeneralRoutines, LimitNumber) {
  const struct {
    double value;
    std::optional<double> if_low, if_high;
    int result;
    double left;  // the caller's variable after the call
  } rows[] = {{LeadingNumber("7"), {}, {}, 5, 5},
              {LeadingNumber("x"), {}, {}, 1, 1},
              {0, 3, {}, 3, 3},
              {0, -4, {}, 1, 1},  // a replacement below `low` is raised to `low`
              {0, 9, {}, 5, 5},
              {0, 9, 2, 2, 2},
              {9, {}, 12, 5, 5},
              {9, {}, -3, -3, -3},  // `low` was checked before
              {2.5, {}, {}, 2, 2.5},
              {3.5, {}, {}, 4, 3.5}};
  for (const auto& row : rows) {
    double value = row.value;
    EXPECT_EQ(LimitNumber(value, 1, 5, row.if_low, row.if_high), row.result) << row.value;
    EXPECT_EQ(value, row.left) << row.value;
  }
  double huge = 1e10;
  EXPECT_EQ(ErrorOf([&] { LimitNumber(huge, 0, 1e11); }), 6);
}

TEST(GeneralRoutines, StrokesAreAllocatedOverNineHolesOrOverEighteen) {
  const std::pair<int, Ints> rows[] = {{9, {1, 2, 2}}, {10, {1, 1, 1}}};
  for (const auto& [holes, strokes] : rows) {
    Ints ranks = {17, 1, 3}, expected = strokes;  // the other holes have rank 0
    ranks.resize(18);
    expected.resize(holes == 9 ? 9 : 18);
    expected.resize(18, 77);  // the entries after a nine do not change
    Ints result(18, 77);
    AllocateHoleStrokes(result, ranks, holes, 11);
    EXPECT_EQ(result, expected) << holes;
  }
}

// The expected rows were calculated by hand. An exchange across a gap can change the order of equal
// keys.
TEST(GeneralRoutines, ShellSort) {
  using Floats = std::vector<float>;
  const struct {
    Floats values;
    Ints indexes;
    std::size_t count;
    unsigned options;
    Floats sorted;
    Ints carried;
  } rows[] = {// Gap 2 exchanges places 1 and 3. Gap 1 exchanges nothing.
              {{2, 2, 1, 3}, {10, 20, 30, 40}, 4, 0, {1, 2, 2, 3}, {30, 20, 10, 40}},
              {{2, 2, 3, 1}, Ints(4), 4, 5, {3, 2, 2, 1}, {3, 2, 1, 4}},
              // With gap 3, places 1, 4 and 7 get the records 4, 1 and 7, and places 3 and 6 get
              // the records 6 and 3. Gap 1 exchanges nothing.
              {{5, 1, 5, 1, 5, 1, 5}, Ints(7), 7, 4, {1, 1, 1, 5, 5, 5, 5}, {4, 2, 6, 1, 5, 3, 7}},
              // After gap 3 the records are 4 2 6 1 5 3. Gap 1 exchanges places 2-3, 4-5 and 5-6.
              {{4, 2, 2, 1, 2, 1}, Ints(6), 6, 4, {1, 1, 2, 2, 2, 4}, {4, 6, 2, 5, 3, 1}},
              {{3, 2, 1}, {7, 8, 9}, 2, 0, {2, 3, 1}, {8, 7, 9}},
              {{3, 2}, {7, 8}, 1, 4, {3, 2}, {1, 8}},
              {{3, 2}, {7, 8}, 0, 4, {3, 2}, {7, 8}}};
  for (const auto& row : rows) {
    Floats values = row.values;
    Ints indexes = row.indexes;
    ShellSort(values, indexes, row.count, row.options);
    EXPECT_EQ(values, row.sorted);
    EXPECT_EQ(indexes, row.carried);
  }
}

TEST(IdNumberList, FreeIds) {
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
  const struct {
    Ints ids;
    std::int32_t highest, free;
  } rows[] = {
      {{}, 99, 1},
      {{7, 3, 4}, 99, 5},
      {{7, 3, 4}, 5, 5},
      {{7, 3, 4}, 4, 1},
      {{3, 4, 5}, 5, 1},
      {{3, 4, 5}, 6, 6},
      {{0, 8, -3, 7}, 99, 9},
      {{3, 3, 5}, 99, 6},  // an ID that occurs twice also counts twice
      {{3, 3, 6}, 99, 5},
      {{kMost}, kMost, 1},
  };
  for (const auto& row : rows) {
    IdNumberList list;
    for (const std::int32_t id : row.ids) list.Append(id);
    EXPECT_EQ(list.NextFree(row.highest), row.free) << row.highest;
  }
}

TEST(IdNumberList, ForgottenIds) {
  IdNumberList list;
  list.Forget(8);  // the ID is not in the list
  EXPECT_FALSE(list.Contains(0));
  for (const std::int32_t id : {3, 4, 5, 6}) list.Append(id);
  list.Forget(4);
  EXPECT_TRUE(list.Contains(3) && !list.Contains(4) && !list.Contains(7));
  EXPECT_TRUE(list.Contains(0));  // 0 replaces the forgotten ID
  EXPECT_EQ(list.NextFree(99), 4);
  list.Append(4);
  EXPECT_EQ(list.NextFree(99), 7);
  list.Append(1);  // a new lowest ID
  EXPECT_EQ(list.NextFree(99), 2);
  list.Append(5);
  list.Forget(5);
  EXPECT_TRUE(list.Contains(5));  // the ID occurred twice
  list.AppendNew(4);
  list.Forget(4);
  EXPECT_FALSE(list.Contains(4));
  list.Clear();
  EXPECT_FALSE(list.Contains(3));
  EXPECT_EQ(list.NextFree(99), 1);
}

}  // namespace
}  // namespace golf
