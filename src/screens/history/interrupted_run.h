#pragma once

#include <string>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "history/transactions.h"

namespace golf {

// Finishes an interrupted run and tells the operator. If the operator must decide about it, opens
// the screen InterruptedRun. Does nothing if no run is interrupted.
void ResolveInterruptedRun(SharedState& state, ScreenHost& host);

// Asks the operator what to do with an interrupted run that has conflicts.
class InterruptedRun : public Screen {
 public:
  static constexpr const char* kName = "InterruptedRun";

  explicit InterruptedRun(const ScreenContext& context);

  void OnLoad() override;
  Button* LeaveButton() override { return &LaterButton; }

  Label TextLabel{"TextLabel"};
  Label ChoiceLabel{"ChoiceLabel"};
  Button FinishButton{"FinishButton", "&Finish it"};
  Button PutBackButton{"PutBackButton", "&Put it back"};
  Button LeaveAsIsButton{"LeaveAsIsButton", "&Leave it as it is"};
  Button LaterButton{"LaterButton", "&Decide later"};

 private:
  Recovery Recover(RecoveryChoice choice);
  void Decide(RecoveryChoice choice);
};

}  // namespace golf
