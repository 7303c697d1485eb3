// Compares the tables of docs/file-formats.md with those of the code.

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>
#include <vector>

#include "app/file_kinds.h"
#include "core/text.h"

namespace golf {
namespace {

using Rows = std::vector<std::string>;

std::string RangeOf(const Dimension& dimension) {
  return std::to_string(dimension.base) + "-" +
         std::to_string(dimension.base + dimension.count - 1);
}

Rows RowsOf(const LayoutInfo& layout) {
  Rows rows;
  for (const Field& field : layout.fields) {
    std::string indexes;
    for (std::size_t i = 0; i < field.rank; ++i) {
      indexes += (i == 0 ? "" : ", ") + RangeOf(field.dimensions[i]);
    }
    std::ostringstream row;
    row << field.offset << '|' << field.Size() << '|' << InfoOf(field.type).name << '|'
        << field.name << '|' << indexes;
    rows.push_back(row.str());
  }
  return rows;
}

// Returns the first five cells of a table row, trimmed.
std::string CellsOf(const std::string& line) {
  std::istringstream stream(line.substr(1));
  std::string cells;
  std::string cell;
  for (int i = 0; i < 5 && std::getline(stream, cell, '|'); ++i) {
    cells += (i == 0 ? "" : "|") + std::string(Trim(cell));
  }
  return cells;
}

// Returns the tables by the name of their layout, without headings.
std::map<std::string, Rows> TablesOf(const char* page) {
  std::map<std::string, Rows> tables;
  std::ifstream file(page);
  std::string line;
  while (std::getline(file, line)) {
    constexpr std::string_view kMark = "<!-- layout: ";
    if (!line.starts_with(kMark)) continue;
    Rows& rows = tables[line.substr(kMark.size(), line.find(" -->") - kMark.size())];
    for (int heading = 0; heading < 2; ++heading) std::getline(file, line);
    while (std::getline(file, line) && line.starts_with('|')) rows.push_back(CellsOf(line));
  }
  return tables;
}

TEST(FileFormatsTest, ThePageHasTheTablesOfTheCode) {
  const auto tables = TablesOf(GOLF_DOCS "/file-formats.md");
  for (const FileKind& kind : FileKinds()) {
    const auto table = tables.find(std::string(kind.layout.name));
    ASSERT_NE(table, tables.end()) << kind.layout.name;
    EXPECT_EQ(table->second, RowsOf(kind.layout)) << kind.layout.name;
  }
}

}  // namespace
}  // namespace golf
