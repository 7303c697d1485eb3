// The command that writes the help.

#include "cli/command_line_fixture.h"

namespace golf {
namespace {

TEST_F(CommandLineTest, ManualWritesTheHelpToAPage) {
  folder.Write("help.html", "an older page");
  const Ended ended = Run("--json manual --to help.html");
  EXPECT_EQ(ended.code, 0);
  EXPECT_EQ(JsonLines(ended.out).at(0),
            nlohmann::json({{"event", "result"}, {"manual", "help.html"}}));
  const std::string page = folder.Read("help.html");
  EXPECT_TRUE(page.starts_with("<!DOCTYPE html>"));
  EXPECT_TRUE(page.ends_with("</html>\n"));
  EXPECT_EQ(Run("manual --to second.html").out, "The help was written to second.html.\n");
  EXPECT_EQ(folder.Read("second.html"), page);

  std::filesystem::create_directories(folder.Path("kvdata"));
  const struct {
    const char* target;
    const char* problem;
  } kCases[] = {{"help.txt", "Choose such a name for the page.\n"},
                {"missing/help.html", "missing"},
                {"kvdata/help.html", "kvdata"}};
  for (const auto& [target, problem] : kCases) {
    const Ended refused = Run("manual --to " + std::string(target));
    EXPECT_EQ(refused.code, 1) << target;
    EXPECT_NE(refused.problems.find(problem), std::string::npos) << refused.problems;
    EXPECT_FALSE(std::filesystem::exists(folder.Path(target)));
  }
  EXPECT_EQ(Run("manual").code, 2);
}

}  // namespace
}  // namespace golf
