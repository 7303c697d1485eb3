#pragma once

#include <cstdint>
#include <string>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "history/run_list.h"

namespace golf {

// Lists the runs of the history, newest first, with the report of the selected one. The operator
// can look at the changes of a run, undo it, or remove it from the history.
class TransferHistory : public Screen {
 public:
  static constexpr const char* kName = "TransferHistory";

  explicit TransferHistory(const ScreenContext& context);

  void OnLoad() override { FillList(); }
  Button* LeaveButton() override { return &ExitButton; }

  Label ListLabel{"ListLabel", "&Transfers"};
  Grid RunList;
  Label ReportLabel{"ReportLabel", "&Report"};
  TextBox ReportText{"ReportText"};
  Button ChangesButton{"ChangesButton", "&What changed..."};
  Button UndoButton{"UndoButton", "&Undo..."};
  Button CopyButton{"CopyButton", "C&opy"};
  Button SaveButton{"SaveButton", "Save &As..."};
  Button ForgetButton{"ForgetButton", "&Forget..."};
  Button ExitButton{"ExitButton", "Close"};

  // These are the columns of the list.
  static constexpr int kWhenColumn = 1;
  static constexpr int kTransferColumn = 2;
  static constexpr int kAboutColumn = 3;
  static constexpr int kChangesColumn = 4;
  static constexpr int kStateColumn = 5;

 private:
  void FillList();
  void ShowRun();
  const HistoryRun& Selected() const;
  void ShowChanges();
  void Undo();
  void Save();
  void Forget();

  KeptRuns list_;
};

}  // namespace golf
