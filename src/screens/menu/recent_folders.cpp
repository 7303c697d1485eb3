#include "screens/menu/recent_folders.h"

#include <algorithm>

#include "core/code_page.h"
#include "core/shared_state.h"

namespace golf {
namespace {

constexpr std::size_t kMostFolders = 5;

std::string SettingOf(std::size_t place) { return "Folder" + std::to_string(place + 1); }

void Store(UserProfile& user, const std::vector<std::string>& folders) {
  for (std::size_t i = 0; i < kMostFolders; ++i) {
    const std::string folder = i < folders.size() ? folders[i] : "";
    if (user.Setting(SettingOf(i)) != folder) user.KeepSetting(SettingOf(i), folder);
  }
}

}  // namespace

std::vector<std::string> ListRecentFolders(const UserProfile& user, const std::string& open) {
  std::vector<std::string> folders;
  for (std::size_t i = 0; i < kMostFolders; ++i) {
    std::string folder = user.Setting(SettingOf(i));
    if (!folder.empty() && folder != open) folders.push_back(std::move(folder));
  }
  return folders;
}

void NoteRecentFolder(UserProfile& user, const std::string& folder) {
  std::vector<std::string> folders = ListRecentFolders(user, folder);
  folders.insert(folders.begin(), folder);
  Store(user, folders);
}

void ForgetRecentFolder(UserProfile& user, const std::string& folder) {
  Store(user, ListRecentFolders(user, folder));
}

RecentFolders::RecentFolders(const ScreenContext& context) : Screen(kName, context) {
  SetCaption("Recent folders");
  Add({&ListLabel, &FolderList, &OpenButton, &RemoveButton, &CancelButton});
  OpenButton.SetDefault(true);
  CancelButton.SetCancel(true);
  OpenButton.on_click = [this] { Choose(); };
  FolderList.on_double_click = OpenButton.on_click;
  RemoveButton.on_click = [this] { Remove(); };
  CancelButton.on_click = [this] { host().Unload(*this); };
}

// Lists the stored folders, except for the folder that is open.
void RecentFolders::FillList() {
  FolderList.Clear();
  folders_.clear();
  const UserProfile* const user = host().User();
  if (user != nullptr) {
    folders_ = ListRecentFolders(*user, state().files.platform().Utf8ProgramFolder());
  }
  for (const std::string& folder : folders_) FolderList.AddItem(TextFromUtf8(folder));
  if (!folders_.empty()) FolderList.Select(0);
  for (Button* button : {&OpenButton, &RemoveButton}) button->SetEnabled(!folders_.empty());
}

std::string RecentFolders::Selected() const {
  const int index = FolderList.index();
  return index < 0 ? "" : folders_[static_cast<std::size_t>(index)];
}

void RecentFolders::Choose() {
  chosen_ = Selected();
  if (!chosen_.empty()) host().Unload(*this);
}

void RecentFolders::Remove() {
  if (Selected().empty()) return;
  ForgetRecentFolder(*host().User(), Selected());
  FillList();
}

}  // namespace golf
