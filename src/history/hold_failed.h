#pragma once

#include <stdexcept>

#include "core/numbered_error.h"

namespace golf {

// The changes of a run cannot be held: there is no room for them, or the bytes that a change
// replaces cannot be read. The run ends and nothing has changed. No run carries on over it, since
// the changes that belong to the lost one would be made without it. So it is no NumberedError.
class HoldFailed : public std::runtime_error {
 public:
  explicit HoldFailed(const NumberedError& cause)
      : std::runtime_error(cause.description()), cause_(cause) {}

  const NumberedError& cause() const { return cause_; }

 private:
  NumberedError cause_;
};

// Runs a statement on which holding depends.
template <class Statement>
auto OrHoldFailed(Statement&& statement) {
  try {
    return statement();
  } catch (const NumberedError& error) {
    throw HoldFailed(error);
  }
}

}  // namespace golf
