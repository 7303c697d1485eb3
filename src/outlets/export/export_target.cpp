#include "outlets/export/export_target.h"

#include <algorithm>

#include "core/text.h"
#include "outlets/outside_target.h"

namespace golf {
namespace {

// Returns true if a folder contains nothing but files that an export can contain.
bool IsExport(const NewTarget& folder) {
  return std::ranges::all_of(folder.NamesInExisting(), [](const std::string& name) {
    return name.ends_with(ExtensionOf(ExportFormat::kCsv)) ||
           name.ends_with(ExtensionOf(ExportFormat::kJsonLines));
  });
}

}  // namespace

ExportFormat FormatOfTarget(const NewTarget& target) {
  const std::string extension = LowerCase(target.extension());
  if (extension == ".jsonl") return ExportFormat::kJsonLines;
  const bool is_sqlite = extension == ".sqlite" || extension == ".sqlite3" || extension == ".db";
  return is_sqlite ? ExportFormat::kSqlite : ExportFormat::kCsv;
}

std::string RefusalOfTarget(const NewTarget& target, ExportFormat format, bool replace,
                            std::string_view how_to_replace) {
  const std::string& path = target.path();
  const bool is_file = format == ExportFormat::kSqlite;
  const std::string refusal = RefusalOfPlace(target, is_file);
  if (!refusal.empty()) return refusal;
  if (is_file && target.HasCompanion("-wal", "-journal")) {
    return path + "-wal or " + path +
           "-journal exists: another program has the database open, or did not close it. Close it "
           "there, or choose another name.";
  }
  const NewTarget::Kind existing = target.Existing();
  if (existing == NewTarget::Kind::kNothing) return {};
  const bool can_be_replaced = is_file ? existing == NewTarget::Kind::kFile &&
                                             FormatOfTarget(target) == ExportFormat::kSqlite
                                       : existing == NewTarget::Kind::kFolder && IsExport(target);
  if (can_be_replaced && replace) return {};
  return path + " exists. " +
         (can_be_replaced ? std::string(how_to_replace)
          : is_file ? "It is no file with the extension .sqlite, .sqlite3 or .db, so the export "
                      "does not replace it."
                    : "It is not a folder of an earlier export, so the export does not "
                      "replace it.");
}

}  // namespace golf
