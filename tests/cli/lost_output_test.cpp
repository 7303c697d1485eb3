// Standard output that cannot take what the command-line program writes.

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>

#include "support/temp_folder.h"

namespace golf {
namespace {

class LostOutputTest : public testing::Test {
 protected:
  int Shell(const std::string& command) const {
    return WEXITSTATUS(std::system(("cd '" + folder.Path() + "' && " + command).c_str()));
  }
  void SetUp() override { ASSERT_EQ(Shell(GOLF_CLI " demo i >/dev/null"), 0); }

  TempFolder folder;
};

TEST_F(LostOutputTest, IsToldAndLeavesNothingHalfDone) {
  ASSERT_EQ(
      Shell("cp -r i expected && " GOLF_CLI " --install expected courses-kv-to-qb >/dev/null"), 0);
  EXPECT_EQ(Shell(GOLF_CLI " --install i list courses >/dev/full 2>problems"), 3);
  EXPECT_NE(folder.Read("problems").find("could not be written"), std::string::npos);
  // A reader that is gone does not stop the run between two of its files.
  EXPECT_EQ(Shell("{ (trap '' PIPE; while echo; do :; done) 2>/dev/null; " GOLF_CLI
                  " --install i --json courses-kv-to-qb 2>/dev/null; "
                  "echo $? >code; } | true"),
            0);
  EXPECT_EQ(folder.Read("code"), "3\n");
  EXPECT_EQ(Shell("diff -r i expected"), 0);
}

// Nothing that is printed gets into a data file, whichever streams are missing.
TEST_F(LostOutputTest, ClosedStreamsAreNoDataFiles) {
  const std::string golfers = " --json golfers-kv-to-qb --roster CLUB18 --to 1 --update-tournament";
  const std::string now = GOLF_CLI " --now '2026-05-13 12:00:00' --install ";
  ASSERT_EQ(Shell("cp -r i expected && " + now + "expected" + golfers + " >/dev/null"), 0);
  for (const std::string closed : {">&-", "2>&-", "<&-", "<&- >&- 2>&-"}) {
    SCOPED_TRACE(closed);
    const bool lost = closed.find(" >&-") != std::string::npos || closed == ">&-";
    EXPECT_EQ(Shell("rm -rf x && cp -r i x && " + now + "x" + golfers + " >/dev/null " + closed),
              lost ? 3 : 0);
    EXPECT_EQ(Shell("diff -r x expected"), 0);
  }
  EXPECT_EQ(
      Shell("cp -r i y && echo 'x' >y/kvdata/bad.kvg && printf 'open LoadRosters\\nshow\\n' | " +
            now + "y script - >&- 2>&-"),
      3);
  EXPECT_EQ(Shell("rm y/kvdata/bad.kvg && diff -r i y"), 0);
}

TEST_F(LostOutputTest, AFileThatMayNotGrowIsADiskFull) {
  EXPECT_EQ(Shell("rm i/qbdata/qbcrs.dat && (ulimit -f 20; " GOLF_CLI
                  " --install i courses-kv-to-qb 2>problems)"),
            3);
  EXPECT_NE(folder.Read("problems").find("Error # 61"), std::string::npos);
  EXPECT_EQ(folder.Read("i/qbdata/qbcrs.dat").size() % 3226, 0u);
}

}  // namespace
}  // namespace golf
