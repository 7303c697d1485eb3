#pragma once

#include "core/date_value.h"
#include "core/regional_forms.h"
#include "core/shared_state.h"

namespace golf {

// Prepares the program before its first screen: makes the shared objects, detects how dates and
// times are written, and sets the data folders below the program's folder. Does not check that the
// folders exist.
void PrepareStart(SharedState& state, const RegionalForms& forms, DateValue now);

}  // namespace golf
