#pragma once

#include <optional>
#include <string>

#include "core/change_gate.h"
#include "forms/screen_host.h"
#include "outlets/export/export_install.h"
#include "screens/outlets/cancellable_run.h"

namespace golf {

// Exports all data of the three programs and the results of the tournaments as tables. The operator
// chooses the format and the target, which is a new file or folder. MessageLabel shows why a target
// is refused. The screen changes no file of the install.
class ExportData : public Screen {
 public:
  static constexpr const char* kName = "ExportData";

  explicit ExportData(const ScreenContext& context);

  void OnLoad() override;
  void OnActivate() override;
  void OnUnload() override;
  Button* LeaveButton() override { return &ExitButton; }
  Button* RunCancelButton() override { return &run.CancelButton; }

  Label FormatLabel{"FormatLabel", "&Format"};
  ComboBox FormatList{"FormatList"};  // in the order of ExportFormat
  Label TargetLabel{"TargetLabel", "&Target"};
  TextBox TargetText{"TargetText"};
  Button ChooseButton{"ChooseButton", "C&hoose..."};
  CheckBox DeletedCheck{"DeletedCheck", "With &deleted records"};
  CheckBox ReplaceCheck{"ReplaceCheck", "&Replace an existing file or folder"};
  Label MessageLabel{"MessageLabel"};
  Button ExportButton{"ExportButton", "&Export now"};
  Label SummaryLabel{"SummaryLabel"};
  Label TableLabel{"TableLabel", "Ta&bles"};
  Grid TableList;
  Label NotesLabel{"NotesLabel", "&Left out"};
  TextBox NotesText{"NotesText"};
  Button ExitButton{"ExitButton", "Close"};
  CancellableRun run;

  // These are the columns of the list.
  static constexpr int kTableColumn = 1;
  static constexpr int kRowsColumn = 2;

 private:
  ExportFormat ChosenFormat() const;
  void ChooseFormat();
  void ChooseTarget();
  std::string TargetPath() const;
  void Export();
  void ShowSummary(const ExportSummary& summary);
  void Close();

  std::optional<RefusedChanges> unchanged_;
  std::string folder_;    // in which targets without a folder are created; ends in a separator
  std::string proposed_;  // the target that the screen has proposed last
};

}  // namespace golf
