#pragma once

#include <string>
#include <utility>
#include <vector>

#include "forms/user_profile.h"

namespace golf {

// A user whose data folder is given. It ends in a separator.
class TestProfile : public UserProfile {
 public:
  explicit TestProfile(std::string folder) : folder_(std::move(folder)) {}
  std::string DataFolder() const override { return folder_; }
  std::string ProgramFile() const override { return program; }
  std::string MakeShortcut(const std::string& folder) override {
    shortcuts.push_back(folder);
    return shortcut_name;
  }

  std::string program;
  std::string shortcut_name = "Golf";
  std::vector<std::string> shortcuts;  // the folders

 private:
  std::string folder_;
};

}  // namespace golf
