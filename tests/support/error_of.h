#pragma once

#include <utility>

#include "core/numbered_error.h"

namespace golf {

// The number of the error that `action` ends with; 0 if it ends with none.
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
