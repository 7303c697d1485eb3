// The command that writes the descriptions of the file formats.

#include <algorithm>

#include "cli/command_line_fixture.h"

namespace golf {
namespace {

TEST_F(CommandLineTest, FormatsReplacesOnlyItsOwnFiles) {
  ASSERT_EQ(Run("formats --kaitai new/formats").code, 0);
  const Tree written = folder.Files("new/formats");
  EXPECT_TRUE(written.at("kelvane_golfer.ksy").starts_with("meta:\n  id: kelvane_golfer\n"));

  folder.Write("new/formats/team.ksy", "old");
  folder.Write("new/formats/mine.ksy", "mine");
  const Ended ended = Run("--json formats --kaitai new/formats");
  EXPECT_EQ(ended.code, 0);
  Tree expected = written;
  expected["mine.ksy"] = "mine";
  EXPECT_EQ(folder.Files("new/formats"), expected);
  std::vector<std::string> names;
  for (const auto& [name, text] : written) names.push_back(name);
  nlohmann::json result = JsonLines(ended.out).at(0);
  std::sort(result["files"].begin(), result["files"].end());
  EXPECT_EQ(result,
            nlohmann::json({{"event", "result"}, {"formats", "new/formats"}, {"files", names}}));
}

TEST_F(CommandLineTest, FormatsRefusesAFolderThatItCannotUse) {
  folder.Write("file", "a file");
  std::filesystem::create_directories(folder.Path("taken/course.ksy"));
  const struct {
    const char* target;
    const char* problem;
  } kCases[] = {{"file", "file is no folder, or cannot be created.\n"},
                {"file/below", "file/below is no folder, or cannot be created.\n"},
                {"taken", "course.ksy cannot be written.\n"}};
  for (const auto& [target, problem] : kCases) {
    const Ended ended = Run("formats --kaitai " + std::string(target));
    EXPECT_EQ(ended.code, 1) << target;
    EXPECT_TRUE(ended.problems.ends_with(problem)) << ended.problems;
    EXPECT_EQ(ended.out, "");
  }
  EXPECT_EQ(folder.Read("file"), "a file");
  EXPECT_EQ(Run("formats").code, 2);
}

}  // namespace
}  // namespace golf
