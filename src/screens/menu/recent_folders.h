#pragma once

#include <string>
#include <vector>

#include "forms/screen_host.h"
#include "forms/user_profile.h"

namespace golf {

// These functions keep the last five folders that were opened, the newest first. Paths are in
// UTF-8.
// `open` is the folder that is open; the list does not contain it.
std::vector<std::string> ListRecentFolders(const UserProfile& user, const std::string& open);
void NoteRecentFolder(UserProfile& user, const std::string& folder);
void ForgetRecentFolder(UserProfile& user, const std::string& folder);

// Lists the folders that were opened before. The operator chooses one of them or removes it from
// the list.
class RecentFolders : public Screen {
 public:
  static constexpr const char* kName = "RecentFolders";

  explicit RecentFolders(const ScreenContext& context);

  void OnLoad() override { FillList(); }
  Button* LeaveButton() override { return &CancelButton; }

  // Returns the chosen folder in UTF-8, or an empty text if the operator has not chosen one.
  const std::string& chosen() const { return chosen_; }

  Label ListLabel{"ListLabel", "&Folders opened before"};
  ListBox FolderList{"FolderList"};
  Button OpenButton{"OpenButton", "&Open"};
  Button RemoveButton{"RemoveButton", "&Remove from list"};
  Button CancelButton{"CancelButton", "Cancel"};

 private:
  void FillList();
  std::string Selected() const;
  void Choose();
  void Remove();

  std::vector<std::string> folders_;  // of the items
  std::string chosen_;
};

}  // namespace golf
