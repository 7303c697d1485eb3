// Checks that docs/export.md lists the tables, columns and views of the code.

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>

#include "outlets/export/export_tables.h"
#include "outlets/export/install_tables.h"
#include "outlets/export/views.h"

namespace golf {
namespace {

// Returns the number of columns before the fields or the values.
std::size_t OwnColumns(std::size_t table) {
  const ExportTable& described = ExportTables()[table];
  if (table < kInstallTables) {
    return described.columns.size() - InstallTables()[table].fields.columns().size();
  }
  const auto value = std::ranges::find(described.columns, ColumnType::kResult, &ExportColumn::type);
  return static_cast<std::size_t>(value - described.columns.begin());
}

TEST(ExportPageTest, ThePageHasTheTablesOfTheCode) {
  std::ifstream file(GOLF_DOCS "/export.md");
  const std::string page{std::istreambuf_iterator<char>(file), {}};
  for (std::size_t i = 0; i < ExportTables().size(); ++i) {
    const ExportTable& table = ExportTables()[i];
    std::string columns;
    for (std::size_t c = 0; c < OwnColumns(i); ++c) {
      const ExportColumn& column = table.columns[c];
      columns += (c > 0 ? ", `" : "`") + column.name + "`";
      if (!column.links_to.empty()) columns.append(" → `").append(column.links_to).append("`");
    }
    const std::size_t at = page.find("\n| `" + std::string(table.name) + "` | ");
    ASSERT_NE(at, std::string::npos) << table.name;
    const std::string row = page.substr(at + 1, page.find('\n', at + 1) - at - 1);
    EXPECT_TRUE(row.ends_with("| " + columns + " |")) << row << "\n" << columns;
    const std::string picture = page.substr(page.find("```text"), 2500);
    const bool is_result = table.name.starts_with("results_");
    const bool is_alone = table.name == "kelvane_system" || table.name == "quenby_master";
    EXPECT_TRUE(is_result || is_alone || picture.find(table.name) != std::string::npos)
        << table.name;
  }
  for (const ExportView& view : ExportViews()) {
    EXPECT_NE(page.find("\n| `" + std::string(view.name) + "` | "), std::string::npos) << view.name;
  }
}

}  // namespace
}  // namespace golf
