#pragma once

#include <map>
#include <string>

namespace golf {

// Stores what the program remembers of its user outside all installs. This class keeps the settings
// in memory. All texts are UTF-8.
class UserProfile {
 public:
  virtual ~UserProfile() = default;

  // Returns an empty text for a setting that is not stored.
  virtual std::string Setting(const std::string& name) const {
    const auto setting = settings_.find(name);
    return setting == settings_.end() ? std::string() : setting->second;
  }
  // Stores a setting. A setting that cannot be stored is lost when the program ends.
  virtual void KeepSetting(const std::string& name, const std::string& text) {
    settings_[name] = text;
  }

  // Returns the folder that contains the settings, or an empty text if they are in memory only.
  virtual std::string SettingsFolder() const { return {}; }

  // Returns the folder for the program's own files of this user, which ends in a separator. Creates
  // it if it does not exist. Returns an empty text if that is not possible.
  virtual std::string DataFolder() const { return {}; }

  // Returns the path of the running program, or an empty text if no shortcut can be made.
  virtual std::string ProgramFile() const { return {}; }
  // Puts a shortcut on the user's desktop that starts the program with the install in a folder.
  // Replaces a shortcut of the same name. Returns its name, or an empty text if it failed.
  virtual std::string MakeShortcut(const std::string& folder) {
    (void)folder;
    return {};
  }

 private:
  std::map<std::string, std::string> settings_;
};

}  // namespace golf
