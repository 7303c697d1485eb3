#pragma once

#include <string>
#include <utility>

#include "forms/user_profile.h"

namespace golf {

// A user whose data folder is given. It ends in a separator.
class TestProfile : public UserProfile {
 public:
  explicit TestProfile(std::string folder) : folder_(std::move(folder)) {}
  std::string DataFolder() const override { return folder_; }

 private:
  std::string folder_;
};

}  // namespace golf
