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

TEST_F(LostOutputTest, AFileThatMayNotGrowIsADiskFull) {
  EXPECT_EQ(Shell("rm i/qbdata/qbcrs.dat && (ulimit -f 20; " GOLF_CLI
                  " --install i courses-kv-to-qb 2>problems)"),
            3);
  EXPECT_NE(folder.Read("problems").find("Error # 61"), std::string::npos);
  EXPECT_EQ(folder.Read("i/qbdata/qbcrs.dat").size() % 3226, 0u);
}

}  // namespace
}  // namespace golf
