#pragma once

#include "core/date_value.h"
#include "core/regional_forms.h"
#include "core/shared_state.h"

namespace golf {

// What the program does before its first screen: makes the shared objects, finds out how dates and
// times are written, and sets the folders from the program's own. No folder is tested here.
void PrepareStart(SharedState& state, const RegionalForms& forms, DateValue now);

}  // namespace golf
