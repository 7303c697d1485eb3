#pragma once

#include <exception>

namespace golf {

// Reports that the operator or the system has requested the process to end during a run. It ends
// the run, and no file has changed. It is not a NumberedError, since a run continues after some
// numbered errors.
class Stopped : public std::exception {
 public:
  explicit Stopped(int signal) : signal_(signal) {}

  // Returns the system's number of the signal, or 0 for another kind of request.
  int signal() const { return signal_; }
  const char* what() const noexcept override { return "The run was stopped. Nothing has changed."; }

 private:
  int signal_;
};

}  // namespace golf
