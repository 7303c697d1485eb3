#pragma once

#include <string>

#include "core/shared_state.h"
#include "forms/screen_host.h"

namespace golf {

// Opens the layout builder for the layout with this name in Quenby's folder, or for a new one if
// `name` is empty.
void OpenTeamLayoutBuilder(SharedState& state, ScreenHost& host, const std::string& name);

// Lists the team report layouts in Quenby's folder. The operator edits, duplicates or deletes one
// of them, or starts a new one.
class TeamLayouts : public Screen {
 public:
  static constexpr const char* kName = "TeamLayouts";

  explicit TeamLayouts(const ScreenContext& context);

  void OnLoad() override { LoadList(""); }
  Button* LeaveButton() override { return &ExitButton; }

  Label ListLabel{"ListLabel", "Team report layouts"};
  ListBox LayoutList{"LayoutList"};
  Button EditButton{"EditButton", "&Edit..."};
  Button NewButton{"NewButton", "&New..."};
  Button ExitButton{"ExitButton", "Close"};
  Button DuplicateButton{"DuplicateButton", "D&uplicate..."};
  Button DeleteButton{"DeleteButton", "&Delete..."};

 private:
  // Lists the layouts and selects the one with this name, or else the first one.
  void LoadList(const std::string& chosen);
  std::string UnusedName(const std::string& name) const;
  void Duplicate();
  void Delete();
  void Build(const std::string& name);
};

}  // namespace golf
