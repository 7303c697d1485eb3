#pragma once

#include "core/shared_state.h"

namespace golf {

// Fills the empty install folder of `state` with the data of a made-up club.
void MakeDemoInstall(SharedState& state);

}  // namespace golf
