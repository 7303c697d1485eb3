#pragma once

#include <array>
#include <string>

#include "core/shared_state.h"
#include "forms/screen_host.h"

namespace golf {

// The first and the last screen: six transfers, the way to the program of prior versions, and
// Close, which starts the sibling that has called.
class TransferMenu : public Screen {
 public:
  static constexpr const char* kName = "TransferMenu";

  explicit TransferMenu(const ScreenContext& context);

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

 private:
  void StartPriorTransfer();
  void Exit();
};

// Opens a transfer, modally, by its screen's name, as its button on the menu does: only if the
// folders of both siblings are there. Each one that is missing is told in a box of its own. Any
// other name is just loaded and shown. `tag` tells the screen how to behave, often nothing.
void OpenTransfer(SharedState& state, ScreenHost& host, std::string_view screen_name,
                  std::string_view tag = {});

}  // namespace golf
