// Runs of the command-line program to which something happens before a call to the system. The data
// files are as before the run after the next start, or as after the run.

#include "cli/command_line_fixture.h"
#include "support/stepped_program.h"

namespace golf {
namespace {

class DisturbedTest : public CommandLineTest {
 protected:
  void SetUp() override {
    CommandLineTest::SetUp();
    before_ = AllFiles();
    EXPECT_EQ(Stepped([&](int call) { return calls_ = call, AtCall::kGoOn; }).code, 0);
    after_ = Data();
    ASSERT_GT(calls_, 10);
  }

  Ended Stepped(const std::function<AtCall(int)>& at_call) {
    return RunStepped(
        folder, GOLF_CLI,
        "--install i --now \"2026-05-13 12:00:00\" golfers-kv-to-qb --roster CLUB18 --to 1",
        at_call);
  }

  // Makes one run for each call and disturbs it before that call. Calls `check` with the result of
  // the run. Then starts the program again, and checks that the data are all old or all new.
  void DisturbEach(AtCall what, const std::function<void(const Ended&)>& check) {
    for (int disturbed = 1; disturbed < calls_; ++disturbed) {
      SCOPED_TRACE(disturbed);
      Restore(before_);
      check(Stepped([&](int call) { return call == disturbed ? what : AtCall::kGoOn; }));
      const Ended next = Script("open LoadRosters\nclose\n");
      EXPECT_EQ(next.code, 0) << next.problems;
      if (next.problems.find("was interrupted.") != std::string::npos) ++recovered_;
      const Tree data = Data();
      if (data == before_) ++kept_;
      if (data == after_) ++done_;
      ASSERT_TRUE(data == before_ || data == after_);
    }
  }

  Tree before_, after_;
  int calls_ = 0, recovered_ = 0, kept_ = 0, done_ = 0;
};

TEST_F(DisturbedTest, AKilledRunIsRecoveredAsAWhole) {
  DisturbEach(AtCall::kKill, [](const Ended& run) { EXPECT_EQ(run.code, kKilledCode); });
  EXPECT_GT(recovered_, 2);
  EXPECT_GT(kept_, 2);
  EXPECT_GT(done_, 2);
}

TEST_F(DisturbedTest, ARunOnADriveThatGoesAwayIsRecoveredAsAWhole) {
  DisturbEach(AtCall::kLoseDrive, [](const Ended& run) { EXPECT_EQ(run.code, 3); });
  EXPECT_GT(recovered_, 2);
  EXPECT_GT(kept_, 2);
  EXPECT_GT(done_, 2);
}

// The run ends before the process does, so there is nothing to recover. The exit code is that of
// the program (129) or, if the system ends the process first, that of Wine (0).
TEST_F(DisturbedTest, AClosedConsoleEndsTheRunInOrder) {
  DisturbEach(AtCall::kCloseConsole, [](const Ended& run) {
    EXPECT_TRUE(run.code == 0 || run.code == 129) << run.code << " " << run.problems;
  });
  EXPECT_EQ(recovered_, 0);
  EXPECT_GT(kept_, 2);
  EXPECT_GT(done_, 2);
}

}  // namespace
}  // namespace golf
