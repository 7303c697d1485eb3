#pragma once

#include <string>
#include <string_view>

#include "core/new_target.h"
#include "outlets/export/export_sink.h"

namespace golf {

// Returns the format that the extension of the target stands for: ".sqlite", ".sqlite3" and ".db"
// for SQLite, ".jsonl" for JSON Lines, and any other or no extension for CSV.
ExportFormat FormatOfTarget(const NewTarget& target);

// Returns a sentence, in UTF-8, if the target cannot be written, for example because it exists and
// `replace` is false. `how_to_replace` is a sentence that follows if it can be replaced. A folder
// is replaced only if it can be an earlier export, and a file only if it has an extension of
// SQLite. Returns an empty text otherwise.
std::string RefusalOfTarget(const NewTarget& target, ExportFormat format, bool replace,
                            std::string_view how_to_replace);

}  // namespace golf
