#include "screens/history/interrupted_run.h"

#include "screens/file_changes.h"

namespace golf {

void ResolveInterruptedRun(SharedState& state, ScreenHost& host) {
  if (!state.transactions->IsUnfinished()) return;
  RecoverInterruptedRun(state, host);
  if (state.transactions->IsUnfinished()) host.ShowModal(host.Load(InterruptedRun::kName));
}

InterruptedRun::InterruptedRun(const ScreenContext& context) : Screen(kName, context) {
  SetCaption("Interrupted transfer");
  Add({&TextLabel, &ChoiceLabel, &FinishButton, &PutBackButton, &LeaveAsIsButton, &LaterButton});
  ChoiceLabel.SetCaption(
      "\"Finish it\" writes the rest of the transfer.\n"
      "\"Put it back\" restores the data of before the transfer.\n"
      "\"Leave it as it is\" changes nothing and ends the matter.\n"
      "What the other program has changed stays in each case. Nothing can be transferred before "
      "you "
      "decide.");
  LaterButton.SetCancel(true);
  FinishButton.on_click = [this] { Decide(RecoveryChoice::kFinish); };
  PutBackButton.on_click = [this] { Decide(RecoveryChoice::kPutBack); };
  LeaveAsIsButton.on_click = [this] { Decide(RecoveryChoice::kLeave); };
  LaterButton.on_click = [this] { host().Unload(*this); };
}

void InterruptedRun::OnLoad() {
  const Recovery recovery = Recover(RecoveryChoice::kByItself);
  TextLabel.SetCaption(recovery.stuck ? recovery.stuck_text : "No transfer is interrupted.");
  for (Button* button : {&FinishButton, &PutBackButton, &LeaveAsIsButton}) {
    button->SetEnabled(recovery.stuck);
  }
}

Recovery InterruptedRun::Recover(RecoveryChoice choice) {
  const auto lock = state().files.platform().LockRun(state().ProgramPath);
  Recovery recovery = state().transactions->Recover(choice);
  for (const std::string& text : recovery.finished) host().Notify(text);
  state().files.Synchronize();
  return recovery;
}

void InterruptedRun::Decide(RecoveryChoice choice) {
  const Recovery recovery = Recover(choice);
  if (!recovery.stuck) return host().Unload(*this);
  TextLabel.SetCaption(recovery.stuck_text);
}

}  // namespace golf
