#pragma once

#include <functional>
#include <utility>

#include "core/numbered_error.h"

namespace golf {

// Runs one statement and passes a NumberedError to the handler, so that the caller continues with
// its next statement. Does not catch any other exception, which is a fault of the program. The
// handler may rethrow an error that must end the run.
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

// Returns a ResumeNext that does not catch a ReadError, since the next statements would use another
// record's data.
inline ResumeNext ResumeNextButReads(std::function<void(const NumberedError&)> handler) {
  return ResumeNext([handler = std::move(handler)](const NumberedError& error) {
    if (dynamic_cast<const ReadError*>(&error) != nullptr) throw;
    if (handler) handler(error);
  });
}

}  // namespace golf
