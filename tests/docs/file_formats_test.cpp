// Compares the tables of docs/file-formats.md with those of the code.

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>

#include "outlets/file_kinds.h"

namespace golf {
namespace {

// Returns the table row of a field.
std::string RowOf(const Field& field) {
  std::ostringstream row;
  row << '|' << field.offset << '|' << field.Size() << '|' << InfoOf(field.type).name << '|'
      << field.name << '|';
  for (std::size_t i = 0; i < field.rank; ++i) {
    const Dimension& dimension = field.dimensions[i];
    row << (i == 0 ? "" : ",") << dimension.name << dimension.base << '-'
        << dimension.base + dimension.count - 1;
  }
  row << '|' << field.meaning << '|';
  return row.str();
}

std::string WithoutBlanks(std::string text) {
  std::erase(text, ' ');
  return text;
}

TEST(FileFormatsTest, ThePageHasTheTablesOfTheCode) {
  std::ifstream file(GOLF_DOCS "/file-formats.md");
  const std::string page = WithoutBlanks({std::istreambuf_iterator<char>(file), {}});
  for (const FileKind& kind : FileKinds()) {
    const std::string mark = WithoutBlanks("<!--layout:" + std::string(kind.layout.name) + "-->");
    std::size_t at = page.find("\n|--", page.find(mark)) + 1;
    const auto next_line = [&] { at = page.find('\n', at) + 1; };
    for (const Field& field : kind.layout.fields) {
      const std::string row = WithoutBlanks(RowOf(field));
      next_line();
      EXPECT_EQ(page.substr(at, row.size()), row) << kind.layout.name;
    }
    next_line();
    EXPECT_NE(page.substr(at, 1), "|") << "more rows than fields: " << kind.layout.name;
  }
}

}  // namespace
}  // namespace golf
