#include "screens/outlets/cancellable_run.h"

#include <string>

#include "core/shared_state.h"
#include "history/stopped.h"

namespace golf {
namespace {

// Ends the work after the operator has cancelled it. It is not a NumberedError, so that the work
// does not continue after it.
struct Cancelled {};

}  // namespace

// Contains the state of the controls and of the host during a run.
class CancellableRun::Begun {
 public:
  explicit Begun(CancellableRun& run) : run_(run) {
    run_.is_cancelled_ = false;
    SetCancels(true);
    run_.context_.host.BeginRun();
  }
  Begun(const Begun&) = delete;
  Begun& operator=(const Begun&) = delete;
  ~Begun() {
    run_.Working.SetCaption("");
    SetCancels(false);
    run_.context_.host.EndRun();
  }

 private:
  // Escape presses the button that cancels the run, or the one that leaves the screen.
  void SetCancels(bool cancels) {
    run_.CancelButton.SetEnabled(cancels);
    run_.CancelButton.SetCancel(cancels);
    run_.leave_.SetCancel(!cancels);
  }

  CancellableRun& run_;
};

CancellableRun::CancellableRun(const ScreenContext& context, Button& leave)
    : context_(context), leave_(leave) {
  leave_.SetCancel(true);
  CancelButton.SetEnabled(false);
  CancelButton.on_click = [this] { is_cancelled_ = true; };
}

bool CancellableRun::Run(const std::function<void(const ReportProgress&)>& work) {
  const auto stops = context_.state.files.platform().WatchStops();
  const auto report = [&](const Progress& progress) {
    if (stops != nullptr && stops->Signal() != 0) throw Stopped(stops->Signal());
    Working.SetCaption("Reading " + std::string(progress.doing));
    context_.host.Report({progress.done, progress.total, Working.caption()});
    if (is_cancelled_) throw Cancelled();
  };
  const Begun begun(*this);
  try {
    work(report);
    return true;
  } catch (const Cancelled&) {
    return false;
  }
}

}  // namespace golf
