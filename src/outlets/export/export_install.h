#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/numbered_error.h"
#include "outlets/export/export_run.h"

namespace golf {

// Contains the number of rows of each table, and the results that could not be calculated.
struct ExportSummary {
  std::vector<std::pair<std::string_view, std::int64_t>> rows;
  std::vector<NumberedError> faults;
};

// Exports all records of an install and the results of its tournaments. Changes no file of the
// install. Raises the errors of the files and of the sink. A result that cannot be calculated is
// noted and does not end the export.
ExportSummary ExportInstall(const ExportChannels& channels);

}  // namespace golf
