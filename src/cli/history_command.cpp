#include "cli/history_command.h"

#include <algorithm>
#include <iostream>

#include "cli/change_text.h"
#include "cli/plain_text.h"
#include "cli/problems.h"
#include "core/left_out.h"
#include "core/number_text.h"
#include "outlets/change_summary.h"
#include "outlets/record_kinds.h"

namespace golf {
namespace {

void WriteRuns(const KeptRuns& list, bool json) {
  std::vector<std::vector<std::string>> rows;
  for (const HistoryRun& run : list.runs) {
    if (json) {
      WriteJsonLine({{"number", run.number},
                     {"file", run.run},
                     {"moment", MomentText(run.title.moment)},
                     {"command", JsonText(run.title.command)},
                     {"about", JsonText(run.title.about)},
                     {"changes", run.changes},
                     {"state", NameOf(run.state)}});
    }
    rows.push_back({std::to_string(run.number), MomentText(run.title.moment),
                    PlainCell(run.title.command), PlainCell(run.title.about),
                    std::to_string(run.changes), std::string(NameOf(run.state))});
  }
  if (json) return;
  if (rows.empty()) {
    std::cout << "No run is kept.\n";
  } else {
    WriteTable({"No.", "Moment", "Command", "About", "Changes", "State"}, rows);
  }
}

void WriteReport(const HistoryRun& run, const std::string& report, bool json) {
  if (json) {
    if (!report.empty()) WriteJsonLine({{"event", "report"}, {"text", JsonText(report)}});
    return;
  }
  std::cout << "Run " << run.number << ", " << MomentText(run.title.moment) << ", "
            << NameOf(run.state) << ": " << PlainCell(run.title.command) << ' '
            << PlainCell(run.title.about) << "\n\n";
  if (!report.empty()) std::cout << PlainText(report) << "\n\n";
}

void RefuseUnfinished(const std::string& which) {
  throw Refusal(which +
                " is unfinished. Finish it, put it back or leave it as it is first: "
                "golf-transfer-cli recover --finish, --put-back or --leave.");
}

}  // namespace

void NoteUnfinished(SharedState& state) {
  if (!state.transactions->IsUnfinished()) return;
  NoteProblem(
      "A run is unfinished. The next run finishes it, or golf-transfer-cli recover says what "
      "becomes of it.");
}

KeptRuns ListKeptRuns(SharedState& state) {
  KeptRuns list = ListRuns(state.transactions->history());
  for (const std::string& text : list.damaged) NoteProblem(text);
  return list;
}

const HistoryRun& RunOfNumber(const KeptRuns& list, std::int64_t number) {
  const auto found = std::find_if(list.runs.begin(), list.runs.end(),
                                  [&](const HistoryRun& run) { return run.number == number; });
  if (found != list.runs.end()) return *found;
  throw Refusal("There is no run " + std::to_string(number) + "; the history keeps " +
                std::to_string(list.runs.size()) + ".");
}

std::string MomentText(DateValue moment) {
  return FormatPicture(CivilFromDate(moment), "yyyy'-'MM'-'dd HH':'mm':'ss");
}

std::int64_t WriteChangeCounts(const RecordKinds& kinds, bool json, const EachChange& for_each) {
  ChangeSummary summary(kinds);
  for_each([&](const RecordChange& change) {
    summary.Add(change);
    if (json) WriteJsonLine(ChangeJson(change));
  });
  if (!json) std::cout << summary.Text() << '\n';
  return summary.Count();
}

ExitCode RunHistory(const Options& options) {
  const auto application = StartApplication(options);
  NoteUnfinished(application->state());
  WriteRuns(ListKeptRuns(application->state()), options.json);
  return ExitCode::kDone;
}

ExitCode RunHistoryShow(const Options& options, std::int32_t number) {
  const auto application = StartApplication(options);
  SharedState& state = application->state();
  NoteUnfinished(state);
  const KeptRuns list = ListKeptRuns(state);
  const HistoryRun& run = RunOfNumber(list, number);
  HistoryFolder& folder = state.transactions->history();
  std::string report = ReportOf(folder, run);
  const std::string left_out = options.json ? std::string() : LeftOut::TakeSections(report);
  WriteReport(run, report, options.json);
  const RecordKinds kinds = MakeRecordKinds(state);
  const EachChange each_change = [&](const auto& each) { ForEachChange(folder, run, kinds, each); };
  WriteChangeCounts(kinds, options.json, each_change);
  if (!options.json) WriteChanges(state, kinds, each_change);
  if (!left_out.empty()) std::cout << '\n' << PlainText(left_out) << '\n';
  return ExitCode::kDone;
}

ExitCode RunHistoryForget(const Options& options, const std::string& which) {
  const auto application = StartApplication(options);
  SharedState& state = application->state();
  const auto lock = state.files.platform().LockRun(state.ProgramPath);
  HistoryFolder& folder = state.transactions->history();
  const KeptRuns list = ListKeptRuns(state);
  std::size_t forgotten = 1;
  if (which == "all") {
    if (state.transactions->IsUnfinished()) RefuseUnfinished("A run");
    forgotten = list.runs.size();
    ForgetAllRuns(folder);
  } else {
    const HistoryRun& run = RunOfNumber(list, ReadWholeNumber(which).value_or(0));
    if (run.state == RunState::kInterrupted) RefuseUnfinished("Run " + which);
    ForgetRun(folder, list, run);
  }
  if (options.json) {
    WriteJsonLine({{"event", "result"}, {"forgotten", forgotten}});
  } else {
    std::cout << forgotten << (forgotten == 1 ? " run" : " runs") << " forgotten.\n";
  }
  return ExitCode::kDone;
}

}  // namespace golf
