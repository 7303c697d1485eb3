#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "screens/rosters/roster_use.h"

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

  // Suggests the row of this roster when the screen opens.
  void SuggestRoster(std::string name) { suggested_ = std::move(name); }
  // Restricts what the operator can do until the screen is unloaded. It must be called before the
  // screen is shown.
  void SetUse(RosterUse use);
  // True after the operator has picked a roster.
  bool picked() const { return picked_; }

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
  // Returns the row of a roster, or 0 if it is not in the list.
  int RowOf(std::string_view name) const;
  // Returns the name in the active row, or an empty text if no row is active.
  std::string SelectedName() const;
  void Pick();
  void AskForNew();
  void ShowNewRosterFrame(bool shown);
  void ShowButtons(bool shown);
  void MakeNew();
  void AskToDelete();
  void Delete(const std::string& name);
  bool CanPick() const { return use_ == RosterUse::kPick; }
  bool CanChange() const { return tag() != "OPENONLY" && use_ != RosterUse::kView; }

  std::string suggested_;
  bool picked_ = false;
  RosterUse use_ = RosterUse::kPick;
};

// Returns a text for the operator about a roster that another program has open.
std::string HeldRosterText(const std::string& roster);
// Returns a text for the operator after `error` has prevented the opening of a roster.
std::string HeldRosterText(const std::string& roster, const NumberedError& error);

// Lets the operator pick a Kelvane roster, but not create or delete one. Returns KVRosterName,
// which does not change if the operator picks none. `before` is the roster picked earlier; a window
// returns it after Cancel.
std::string AskForKelvaneRoster(SharedState& state, ScreenHost& host, const std::string& before);

}  // namespace golf
