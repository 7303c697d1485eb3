#pragma once

#include <array>
#include <string>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "screens/menu/first_steps.h"
#include "screens/menu/folder_choice.h"
#include "screens/menu/second_copy.h"

namespace golf {

// Is the main screen. It opens the six transfers and starts the transfer program of earlier
// versions. Its button Close starts the sibling that started this program. It also shows the folder
// of the install and the first steps.
class TransferMenu : public Screen {
 public:
  static constexpr const char* kName = "TransferMenu";

  TransferMenu(const ScreenContext& context, MakeDemonstration make_demonstration);

  void OnLoad() override { OnActivate(); }  // so that the window opens with its right size
  void OnActivate() override;
  Button* LeaveButton() override { return &ExitButton; }

  Tab SSTab1{"SSTab1", {"&Transfer Utilitites"}};
  std::array<Label, 3> Label1{Label("Label1", "Kelvane Transfers "),
                              Label("Label1", "Tournament Transfer"),
                              Label("Label1", "League Transfers")};
  Button KVCoursestoQBButton{"KVCoursestoQBButton", "Transfer COURSES to QB"};
  Button KVtoQBButton{"KVtoQBButton", "Transfer GOLFERS to QB"};
  Button KVtoZDButton{"KVtoZDButton", "Transfer GOLFERS to ZD"};
  Button QBtoKVButton{"QBtoKVButton", "Transfer SCORES to KV "};
  Button ZDtoQBButton{"ZDtoQBButton", "Transfer GOLFERS to QB "};
  Button ZDtoKVButton{"ZDtoKVButton", "Transfer SCORES to KV"};
  Button PriorTransfer{"PriorTransfer", "Transfer between 'old' versions"};
  Button ExitButton{"ExitButton", "Close"};
  FolderChoice folder;
  FirstSteps steps;
  SecondCopy copy;

 private:
  void StartPriorTransfer();
  void Exit();
};

// Opens the screen of a transfer modally, like its button on the menu. Shows a message instead if
// the data folder of one of its two siblings does not exist. Any other screen is opened without
// this check. `tag` controls the behaviour of the screen; it is often empty.
void OpenTransfer(SharedState& state, ScreenHost& host, std::string_view screen_name,
                  std::string_view tag = {});

}  // namespace golf
