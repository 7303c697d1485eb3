#pragma once

#include <optional>
#include <vector>

#include "core/change_gate.h"
#include "forms/screen_host.h"
#include "outlets/checkup/finding.h"
#include "screens/outlets/cancellable_run.h"

namespace golf {

// Checks the data of all three programs and lists the findings by kind. The operator can show the
// findings of one kind, copy or save the list, and open the course or roster of a finding. Nothing
// of the install is changed, except that the list can be saved as a file.
class CheckData : public Screen {
 public:
  static constexpr const char* kName = "CheckData";

  explicit CheckData(const ScreenContext& context);

  void OnActivate() override;
  void OnUnload() override;
  Button* LeaveButton() override { return &ExitButton; }
  Button* RunCancelButton() override { return &run.CancelButton; }

  Button CheckButton{"CheckButton", "Chec&k now"};
  Label SummaryLabel{"SummaryLabel"};
  Label KindLabel{"KindLabel", "S&how"};
  ComboBox KindList{"KindList"};
  Label FindingLabel{"FindingLabel", "&Findings"};
  Grid FindingList;
  Label DetailLabel{"DetailLabel", "What it &means, and what to do"};
  TextBox DetailText{"DetailText"};
  Button OpenButton{"OpenButton", "&Open..."};
  Button CopyButton{"CopyButton", "&Copy"};
  Button SaveButton{"SaveButton", "Save as CS&V..."};
  Button ExitButton{"ExitButton", "Close"};
  CancellableRun run;

  // These are the columns of the list.
  static constexpr int kSeverityColumn = 1;
  static constexpr int kKindColumn = 2;
  static constexpr int kFileColumn = 3;
  static constexpr int kRecordColumn = 4;
  static constexpr int kTitleColumn = 5;
  static constexpr int kTextColumn = 6;

 private:
  void Check();
  void FillKinds();
  void FillList();
  void ShowFinding();
  const Finding* Selected() const;
  void Open();
  void Close();

  std::optional<RefusedChanges> unchanged_;
  std::vector<Finding> findings_;      // sorted by kind
  std::vector<FindingCode> kinds_;     // of the items of KindList after the first
  std::vector<const Finding*> shown_;  // in the order of the rows
  bool loading_ = false;
};

}  // namespace golf
