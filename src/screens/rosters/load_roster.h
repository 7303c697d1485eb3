#pragma once

#include <string>

#include "core/shared_state.h"
#include "forms/screen_host.h"

namespace golf {

// Lists Kelvane's rosters. The operator picks, creates or deletes one. A pick sets KVRosterName of
// the shared state. With the tag "OPENONLY" the operator can only pick.
class LoadRoster : public Screen {
 public:
  static constexpr const char* kName = "LoadRoster";

  explicit LoadRoster(const ScreenContext& context);

  void OnLoad() override;
  void OnActivate() override;
  Button* LeaveButton() override { return &CancelButton; }
  Button* PanelLeaveButton() override;

  Label Label1{"Label1", "Rosters in:"};
  Label DataPathLabel{"DataPathLabel"};
  Grid grid1{"grid1", 2};
  Button LoadButton{"LoadButton", "&Load Roster"};
  Button NewButton{"NewButton", "&New Roster"};
  Button DeleteButton{"DeleteButton", "&Delete Roster"};
  Button RepairButton{"RepairButton", "&Repair Roster"};  // always hidden
  Button CancelButton{"CancelButton", "Cancel"};
  Frame NewRosterFrame{"NewRosterFrame"};
  Label InputTitle{"InputTitle", "Start a New Roster"};
  Label NameLabel{"Label", "Roster Name"};
  TextBox NewRosterName{"NewRosterName"};
  Button OK2Button{"OK2Button", "&OK"};
  Button Cancel2Button{"Cancel2Button", "&Cancel"};

 private:
  void FillList();
  // Returns the name in the active row, or an empty text if no row is active.
  std::string SelectedName() const;
  void Pick();
  void AskForNew();
  void ShowNewRosterFrame(bool shown);
  void MakeNew();
  void AskToDelete();
  void Delete(const std::string& name);
  bool OpensOnly() const { return tag() == "OPENONLY"; }
};

// Lets the operator pick a Kelvane roster, but not create or delete one. Returns KVRosterName,
// which does not change if the operator picks none.
const std::string& AskForKelvaneRoster(SharedState& state, ScreenHost& host);

}  // namespace golf
