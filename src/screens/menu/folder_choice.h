#pragma once

#include <functional>
#include <string>

#include "core/shared_state.h"
#include "forms/screen_host.h"

namespace golf {

// Creates an install with the data of a made-up club in a new folder. The path is in UTF-8. Raises
// the errors of NewTarget.
using MakeDemonstration = std::function<void(const std::string& utf8_folder)>;

// Is the part of the menu that shows the folder of the install and opens another one. If the folder
// contains no golf data, a notice says so and offers the demonstration.
class FolderChoice {
 public:
  FolderChoice(const ScreenContext& context, MakeDemonstration make_demonstration);

  // Shows the folder and the notice. Notes a folder with golf data as a recent folder.
  void Refresh();
  // True if the folder contains golf data that can be read.
  bool HasData();

  // Opens the install in another folder. Shows a message instead if the folder does not exist,
  // cannot be read or contains no golf data. A folder such as kvdata means the folder above it.
  void Open(const std::string& utf8_folder);

  Frame NoticeFrame{"NoticeFrame"};
  Label NoticeLabel{"NoticeLabel", "No golf data here"};
  Label ReasonLabel{"ReasonLabel"};
  Button ChooseFolderButton{"ChooseFolderButton", "Choose &folder..."};
  Button DemonstrationButton{"DemonstrationButton", "&Try the demonstration"};
  Label FolderLabel{"FolderLabel", "Folder:"};
  Label FolderText{"FolderText"};
  Button ChangeButton{"ChangeButton", "Chan&ge..."};
  Button RecentButton{"RecentButton", "&Recent..."};
  Button ShortcutButton{"ShortcutButton", "Short&cut..."};

 private:
  void AskForFolder();
  void ShowRecent();
  void OpenDemonstration();
  bool OffersShortcut(const std::string& utf8_folder);
  void AskForShortcut();
  void RefuseDemonstration(const std::string& why);

  ScreenContext context_;
  MakeDemonstration make_demonstration_;
};

}  // namespace golf
