#pragma once

#include <memory>
#include <string>

#include "outlets/export/export_sink.h"

namespace golf {

// Writes an SQLite database, in one transaction. Indexes and views are created at the end.
std::unique_ptr<ExportSink> MakeSqliteSink(const std::string& utf8_path);

}  // namespace golf
