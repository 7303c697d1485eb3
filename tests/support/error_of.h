#pragma once

#include <utility>

#include "core/numbered_error.h"

namespace golf {

// Returns the number of the error that `action` raises, or 0 if it raises none.
template <class Action>
int ErrorOf(Action&& action) {
  try {
    std::forward<Action>(action)();
  } catch (const NumberedError& error) {
    return error.number();
  }
  return 0;
}

}  // namespace golf
