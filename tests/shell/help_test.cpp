// The help page that is written for the browser, and the screen About.

#include <fstream>

#include "app/help_entries.h"
#include "core/code_page.h"
#include "core/new_target.h"
#include "outlets/help/help_page.h"
#include "screens/about.h"
#include "screens/menu/transfer_menu.h"
#include "screens/open_page.h"
#include "support/test_host.h"

namespace golf {
namespace {

namespace fs = std::filesystem;

fs::path PathOf(const std::string& utf8) { return std::u8string(utf8.begin(), utf8.end()); }

std::string ReadAll(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(HelpTest, EachHeadingHasItsFileWhichIsReplaced) {
  TestInstall install;
  install.host->Operate([&] { ShowHelp(*install.host, "KVtoQB"); });
  const std::string name =
      "golf-transfer-help-" + std::string(ProgramVersion()) + "-KVtoQB-page.html";
  EXPECT_EQ(install.events(), std::vector<std::string>{"start " + name + "|"});
  const fs::path path = PathOf(TemporaryFolder() + name);
  EXPECT_EQ(ReadAll(path), HelpPageFrom("KVtoQB"));
  std::ofstream(path) << "changed";
  EXPECT_EQ(PathOf(WriteHelpPage("KVtoQB")), path);
  EXPECT_EQ(ReadAll(path), HelpPageFrom("KVtoQB"));
  fs::remove(path);
}

// A file that cannot be replaced is like that of another user.
TEST(HelpTest, APageThatCannotBeReplacedIsWrittenToAnotherFile) {
  const fs::path path = PathOf(WriteHelpPage("ZDtoQB"));
  fs::remove(path);
  fs::create_directory(path);
  std::ofstream(path / "content") << "kept";
  const fs::path other = PathOf(WriteHelpPage("ZDtoQB"));
  EXPECT_NE(other, path);
  EXPECT_EQ(ReadAll(other), HelpPageFrom("ZDtoQB"));
  EXPECT_EQ(ReadAll(path / "content"), "kept");
  fs::remove(other);
  fs::remove_all(path);
}

TEST(HelpTest, TheMenuOpensTheHelpTheFirstStepsAndAbout) {
  TestInstall install;
  std::string shown;
  install.host->drive = [&](Screen& screen) { shown = screen.name(); };
  const std::vector<MenuEntry> entries = HelpEntries(install.state());
  ASSERT_EQ(entries.size(), 3u);
  for (const MenuEntry& entry : entries) {
    install.host->Operate([&] { entry.open(install.state(), *install.host); });
  }
  EXPECT_TRUE(ToldBeginning(install, "start golf-transfer-help-"));
  EXPECT_EQ(shown, "About");
  EXPECT_TRUE(Load<TransferMenu>(*install.host).steps.StepsFrame.visible());
  fs::remove(PathOf(WriteHelpPage("TransferMenu")));
}

TEST(HelpTest, AboutShowsAndCopiesThePlacesAndTheLicences) {
  TestInstall install;
  install.Open("About", [&](Screen& screen) {
    auto& about = dynamic_cast<About&>(screen);
    const std::string& folder = install.state().ProgramPath;
    for (const std::string& place :
         {folder, install.state().QBDataPath, folder + "transfer-history",
          TextFromUtf8(TemporaryFolder())}) {
      EXPECT_NE(about.PlacesText.text().find(": " + place), std::string::npos) << place;
    }
    const std::string& libraries = about.LibrariesText.text();
    for (const char* const library : {"wxWidgets 3.", "SQLite 3.", "zlib 1.", "CLI11 2.",
                                      "JSON for Modern C++ 3.", "GCC runtime libraries "}) {
      EXPECT_NE(libraries.find(library), std::string::npos) << library;
    }
    EXPECT_EQ(libraries.find('@'), std::string::npos) << "a version is missing";
    EXPECT_EQ(libraries.find("  "), std::string::npos) << "a version is empty";
    install.host->Press(about, "CopyButton");
    EXPECT_EQ(install.host->copied(), about.VersionLabel.caption() + "\r\n" +
                                          about.CopyrightLabel.caption() + "\r\n\r\n" +
                                          about.PlacesText.text() + "\r\n" + libraries);
  });
  EXPECT_EQ(install.events(), (std::vector<std::string>{"open About", "close About"}));
}

}  // namespace
}  // namespace golf
