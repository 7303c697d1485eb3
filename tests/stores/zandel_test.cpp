#include <gtest/gtest.h>

#include "stores/zandel/zandel_batches.h"
#include "stores/zandel/zandel_files.h"
#include "support/bytes.h"
#include "support/error_of.h"
#include "support/test_host.h"

namespace golf {
namespace {

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

TEST_F(ZandelTest, ListOfLeagues) {
  const std::string nothing(40, '\0');
  std::string cut = "North" + nothing;
  cut.resize(40);
  const std::pair<std::string, std::string> files[] = {
      {"00012.ZL8", Control("Two: 123")},
      {"00011.zl8", Control("One \xC9t\xE9") + "torn"},
      {"00032.ZL8", Control("No first")},
      {"00041.ZL8", ""},
      {"00051.ZL8", "xxNorth"},
      {"0006.ZL8", Control("Short")},
      {"000112.ZL8", Control("Long")},
      {"10011.ZL8", Control("Other")},
      {"00071.ZL7", Control("Old series")}};
  for (const auto& [name, bytes] : files) install.folder.Write("zddata/" + name, bytes);
  state.files.Open(5, state.KVDataPath + "other", 1);
  const std::size_t changes = install.platform->changes().size();
  std::vector<std::string> items;
  for (const ListedLeague& league : ListLeagues(state)) items.push_back(league.Item());
  const auto item = [](const std::string& kind, const std::string& name, const char* base) {
    return kind + name + std::string(40 - name.size(), ' ') + std::string(60, ' ') + base;
  };
  const std::string first = "One \xC9t\xE9";
  EXPECT_EQ(items, (std::vector<std::string>{
                       item("LEAGUE ", first, "00011"), item("  DIV1 ", first, "00011"),
                       item("LEAGUE ", first, "00011"), item("  DIV1 ", first, "00011"),
                       item("  DIV2 ", "Two: 123", "00012"), item("  DIV2 ", "No first", "00032"),
                       item("LEAGUE ", nothing, "00041"), item("  DIV1 ", nothing, "00041"),
                       item("LEAGUE ", cut, "00051"), item("  DIV1 ", cut, "00051")}));
  EXPECT_EQ(install.platform->changes().size(), changes);
  for (const int number : {5, 21}) EXPECT_EQ(ErrorOf([&] { state.files.Length(number); }), 52);
  install.platform->Fail({ErrorNumber::kPermissionDenied, 1, Operation::kOpen, "00012.ZL8"});
  EXPECT_EQ(ErrorOf([&] { ListLeagues(state); }), 70);
}

TEST_F(ZandelTest, BatchesOfScores) {
  std::string events(4 * 222 - 1, '\0');  // the last one is torn, and the fifth is not there
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
