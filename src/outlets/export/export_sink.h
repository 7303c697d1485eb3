#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "outlets/export/export_row.h"
#include "outlets/export/export_table.h"

namespace golf {

// Writes the tables of an export in one format. All functions raise NumberedError, for example
// error 61 if the disk is full. The files are complete only after Finish.
class ExportSink {
 public:
  virtual ~ExportSink() = default;

  // Creates the tables. This is the first call.
  virtual void Create(std::span<const ExportTable> tables) = 0;
  // Adds a row to the table with this index. The row has a value for each column.
  virtual void Add(std::size_t table, const ExportRow& row) = 0;
  // Completes the tables and returns after they are on the disk.
  virtual void Finish() = 0;
};

enum class ExportFormat { kSqlite, kCsv, kJsonLines };

// `path` names a new file for SQLite, and otherwise an existing empty folder. `byte_order_mark`
// concerns only CSV.
std::unique_ptr<ExportSink> MakeExportSink(ExportFormat format, const std::string& utf8_path,
                                           bool byte_order_mark);

// Returns the extension of the files in a folder of this format, such as ".csv".
std::string_view ExtensionOf(ExportFormat format);

}  // namespace golf
