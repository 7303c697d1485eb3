#include "screens/outlets/export_data.h"

#include <algorithm>

#include "core/code_page.h"
#include "history/transactions.h"
#include "outlets/export/export_target.h"

namespace golf {
namespace {

// Describes a format. These are in the order of ExportFormat.
struct Format {
  const char* text;
  const char* target;  // the proposed name
};
constexpr Format kFormats[] = {{"SQLite database", "golf.sqlite"},
                               {"CSV files in a folder", "golf-csv"},
                               {"JSON Lines files in a folder", "golf.jsonl"}};

// True if a path begins at a root or at a drive.
bool IsWholePath(const std::string& path) {
  return path.find_first_of("/\\") == 0 || path.find(':') == 1;
}

// Returns the folder that contains the folder of the install. Both end in a separator.
std::string FolderBeside(const SharedState& state) {
  const std::string& install = state.ProgramPath;
  if (install.size() < 2) return install;
  return install.substr(0, install.find_last_of("/\\", install.size() - 2) + 1);
}

}  // namespace

ExportData::ExportData(const ScreenContext& context)
    : Screen(kName, context), TableList("TableList", kRowsColumn), run(context, ExitButton) {
  SetCaption("Export");
  Add({&FormatLabel, &FormatList, &TargetLabel, &TargetText, &ChooseButton, &DeletedCheck,
       &ReplaceCheck, &MessageLabel, &ExportButton, &run.Working, &run.CancelButton, &SummaryLabel,
       &TableLabel, &TableList, &NotesLabel, &NotesText, &ExitButton});
  for (const Format& format : kFormats) FormatList.AddItem(format.text);
  FormatList.Select(0);
  TableList.MakeList({"Table", "Rows"});
  MessageLabel.SetVisible(false);
  NotesText.SetReadOnly(true);
  ExportButton.SetDefault(true);
  FormatList.on_click = [this] { ChooseFormat(); };
  ChooseButton.on_click = [this] { ChooseTarget(); };
  ExportButton.on_click = [this] { Export(); };
  ExitButton.on_click = [this] { Close(); };
  SummaryLabel.SetCaption("The export reads all files of the three programs. It changes none.");
}

void ExportData::OnLoad() {
  folder_ = host().DocumentsFolder();
  if (folder_.empty()) folder_ = FolderBeside(state());
  ChooseFormat();
}

void ExportData::OnActivate() {
  if (!unchanged_) unchanged_.emplace(state().files.gate());
}

ExportFormat ExportData::ChosenFormat() const {
  return static_cast<ExportFormat>(std::max(FormatList.index(), 0));
}

// Proposes a target of the chosen format, unless the operator has entered another one.
void ExportData::ChooseFormat() {
  if (TargetText.text() != proposed_) return;
  proposed_ = folder_ + kFormats[static_cast<std::size_t>(ChosenFormat())].target;
  TargetText.SetText(proposed_);
}

void ExportData::ChooseTarget() {
  const std::string path = host().AskForPath("Target of the export", TargetText.text());
  if (!path.empty()) TargetText.SetText(path);
}

// Returns the path of the target in UTF-8. A relative path is relative to the proposed folder.
std::string ExportData::TargetPath() const {
  const std::string path = Utf8FromText(TargetText.text());
  return path.empty() || IsWholePath(path) ? path : Utf8FromText(folder_) + path;
}

void ExportData::Export() {
  TableList.SetRows(0);
  NotesText.SetText("");
  SummaryLabel.SetCaption("");
  NewTarget target(TargetPath());
  const std::string refusal = RefusalOfTarget(target, ChosenFormat(), ReplaceCheck.value(),
                                              "Tick \"Replace\" to replace it.");
  MessageLabel.SetVisible(!refusal.empty());
  MessageLabel.SetCaption(TextFromUtf8(refusal));
  if (!refusal.empty()) return;
  std::string notes;
  if (state().transactions->IsUnfinished()) notes = "A run is unfinished.\r\n";
  ExportSummary summary;
  const bool is_whole = run.Run([&](const ReportProgress& report) {
    summary = ExportTo(target, {state(), ChosenFormat(), DeletedCheck.value(), false, report,
                                [&](const std::string& text) { notes += text + "\r\n"; }});
  });
  if (!is_whole) {
    SummaryLabel.SetCaption("The export was cancelled. Nothing was written.");
    return;
  }
  NotesText.SetText(notes);
  ShowSummary(summary);
  SummaryLabel.SetCaption("The golf data was exported to " + TextFromUtf8(target.path()) + ".");
  for (const NumberedError& fault : summary.faults) host().NoteFault(fault);
}

// Lists the tables that have rows.
void ExportData::ShowSummary(const ExportSummary& summary) {
  TableList.SetRepainting(false);
  int row = 0;
  for (const auto& [table, rows] : summary.rows) {
    if (rows == 0) continue;
    TableList.SetRows(++row);
    TableList.SetText(kTableColumn, row, std::string(table));
    TableList.SetText(kRowsColumn, row, std::to_string(rows));
  }
  TableList.SetRepainting(true);
}

void ExportData::OnUnload() { unchanged_.reset(); }

void ExportData::Close() { host().Unload(*this); }

}  // namespace golf
