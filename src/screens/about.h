#pragma once

#include "forms/screen_host.h"

namespace golf {

// Shows the version and the copyright line of the program, the folders in which it reads and
// writes, and the licences of the libraries that are linked into it.
class About : public Screen {
 public:
  static constexpr const char* kName = "About";

  explicit About(const ScreenContext& context);

  void OnLoad() override;
  Button* LeaveButton() override { return &ExitButton; }

  Label VersionLabel{"VersionLabel"};
  Label CopyrightLabel{"CopyrightLabel"};
  Label PlacesLabel{"PlacesLabel", "&Where things are"};
  TextBox PlacesText{"PlacesText"};
  Label LibrariesLabel{"LibrariesLabel", "&Licences"};
  TextBox LibrariesText{"LibrariesText"};
  Button CopyButton{"CopyButton", "C&opy"};
  Button ExitButton{"ExitButton", "Close"};

 private:
  std::string Places() const;
};

}  // namespace golf
