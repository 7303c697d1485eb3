#pragma once

#include <functional>
#include <utility>

#include "core/numbered_error.h"

namespace golf {

// Runs one statement and passes a NumberedError to the handler, so that the caller continues with
// its next statement. Any other exception is a fault of the program and is not caught. The handler
// may throw an error again that must end the run.
class ResumeNext {
 public:
  explicit ResumeNext(std::function<void(const NumberedError&)> handler)
      : handler_(std::move(handler)) {}

  // Returns false if the statement failed.
  template <class Statement>
  bool operator()(Statement&& statement) const {
    try {
      std::forward<Statement>(statement)();
      return true;
    } catch (const NumberedError& error) {
      if (handler_) handler_(error);
      return false;
    }
  }

 private:
  std::function<void(const NumberedError&)> handler_;
};

// Makes a ResumeNext that does not catch a ReadError, since the next statements would work on
// another record.
inline ResumeNext ResumeNextButReads(std::function<void(const NumberedError&)> handler) {
  return ResumeNext([handler = std::move(handler)](const NumberedError& error) {
    if (dynamic_cast<const ReadError*>(&error) != nullptr) throw;
    if (handler) handler(error);
  });
}

}  // namespace golf
