// Compares the help with the program: its headings with the screens, and its tables with the errors
// and the findings of the code. Checks that the page is complete and loads nothing.

#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>

#include "app/application.h"
#include "outlets/checkup/finding.h"
#include "outlets/help/help_page.h"
#include "pages/html_page.h"

namespace golf {
namespace {

using Names = std::set<std::string>;

class HelpTest : public testing::Test {
 protected:
  // Returns the ids of the headings. The id of a screen is its name, which begins with a capital
  // letter.
  std::vector<std::string> Headings(bool of_screens) const {
    std::vector<std::string> ids;
    for (const GumboNode* heading : page.All("h2")) {
      const std::string id = HtmlPage::Attribute(heading, "id");
      const bool is_screen = !id.empty() && std::isupper(static_cast<unsigned char>(id[0])) != 0;
      if (is_screen == of_screens) ids.push_back(id);
    }
    return ids;
  }

  HtmlPage page{HelpPage()};
};

TEST_F(HelpTest, EachScreenHasOneHeading) {
  Names screens;
  for (const auto& [name, maker] : Application::Screens()) screens.insert(name);
  const std::vector<std::string> headings = Headings(true);
  EXPECT_EQ(Names(headings.begin(), headings.end()), screens);
  EXPECT_EQ(headings.size(), screens.size());
}

TEST_F(HelpTest, EachErrorAndEachFindingHasARow) {
  std::ifstream file(GOLF_SOURCE "/core/numbered_error.h");
  const std::string header{std::istreambuf_iterator<char>(file), {}};
  const std::regex kNumber(R"(\n  k\w+ = (\d+),)");
  std::vector<std::string> numbers, shown;
  for (std::sregex_iterator at(header.begin(), header.end(), kNumber); at != std::sregex_iterator();
       ++at) {
    numbers.push_back((*at)[1]);
  }
  const auto errors = page.Rows(page.Find("error-table"));
  for (std::size_t row = 1; row < errors.size(); ++row) shown.push_back(errors[row].at(0));
  EXPECT_FALSE(numbers.empty());
  EXPECT_EQ(shown, numbers);

  std::vector<HtmlPage::Cells> findings;
  for (const FindingKind& kind : FindingKinds()) {
    findings.push_back({std::string(kind.name), std::string(NameOf(kind.severity)),
                        std::string(kind.effect), std::string(kind.advice)});
  }
  auto rows = page.Rows(page.Find("finding-table"));
  rows.erase(rows.begin());
  EXPECT_EQ(rows, findings);
}

TEST_F(HelpTest, TheContentsListAllHeadingsInTheirOrder) {
  std::vector<std::string> linked, headings;
  for (const GumboNode* link : page.All("a", page.Find("contents"))) {
    linked.push_back(HtmlPage::Attribute(link, "href"));
  }
  for (const GumboNode* heading : page.All("h2")) {
    headings.push_back("#" + HtmlPage::Attribute(heading, "id"));
  }
  EXPECT_EQ(linked, headings);
}

TEST_F(HelpTest, ThePageIsCompleteAndLoadsNothing) {
  EXPECT_EQ(page.parse_errors(), 0u);
  for (const GumboNode* link : page.All("a")) {
    const std::string href = HtmlPage::Attribute(link, "href");
    ASSERT_TRUE(href.starts_with("#")) << href;
    EXPECT_NE(page.Find(href.substr(1)), nullptr) << href;
  }
  std::size_t pictures = 0;
  for (const GumboNode* picture : page.All("img")) {
    const std::string source = HtmlPage::Attribute(picture, "src");
    EXPECT_TRUE(source.starts_with("data:image/png;base64,iVBORw0KGgo")) << source.substr(0, 50);
    EXPECT_NE(HtmlPage::Attribute(picture, "alt"), "");
    ++pictures;
  }
  const std::filesystem::directory_iterator files(GOLF_DOCS "/help/pictures");
  EXPECT_EQ(static_cast<std::size_t>(std::distance(begin(files), end(files))), pictures);
  for (const char* const tag : {"script", "link", "iframe", "object", "form"}) {
    EXPECT_TRUE(page.All(tag).empty()) << tag;
  }
  for (const char* const loads : {"http:", "https:", "url(", "@import", "srcset"}) {
    EXPECT_EQ(HelpPage().find(loads), std::string::npos) << loads;
  }
  EXPECT_NE(HelpPage().find("version " + std::string(ProgramVersion())), std::string::npos);
}

// A browser goes to the heading by a script, or the reader by a link.
TEST_F(HelpTest, ACopyBeginsAtAHeading) {
  for (const std::string& heading : Headings(true)) {
    const HtmlPage copy(HelpPageFrom(heading));
    EXPECT_EQ(copy.parse_errors(), 0u);
    EXPECT_EQ(HtmlPage::Attribute(copy.All("a", copy.All("main").at(0)).at(0), "href"),
              "#" + heading);
    ASSERT_EQ(copy.All("script").size(), 1u);
    EXPECT_NE(HtmlPage::Text(copy.All("script")[0]).find("location.hash=\"" + heading + "\""),
              std::string::npos);
  }
  for (const char* const other : {"", "NoSuchScreen", "\"><script>"}) {
    EXPECT_EQ(HelpPageFrom(other), HelpPage()) << other;
  }
}

}  // namespace
}  // namespace golf
