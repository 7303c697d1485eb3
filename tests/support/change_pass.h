#pragma once

#include <bit>

#include "core/platform.h"

namespace golf {

// The pass of a test, which changes files without a gate.
inline ChangePass TestPass() { return std::bit_cast<ChangePass>(char{}); }

}  // namespace golf
