#pragma once

#include <wx/window.h>

#include <string>
#include <string_view>

#include "forms/dialogs.h"

namespace golf {

// These functions show dialogs of the operating system. `parent` may be null.

// Returns the answer. If the operator closes the box without a button, that is Cancel, or the last
// button if the box has no Cancel.
BoxButton ShowMessageDialog(wxWindow* parent, const Box& box);
std::string ShowInputDialog(wxWindow* parent, const InputBox& box);
// Returns the chosen font, or the current one if the operator cancels.
Font ShowFontDialog(wxWindow* parent, std::string_view title, const Font& current);

}  // namespace golf
