#include <array>
#include <csignal>
#include <iterator>

#include "core/stop_watch.h"

namespace golf {
namespace {

constexpr int kStopSignals[] = {SIGINT, SIGTERM, SIGHUP};
volatile std::sig_atomic_t last_stop = 0;  // a signal handler may safely access only this type

class PosixStopWatch : public StopWatch {
 public:
  PosixStopWatch() {
    last_stop = 0;
    struct sigaction note {};
    note.sa_handler = [](int signal) { last_stop = signal; };
    sigemptyset(&note.sa_mask);
    note.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < before_.size(); ++i) {
      sigaction(kStopSignals[i], nullptr, &before_[i]);
      if (before_[i].sa_handler != SIG_IGN) sigaction(kStopSignals[i], &note, nullptr);
    }
  }
  PosixStopWatch(const PosixStopWatch&) = delete;
  PosixStopWatch& operator=(const PosixStopWatch&) = delete;
  ~PosixStopWatch() override {
    for (std::size_t i = 0; i < before_.size(); ++i) {
      sigaction(kStopSignals[i], &before_[i], nullptr);
    }
  }
  int Signal() const override { return last_stop; }

 private:
  std::array<struct sigaction, std::size(kStopSignals)> before_{};
};

}  // namespace

std::unique_ptr<StopWatch> MakeStopWatch() { return std::make_unique<PosixStopWatch>(); }

}  // namespace golf
