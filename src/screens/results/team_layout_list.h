#pragma once

#include <string>

#include "core/shared_state.h"
#include "forms/screen_host.h"

namespace golf {

// Opens the builder over the layouts in Quenby's folder: a new one, or the one of this name.
void OpenTeamLayoutBuilder(SharedState& state, ScreenHost& host, const std::string& name);

// The team report layouts of the Quenby folder, from which the operator chooses one to build on.
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
