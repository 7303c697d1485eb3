#include <algorithm>
#include <iostream>
#include <iterator>

#include "cli/commands.h"
#include "cli/history_command.h"
#include "cli/json_text.h"
#include "cli/problems.h"
#include "cli/progress_bar.h"
#include "core/text.h"
#include "outlets/export/export_install.h"
#include "outlets/export/export_target.h"

namespace golf {
namespace {

constexpr std::string_view kFormats[] = {"sqlite", "csv", "jsonl"};

ExportFormat FormatOf(const ExportArguments& request, const NewTarget& target) {
  const auto format = std::find(std::begin(kFormats), std::end(kFormats), request.format);
  return format == std::end(kFormats) ? FormatOfTarget(target)
                                      : static_cast<ExportFormat>(format - std::begin(kFormats));
}

void WriteSummary(const Options& options, const ExportArguments& request, ExportFormat format,
                  const ExportSummary& summary) {
  if (options.json) {
    Json tables = Json::object();
    for (const auto& [table, rows] : summary.rows) tables[std::string(table)] = rows;
    return WriteJsonLine({{"event", "result"},
                          {"export", request.to},
                          {"format", kFormats[static_cast<std::size_t>(format)]},
                          {"tables", tables}});
  }
  std::cout << "The golf data was exported to " << request.to << ".\n";
  for (const auto& [table, rows] : summary.rows) {
    if (rows > 0) std::cout << FitText(std::to_string(rows), 12) << table << '\n';
  }
}

}  // namespace

std::vector<std::string> ExportFormats() { return {std::begin(kFormats), std::end(kFormats)}; }

ExitCode RunExport(const Options& options, const ExportArguments& request) {
  const auto application = StartApplication(options);
  SharedState& state = application->state();
  state.files.gate().RefuseChanges();
  NoteUnfinished(state);
  NewTarget target(request.to);
  const ExportFormat format = FormatOf(request, target);
  const std::string refusal =
      RefusalOfTarget(target, format, request.replace, "With --replace, the export replaces it.");
  if (!refusal.empty()) throw Refusal(refusal);
  ProgressBar bar(!options.quiet && !options.json);
  const auto stops = state.files.platform().WatchStops();
  const auto report = [&](const Progress& progress) {
    bar.Show(progress);
    if (stops != nullptr && stops->Signal() != 0) throw Stopped(stops->Signal());
  };
  const auto note = [&](const std::string& text) {
    bar.Clear();
    NoteProblem(text);
  };
  const ExportSummary summary =
      ExportTo(target, {state, format, request.with_deleted, request.bom, report, note});
  bar.Clear();
  WriteSummary(options, request, format, summary);
  NoteFaultCount(summary.faults.size());
  return ExitCodeOfFaults(summary.faults);
}

}  // namespace golf
