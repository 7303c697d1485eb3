#pragma once

#include <functional>
#include <utility>

#include "core/numbered_error.h"

namespace golf {

// Runs statements of which each may fail: a numbered error is told to the handler and the next
// statement follows. Anything else is a fault of the program and is not carried over.
class ResumeNext {
 public:
  explicit ResumeNext(std::function<void(const NumberedError&)> handler)
      : handler_(std::move(handler)) {}

  template <class Statement>
  void operator()(Statement&& statement) const {
    try {
      std::forward<Statement>(statement)();
    } catch (const NumberedError& error) {
      if (handler_) handler_(error);
    }
  }

 private:
  std::function<void(const NumberedError&)> handler_;
};

}  // namespace golf
