#pragma once

#include <functional>

#include "core/shared_state.h"
#include "forms/screen_host.h"

namespace golf {

// Runs a transfer of a screen: alone in its install (error 70 if another process runs one, with
// nothing changed) and with the operator's input held off. After an error that the run does not
// take itself all files are closed, the shared objects are new, the screen has opened again what
// its load opens, and the error goes on.
void RunTransfer(Screen& screen, SharedState& state, ScreenHost& host,
                 const std::function<void()>& run);

}  // namespace golf
