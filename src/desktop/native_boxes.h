#pragma once

#include <wx/window.h>

#include <string>
#include <string_view>

#include "forms/dialogs.h"

namespace golf {

// The system's own dialogs over a window, which may be null.

// A box that is closed without a button is answered as by Cancel, or by its last button.
BoxButton ShowMessageDialog(wxWindow* parent, const Box& box);
std::string ShowInputDialog(wxWindow* parent, const InputBox& box);
// Cancel keeps the font.
Font ShowFontDialog(wxWindow* parent, std::string_view title, const Font& current);

}  // namespace golf
