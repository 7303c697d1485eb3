#define NOMINMAX
#include <windows.h>

#include <atomic>

#include "core/stop_watch.h"

namespace golf {
namespace {

// Pairs a console event that ends a process with the number of the corresponding signal.
struct StopEvent {
  DWORD event;
  int signal;
};

constexpr StopEvent kStopEvents[] = {{CTRL_C_EVENT, 2},
                                     {CTRL_BREAK_EVENT, 15},
                                     {CTRL_CLOSE_EVENT, 1},
                                     {CTRL_LOGOFF_EVENT, 15},
                                     {CTRL_SHUTDOWN_EVENT, 15}};
std::atomic<int> last_stop = 0;  // the system calls NoteStop in a separate thread
std::atomic<bool> stops_watched = false;

// Records a stop event. The system ends the process when this function returns from a close, logoff
// or shutdown event, so it waits until the run has ended.
BOOL WINAPI NoteStop(DWORD event) {
  constexpr DWORD kPause = 10;  // milliseconds
  for (const StopEvent& stop : kStopEvents) {
    if (stop.event == event) last_stop = stop.signal;
  }
  const bool ends_anyway = event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT;
  while (ends_anyway && stops_watched) Sleep(kPause);
  return TRUE;
}

class WindowsStopWatch : public StopWatch {
 public:
  WindowsStopWatch() {
    last_stop = 0;
    stops_watched = true;
    SetConsoleCtrlHandler(NoteStop, TRUE);
  }
  WindowsStopWatch(const WindowsStopWatch&) = delete;
  WindowsStopWatch& operator=(const WindowsStopWatch&) = delete;
  // NoteStop must return first, since the system does not let a handler be removed while one runs.
  ~WindowsStopWatch() override {
    stops_watched = false;
    SetConsoleCtrlHandler(NoteStop, FALSE);
  }
  int Signal() const override { return last_stop; }
};

}  // namespace

std::unique_ptr<StopWatch> MakeStopWatch() { return std::make_unique<WindowsStopWatch>(); }

}  // namespace golf
