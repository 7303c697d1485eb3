#pragma once

#include <wx/toplevel.h>

#include <string>

namespace golf {

// These keep the sizes of windows in the user's settings folder. `name` is the name of the screen.

// Gives the window the size that it had last time, within its minimum size and `most`, the largest
// client size.
void RestoreSize(wxTopLevelWindow& window, const std::string& name, const wxSize& most);
// Stores the client size of the window unless it is `noted`, the size to which the program has set
// it.
void KeepSize(const wxTopLevelWindow& window, const std::string& name, const wxSize& noted);

}  // namespace golf
