#pragma once

#include <cstddef>
#include <vector>

#include "outlets/export/export_table.h"

namespace golf {

// Returns the tables of calculated results. In an export they follow the tables of the install.
// Their columns have the names of the calculated values.
const std::vector<ExportTable>& ResultTables();

// The positions in ResultTables. Golfers and teams have four tables each, which result_rows.h
// describes.
inline constexpr std::size_t kPlayerResults = 0;
inline constexpr std::size_t kTeamResults = 4;
inline constexpr std::size_t kCustomResults = 8;

}  // namespace golf
