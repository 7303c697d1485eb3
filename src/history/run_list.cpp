#include "history/run_list.h"

#include <algorithm>
#include <map>
#include <set>

#include "history/run_stage.h"

namespace golf {
namespace {

// Sets the state of the runs that were put back. An undo that was undone itself does not count, so
// its run is done again.
void FindUndone(std::vector<HistoryRun>& newest_first) {
  std::set<std::int32_t> undone;
  for (HistoryRun& run : newest_first) {
    if (run.state != RunState::kDone) continue;
    if (undone.contains(run.run)) {
      run.state = RunState::kUndone;
    } else if (run.IsUndo()) {
      undone.insert(run.title.undoes);
    }
  }
}

void AddPart(HistoryFile& history, const HistoryName& name, std::vector<HistoryRun>& runs) {
  const RunStage stage = StageOf(history);
  if (stage == RunStage::kClosed || stage == RunStage::kNeverApplied) return;
  const RunTitle title = history.Title();
  if (runs.empty() || runs.back().run != name.run) {
    runs.push_back({.run = name.run, .title = title, .parts = {}});
  }
  HistoryRun& run = runs.back();
  run.parts.push_back(name);
  run.changes += history.CountChanges();
  if (stage == RunStage::kLeft) {
    run.state = RunState::kLeft;
  } else if (!HasEnded(stage)) {
    run.state = RunState::kInterrupted;
  } else if (history.Has(HistoryMark::kUndone)) {
    run.state = RunState::kUndone;
  }
}

}  // namespace

std::string_view NameOf(RunState state) {
  constexpr std::string_view kNames[] = {"done", "undone", "interrupted", "left"};
  return kNames[static_cast<std::size_t>(state)];
}

KeptRuns ListRuns(HistoryFolder& folder) {
  KeptRuns list;
  for (const HistoryName& name : folder.List()) {
    try {
      AddPart(*folder.Open(name, FileAccess::kReadOnly), name, list.runs);
    } catch (const DamagedHistory& error) {
      list.damaged.push_back(error.description());
    } catch (const NumberedError& error) {
      if (!error.Is(ErrorNumber::kPermissionDenied)) throw;
    }
  }
  std::reverse(list.runs.begin(), list.runs.end());
  for (std::size_t i = 0; i < list.runs.size(); ++i) {
    list.runs[i].number = static_cast<std::int32_t>(i) + 1;
  }
  FindUndone(list.runs);
  return list;
}

const HistoryRun* NewestToUndo(const KeptRuns& list) {
  const auto newest = std::find_if(list.runs.begin(), list.runs.end(), [](const HistoryRun& run) {
    return run.state == RunState::kDone && !run.IsUndo();
  });
  return newest == list.runs.end() ? nullptr : &*newest;
}

std::string ReportOf(HistoryFolder& folder, const HistoryRun& run) {
  std::string report;
  for (const HistoryName& part : run.parts) {
    folder.Open(part, FileAccess::kReadOnly)->Read({.report = [&](std::string_view text) {
      if (!text.empty()) report.append(report.empty() ? "" : "\n").append(text);
    }});
  }
  return report;
}

void ForEachChange(HistoryFolder& folder, const HistoryRun& run, const RecordKinds& kinds,
                   const std::function<void(const RecordChange&)>& each) {
  for (const HistoryName& part : run.parts) {
    ForEachChange(*folder.Open(part, FileAccess::kReadOnly), kinds, each);
  }
}

void MarkUndone(HistoryFolder& folder, const HistoryRun& run) {
  for (const HistoryName& part : run.parts) {
    folder.Open(part, FileAccess::kAlone)->Put(folder.gate(), HistoryMark::kUndone);
  }
}

void ForgetRun(HistoryFolder& folder, const KeptRuns& list, const HistoryRun& run) {
  for (const HistoryRun& undone : list.runs) {
    const bool stays_undone = run.IsUndo() && undone.run == run.title.undoes &&
                              undone.state == RunState::kUndone && run.state == RunState::kDone;
    if (stays_undone) MarkUndone(folder, undone);
  }
  // Removes the last part first, so that after an error the remaining parts still begin with the
  // first one.
  for (auto part = run.parts.rbegin(); part != run.parts.rend(); ++part) folder.Forget(*part);
}

void ForgetAllRuns(HistoryFolder& folder) {
  const std::vector<HistoryName> names = folder.List();
  for (auto name = names.rbegin(); name != names.rend(); ++name) folder.Forget(*name);
}

}  // namespace golf
