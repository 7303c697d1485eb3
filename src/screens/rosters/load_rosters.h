#pragma once

#include <array>
#include <cstdint>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "screens/rosters/roster_use.h"

namespace golf {

// Lists Quenby's rosters. The operator picks one and edits the list. The roster list of the shared
// Program object must be open. A pick sets ActiveRoster of that object, to -1 for all rosters. The
// screen hides when the operator leaves it. The caller may disable DeleteButton.
class LoadRosters : public Screen {
 public:
  static constexpr const char* kName = "LoadRosters";

  explicit LoadRosters(const ScreenContext& context);

  void OnActivate() override;
  Button* LeaveButton() override { return &CancelButton; }
  Button* PanelLeaveButton() override;

  // Suggests the row of this roster when the screen opens.
  void SuggestRoster(std::int32_t roster) { suggested_ = roster; }
  // Restricts what the operator can do until the screen is unloaded. It must be called before the
  // screen is shown.
  void SetUse(RosterUse use);
  bool CanChange() const { return use_ != RosterUse::kView; }
  // True after the operator has picked a roster.
  bool picked() const { return picked_; }

  Label DataPathLabel{"DataPathLabel"};
  Label FilterLabel{"FilterLabel", "Quenby rosters"};
  Grid grid1{"grid1", 5};
  Frame ButtonFrame{"ButtonFrame"};
  Button LoadButton{"LoadButton", "&Load Roster"};
  Button NewButton{"NewButton", "&New Roster"};
  Button EditButton{"EditButton", "&Edit Roster"};
  Button DeleteButton{"DeleteButton", "&Delete Roster"};
  Button RepairButton{"RepairButton", "&Repair Roster"};  // always hidden
  Button Help{"Help", "&Help"};
  Button CancelButton{"CancelButton", "Cancel"};
  Frame AddEditRosterFrame{"AddEditRosterFrame"};
  std::array<Label, 5> FieldName{Label("FieldName", "Name"), Label("FieldName", "Address"),
                                 Label("FieldName", "Address 2"), Label("FieldName", "Address 3"),
                                 Label("FieldName", "Phone")};
  std::array<TextBox, 5> Text1{TextBox("Text1"), TextBox("Text1"), TextBox("Text1"),
                               TextBox("Text1"), TextBox("Text1")};
  Button AddEditRosterOK{"AddEditRosterOK", "&OK"};
  Button AddRosterCancel{"AddRosterCancel", "Cancel"};
  Button EditRosterCancel{"EditRosterCancel", "Cancel"};

 private:
  void LoadList();
  // Suggests the row of the suggested roster, or row 1 if the list does not contain it.
  void Suggest();
  void ShowRowButtons();
  std::int32_t NumberInRow(int row) const;
  std::int32_t ChosenRoster() const;
  std::int32_t FreeRosterNumber();
  void Pick();
  void BeginNew();
  void BeginEdit();
  void EnterPanel(Button& cancel);
  void LeavePanel();
  void Store();
  void Save(std::int32_t roster);
  void CancelNew();
  void CancelEdit();
  void AskToDelete();
  void TakeGolfersOut(std::int32_t roster);

  std::int32_t suggested_ = 0;
  bool picked_ = false;
  RosterUse use_ = RosterUse::kPick;
};

}  // namespace golf
