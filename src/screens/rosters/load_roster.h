#pragma once

#include <string>

#include "core/shared_state.h"
#include "forms/screen_host.h"

namespace golf {

// The screen on which the operator picks, makes or deletes a Kelvane roster. A pick sets
// KVRosterName of the shared state; without a pick it keeps its old value. With the tag "OPENONLY"
// the operator can only pick.
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
  // Empty if no row is active.
  std::string SelectedName() const;
  void Pick();
  void AskForNew();
  void ShowNewRosterFrame(bool shown);
  void MakeNew();
  void AskToDelete();
  void Delete(const std::string& name);
  bool OpensOnly() const { return tag() == "OPENONLY"; }
};

// Lets the operator pick a Kelvane roster and nothing more. Returns KVRosterName, which keeps its
// old value without a pick.
const std::string& AskForKelvaneRoster(SharedState& state, ScreenHost& host);

}  // namespace golf
