#pragma once

#include "core/shared_state.h"

namespace golf {

// Writes the data of a made-up club into the install folder of `state`, which must be empty.
void MakeDemoInstall(SharedState& state);

}  // namespace golf
