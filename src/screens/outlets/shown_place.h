#pragma once

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "outlets/checkup/finding.h"

namespace golf {

// Shows the course or the roster that a finding concerns, or a box with its place if it concerns
// neither. The operator can only look at it. Returns when he has closed it. The caller must refuse
// changes meanwhile. Closes all files and makes the shared objects again. Raises the errors of the
// files.
void ShowPlaceOf(SharedState& state, ScreenHost& host, const Finding& finding);

}  // namespace golf
