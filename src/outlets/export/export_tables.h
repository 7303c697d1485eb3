#pragma once

#include <vector>

#include "outlets/export/export_table.h"

namespace golf {

// Returns all tables of an export: those of the install, then those of the results.
const std::vector<ExportTable>& ExportTables();

}  // namespace golf
