#pragma once

#include <span>

#include "core/shared_state.h"
#include "forms/screen.h"

namespace golf {

// The entries of a screen, kept in a small text file under the screen's name in StoreDataPath. The
// file has a value a line and no names: a value belongs to a control by its place alone, so the
// order of `controls` must never change. Kept are ticks, the index of a list, texts, and column 2
// of a grid from row 2 on. Other controls keep nothing.

// Replaces the file. Errors as ChangeGate::ReplaceText. Does nothing if remembers_settings is off.
void WriteSettings(SharedState& state, const Screen& screen, std::span<Control* const> controls);

// Puts the values back. A control keeps what it has if the file is missing, short or damaged or the
// control cannot take its value. No message is shown. Does nothing if remembers_settings is off.
void ReadSettings(SharedState& state, const Screen& screen, std::span<Control* const> controls);

}  // namespace golf
