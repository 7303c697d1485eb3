// Compares the table of docs/check.md with that of the code.

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "outlets/checkup/finding.h"

namespace golf {
namespace {

TEST(CheckPageTest, ThePageHasTheTableOfTheCode) {
  std::ifstream file(GOLF_DOCS "/check.md");
  const std::string page{std::istreambuf_iterator<char>(file), {}};
  std::string table;
  for (const FindingKind& kind : FindingKinds()) {
    const std::string code = "| `" + std::string(kind.name) + "` | ";
    table.append(code).append(NameOf(kind.severity)).append(" | ").append(kind.effect);
    table.append(" | ").append(kind.advice).append(" |\n");
    EXPECT_NE(page.find(code, page.find("## Examples")), std::string::npos) << kind.name;
  }
  EXPECT_NE(page.find("|---|---|---|---|\n" + table + "\n"), std::string::npos);
}

}  // namespace
}  // namespace golf
