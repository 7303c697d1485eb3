#pragma once

#include <span>

#include "core/shared_state.h"
#include "forms/screen.h"

namespace golf {

// What the operator last entered on a screen, kept in a small text file under the screen's name in
// StoreDataPath: a value a line and no names, so that a value belongs to a control only by its
// place. The order of `controls` is therefore a fixed part of a screen. Ticks, the index of a list
// and texts are kept, and of a grid column 2 from row 2 on; other controls keep nothing.

// Replaces the file. Errors as ChangeGate::ReplaceText.
void WriteSettings(SharedState& state, const Screen& screen, std::span<Control* const> controls);

// Puts the values back. A file that is missing, short or damaged, and a value that a control
// cannot take, leave controls as they are; nobody is told.
void ReadSettings(SharedState& state, const Screen& screen, std::span<Control* const> controls);

}  // namespace golf
