#pragma once

#include <functional>
#include <utility>

#include "core/numbered_error.h"

namespace golf {

// Runs statements of which each may fail: a numbered error is told to the handler and the next
// statement follows. Anything else is a fault of the program and is not carried over. A handler may
// throw the error again, for those that are not to be carried over.
class ResumeNext {
 public:
  explicit ResumeNext(std::function<void(const NumberedError&)> handler)
      : handler_(std::move(handler)) {}

  // False where the statement failed.
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

// The same, but a record that cannot be read is not carried over: what follows would work on
// another record.
inline ResumeNext ResumeNextButReads(std::function<void(const NumberedError&)> handler) {
  return ResumeNext([handler = std::move(handler)](const NumberedError& error) {
    if (dynamic_cast<const ReadError*>(&error) != nullptr) throw;
    if (handler) handler(error);
  });
}

}  // namespace golf
