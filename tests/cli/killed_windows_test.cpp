// Runs of the command-line program that are killed before a call to the system. The data files are
// as before the run after the next start, or as after the run.

#include "cli/command_line_fixture.h"
#include "support/stepped_program.h"

namespace golf {
namespace {

class KilledTest : public CommandLineTest {
 protected:
  Ended Stepped(const std::function<bool(int)>& kills_before) {
    return RunStepped(
        folder, GOLF_CLI,
        "--install i --now \"2026-05-13 12:00:00\" golfers-kv-to-qb --roster CLUB18 --to 1",
        kills_before);
  }
};

TEST_F(KilledTest, AKilledRunIsRecoveredAsAWhole) {
  const Tree before = AllFiles();
  int calls = 0;
  EXPECT_EQ(Stepped([&](int call) { return (calls = call) == 0; }).code, 0);
  const Tree after = Data();
  ASSERT_GT(calls, 10);
  int recovered = 0, kept = 0, done = 0;
  for (int killed = 1; killed < calls; ++killed) {
    SCOPED_TRACE(killed);
    Restore(before);
    EXPECT_EQ(Stepped([&](int call) { return call == killed; }).code, kKilledCode);
    const Ended next = Script("open LoadRosters\nclose\n");
    EXPECT_EQ(next.code, 0) << next.problems;
    if (next.problems.find("was interrupted.") != std::string::npos) ++recovered;
    const Tree data = Data();
    if (data == before) ++kept;
    if (data == after) ++done;
    ASSERT_TRUE(data == before || data == after);
  }
  EXPECT_GT(recovered, 2);
  EXPECT_GT(kept, 2);
  EXPECT_GT(done, 2);
}

}  // namespace
}  // namespace golf
