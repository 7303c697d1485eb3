#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace golf {

enum class ColumnType : std::uint8_t {
  kInteger,
  kReal,
  kText,  // also dates, times, amounts of money and hex
  kBoolean,
  kResult,  // a text or a number
};

struct ExportColumn {
  std::string name;
  ColumnType type = ColumnType::kInteger;
  std::string_view links_to{};  // the table whose column "id" the values come from, or empty
};

// Describes a table of the export.
struct ExportTable {
  std::string_view name;
  std::vector<ExportColumn> columns;
  // The number of columns, from the left, that identify a row. It is 0 for a table of one row.
  std::size_t key = 1;
  // The columns of each index, as a list of SQL.
  std::vector<std::string_view> indexes{};
};

}  // namespace golf
