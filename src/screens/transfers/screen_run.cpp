#include "screens/transfers/screen_run.h"

#include "core/resume_next.h"
#include "screens/tip_box.h"

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
    // The operator is shown the error that ended the run, not an error of closing the files.
    const ResumeNext anyway(nullptr);
    anyway([&] { state.InitSharedObjects(); });
    anyway([&] { screen.OpenAgain(); });
    throw;
  }
}

ScreenRun::~ScreenRun() {
  if (!begun_) return;
  for (Label* label : {look_.working, look_.count}) {
    if (label != nullptr) label->SetCaption("");
  }
  if (look_.hidden != nullptr) look_.hidden->SetVisible(true);
  host_.SetPointer(Pointer::kNormal);
}

void ScreenRun::Begin() {
  begun_ = true;
  if (look_.hidden != nullptr) look_.hidden->SetVisible(false);
  if (look_.begin) look_.begin();
  host_.SetPointer(Pointer::kBusy);
}

void ScreenRun::Report(const Progress& progress) {
  if (look_.working != nullptr && !progress.doing.empty()) {
    look_.working->SetCaption(std::string(progress.doing));
  }
  if (look_.count != nullptr) look_.count->SetCaption(std::to_string(progress.done));
  const bool shown = look_.working != nullptr;
  host_.Report({progress.done, progress.total,
                shown ? std::string_view(look_.working->caption()) : std::string_view()});
}

// The pointer is normal after a fault, although the run goes on: operators are used to that.
void ScreenRun::NoteFault(const NumberedError& fault) {
  host_.SetPointer(Pointer::kNormal);
  host_.NoteFault(fault);
}

bool ScreenRun::AskAgain(const std::string& title, const std::string& text,
                         const std::string& log) {
  if (look_.log != nullptr) look_.log->SetText(log);
  TipBox& box = SharedTipBox(host_);
  box.SetMessageType(TipBox::kLastingQuestion);
  box.SetMessageTitle(title);
  box.SetMessageText(text);
  return box.ResultReturned() == "YES";
}

}  // namespace golf
