#pragma once

#include <wx/string.h>

#include "forms/user_profile.h"

namespace golf {

// Returns the path of a file in the user's settings folder, which may not exist yet.
wxString UserSettingsPath(const wxString& file);

// Stores the settings of the user in the file program.ini of his settings folder. A file that
// cannot be read or written disturbs nobody; the settings are then kept in memory only.
class DesktopProfile : public UserProfile {
 public:
  std::string Setting(const std::string& name) const override;
  void KeepSetting(const std::string& name, const std::string& text) override;
  std::string SettingsFolder() const override;
  std::string DataFolder() const override;
  std::string ProgramFile() const override;
  std::string MakeShortcut(const std::string& folder) override;
};

}  // namespace golf
