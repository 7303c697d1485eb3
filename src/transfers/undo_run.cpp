#include "transfers/undo_run.h"

#include <algorithm>

#include "stores/course/course_library.h"

namespace golf {
namespace {

// True if the course indexes of a library must be rebuilt. They need not be if the undo restores
// them together with the library.
bool MustRebuild(const RecordKinds& kinds, const UndoResult& result, const std::string& library) {
  if (result.stale.contains(library)) return true;
  return result.put_back.contains(library) &&
         std::none_of(result.put_back.begin(), result.put_back.end(),
                      [&](const std::string& file) { return kinds.derived_from(file) == library; });
}

std::string ReportOfUndo(const HistoryRun& run, const UndoResult& result) {
  std::string report =
      "Undo of the run of " +
      FormatPicture(CivilFromDate(run.title.moment), "yyyy'-'MM'-'dd HH':'mm':'ss") + ": " +
      run.title.command;
  if (!run.title.about.empty()) report += " " + run.title.about;
  if (!result.conflicts.empty()) report += "\r\nLeft as they are:";
  for (const UndoConflict& conflict : result.conflicts) {
    report += "\r\n" + conflict.file;
    if (conflict.record > 0) report += ", record " + std::to_string(conflict.record);
    report += ": " + conflict.title;
  }
  return report;
}

}  // namespace

UndoResult HoldUndoOfRun(SharedState& state, const RecordKinds& kinds, const HistoryRun& run) {
  Transactions& transactions = *state.transactions;
  HistoryFolder& folder = transactions.history();
  UndoResult result = HoldUndo(transactions.held(), folder, transactions, kinds, run);
  const std::string before = state.CourseDataPath;
  transactions.BeginGroup("");
  for (const CourseLibrary& library : kCourseLibraries) {
    const std::string path = CourseFilePath(state, library);
    if (MustRebuild(kinds, result, folder.paths().Name(path)) && state.files.FileExists(path)) {
      RebuildCourseIndexes(state, library);
    }
  }
  state.CourseDataPath = before;
  return result;
}

std::int32_t CommitUndoOfRun(Transactions& transactions, const HistoryRun& run,
                             const UndoResult& result) {
  const std::int32_t committed = transactions.Commit(ReportOfUndo(run, result));
  if (committed == 0 && result.conflicts.empty()) MarkUndone(transactions.history(), run);
  return committed;
}

}  // namespace golf
