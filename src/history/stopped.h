#pragma once

#include <exception>

namespace golf {

// The operator or the system has asked the program to end during a run. It ends the run: nothing
// has changed. It is no NumberedError, so no run carries on over it.
class Stopped : public std::exception {
 public:
  explicit Stopped(int signal) : signal_(signal) {}

  // The system's number of the signal; 0 for a request of another kind.
  int signal() const { return signal_; }
  const char* what() const noexcept override { return "The run was stopped. Nothing has changed."; }

 private:
  int signal_;
};

}  // namespace golf
