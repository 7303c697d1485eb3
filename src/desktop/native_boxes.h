#pragma once

#include <wx/window.h>

#include <string>
#include <string_view>

#include "forms/dialogs.h"

namespace golf {

// These functions show dialogs of the operating system. `parent` may be null.

// Returns the line that names the golfer whom a question concerns, or an empty text if none is
// given.
wxString GolferLine(const std::string& golfer);

// In these two functions, `text` is the text of the box as it is shown.

// Returns the answer. If the operator closes the box without a button, that is Cancel, or the last
// button if the box has no Cancel.
BoxButton ShowMessageDialog(wxWindow* parent, const Box& box, const wxString& text);

// Contains the operator's answer to a question that a run has asked several times.
struct RepeatedAnswer {
  BoxButton button;  // meaningless if `stops` is true
  bool for_rest;     // true if the same boxes later in the run must get the same answer
  bool stops;        // true if the run must be stopped
};
// Shows a box that also offers to answer the rest of the run in the same way, and to stop the run.
RepeatedAnswer ShowRepeatedDialog(wxWindow* parent, const Box& box, const wxString& text);

std::string ShowInputDialog(wxWindow* parent, const InputBox& box);
// Returns the chosen path of a new file or folder, or an empty text if the operator cancels.
std::string ShowPathDialog(wxWindow* parent, const std::string& title, const std::string& current);
// Returns the chosen existing folder in UTF-8, or an empty text if the operator cancels.
std::string ShowFolderDialog(wxWindow* parent, const std::string& title,
                             const std::string& utf8_current);
// Returns the chosen font, or the current one if the operator cancels.
Font ShowFontDialog(wxWindow* parent, std::string_view title, const Font& current);

}  // namespace golf
