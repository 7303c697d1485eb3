#pragma once

#include <string>

#include "core/shared_state.h"
#include "forms/screen_host.h"

namespace golf {

// Opens the builder for a layout in Quenby's folder: for a new one, or for the one with this name.
void OpenTeamLayoutBuilder(SharedState& state, ScreenHost& host, const std::string& name);

// The screen on which the operator chooses a team report layout of the Quenby folder to build on.
class TeamLayouts : public Screen {
 public:
  static constexpr const char* kName = "TeamLayouts";

  explicit TeamLayouts(const ScreenContext& context);

  void OnLoad() override { LoadList(); }
  Button* LeaveButton() override { return &ExitButton; }

  Label ListLabel{"ListLabel", "Team report layouts"};
  ListBox LayoutList{"LayoutList"};
  Button EditButton{"EditButton", "&Edit..."};
  Button NewButton{"NewButton", "&New..."};
  Button ExitButton{"ExitButton", "Close"};

 private:
  void LoadList();
  void Build(const std::string& name);
};

}  // namespace golf
