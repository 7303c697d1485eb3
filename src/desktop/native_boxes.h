#pragma once

#include <wx/window.h>

#include <string>
#include <string_view>

#include "forms/dialogs.h"

namespace golf {

// The system's own dialogs. `parent` may be null.

// Closing a box without a button answers Cancel, or the last button if there is no Cancel.
BoxButton ShowMessageDialog(wxWindow* parent, const Box& box);
std::string ShowInputDialog(wxWindow* parent, const InputBox& box);
// Cancel returns the current font.
Font ShowFontDialog(wxWindow* parent, std::string_view title, const Font& current);

}  // namespace golf
