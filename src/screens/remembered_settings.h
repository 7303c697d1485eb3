#pragma once

#include <span>

#include "core/shared_state.h"
#include "forms/screen.h"

namespace golf {

// These functions save and restore the entries of a screen in a text file. The file is in
// StoreDataPath and has the screen's name and the extension .DAT. It has one value a line and no
// names: the position of a value says to which control it belongs, so the order of `controls` must
// never change. The values are those of check boxes and option buttons, the index of a list, texts,
// and column 2 of a grid from row 2 on. Other controls have no values.

// Writes the values of the controls, which replace the file. Raises the errors of
// ChangeGate::ReplaceText. Does nothing if remembers_settings is off.
void WriteSettings(SharedState& state, const Screen& screen, std::span<Control* const> controls);

// Restores the values of the controls. A control stays unchanged if its value is missing or damaged
// or if it cannot accept the value. Shows no message. Does nothing if remembers_settings is off.
void ReadSettings(SharedState& state, const Screen& screen, std::span<Control* const> controls);

}  // namespace golf
