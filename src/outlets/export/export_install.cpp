#include "outlets/export/export_install.h"

#include "outlets/export/export_results.h"
#include "outlets/export/export_tables.h"
#include "outlets/export/exporters.h"
#include "outlets/export/result_tables.h"

namespace golf {

const std::vector<ExportTable>& ExportTables() {
  static const std::vector<ExportTable> kTables = [] {
    std::vector<ExportTable> tables;
    for (const RecordTable& table : InstallTables()) tables.push_back(table.Describe());
    for (const ExportTable& table : ResultTables()) tables.push_back(table);
    return tables;
  }();
  return kTables;
}

ExportSummary ExportInstall(const ExportChannels& channels) {
  ExportSummary summary;
  channels.sink.Create(ExportTables());
  ExportRun run(channels);
  const ExportedLibraries libraries = ExportCourses(run);
  ExportKelvane(run, libraries.kelvane);
  ExportQuenby(run, libraries.quenby, [&](const ExportedTournament& tournament) {
    ExportResults(run, tournament, summary.faults);
  });
  ExportZandel(run, libraries.zandel);
  channels.sink.Finish();
  run.Report();  // a request to stop may have come in the meantime
  for (std::size_t i = 0; i < ExportTables().size(); ++i) {
    summary.rows.emplace_back(ExportTables()[i].name, run.rows()[i]);
  }
  return summary;
}

ExportSummary ExportTo(NewTarget& target, const ExportRequest& request) {
  const bool is_folder = request.format != ExportFormat::kSqlite;
  const auto sink =
      MakeExportSink(request.format, target.Prepare(is_folder), request.byte_order_mark);
  ExportSummary summary =
      ExportInstall({request.state, *sink, request.with_deleted, request.report, request.note});
  target.Publish();
  return summary;
}

}  // namespace golf
