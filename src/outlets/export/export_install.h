#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/new_target.h"
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

// Says what to export. The last two members are those of ExportChannels.
struct ExportRequest {
  SharedState& state;
  ExportFormat format;
  bool with_deleted = false;
  bool byte_order_mark = false;  // concerns only CSV
  ReportProgress report;
  std::function<void(const std::string&)> note;
};
// Exports to a target that RefusalOfTarget allows. Replaces an existing target. If the export
// raises an exception, the destructor of the target deletes the files that were written. Raises the
// errors of ExportInstall and of NewTarget.
ExportSummary ExportTo(NewTarget& target, const ExportRequest& request);

}  // namespace golf
