#include "transfers/transfer_run.h"

#include "core/number_text.h"
#include "core/resume_next.h"

namespace golf {
namespace {

class InputHeldOff {
 public:
  explicit InputHeldOff(ScreenHost& host) : host_(host) { host_.BeginRun(); }
  InputHeldOff(const InputHeldOff&) = delete;
  InputHeldOff& operator=(const InputHeldOff&) = delete;
  ~InputHeldOff() { host_.EndRun(); }

 private:
  ScreenHost& host_;
};

}  // namespace

void RunTransfer(Screen& screen, SharedState& state, ScreenHost& host,
                 const std::function<void()>& run) {
  const auto lock = state.files.platform().LockRun(state.ProgramPath);
  const InputHeldOff held_off(host);
  try {
    run();
  } catch (const NumberedError&) {
    // The error that ended the run is the one to tell, whatever closing brings.
    const ResumeNext anyway(nullptr);
    anyway([&] { state.InitSharedObjects(); });
    anyway([&] { screen.OpenAgain(); });
    throw;
  }
}

CopyingLook::CopyingLook(ScreenHost& host, std::initializer_list<Label*> progress, Button* hidden)
    : host_(host), progress_(progress), hidden_(hidden) {
  if (hidden_ != nullptr) hidden_->SetVisible(false);
  host_.SetPointer(Pointer::kBusy);
}

CopyingLook::~CopyingLook() {
  for (Label* label : progress_) label->SetCaption("");
  if (hidden_ != nullptr) hidden_->SetVisible(true);
  host_.SetPointer(Pointer::kNormal);
}

void CountUp(std::int16_t& counter) { counter = CheckedInt16(counter + 1); }

NumberedError LeftOut(const std::string& who, const NumberedError& why) {
  return {static_cast<ErrorNumber>(why.number()), who + " was left out: " + why.description()};
}

}  // namespace golf
