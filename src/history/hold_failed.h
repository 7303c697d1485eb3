#pragma once

#include <stdexcept>

#include "core/numbered_error.h"

namespace golf {

// Reports that a change cannot be held, because there is no space for it or because the bytes that
// it replaces cannot be read. It ends the run, and no file has changed. It is not a NumberedError,
// since a run continues after some numbered errors and would then commit its other changes without
// this one.
class HoldFailed : public std::runtime_error {
 public:
  explicit HoldFailed(const NumberedError& cause)
      : std::runtime_error(cause.description()), cause_(cause) {}

  const NumberedError& cause() const { return cause_; }

 private:
  NumberedError cause_;
};

// Runs a statement. Raises HoldFailed if the statement raises a numbered error.
template <class Statement>
auto OrHoldFailed(Statement&& statement) {
  try {
    return statement();
  } catch (const NumberedError& error) {
    throw HoldFailed(error);
  }
}

}  // namespace golf
