#include "stores/zandel/zandel_batches.h"
#include "stores/zandel/zandel_files.h"
#include "support/bytes.h"
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
