#pragma once

#include <wx/colour.h>

namespace golf {

// Returns the contrast of two colours, from 1 for equal colours to 21 for black and white. A text
// is easy to read from 4.5 on.
double Contrast(const wxColour& a, const wxColour& b);

// Returns the colour of the window's text, or black or white if that is hard to read on the
// background.
wxColour TextColour(const wxColour& background);
// Returns the system's background of a selection, made darker or lighter if its text is hard
// to read on it.
wxColour SelectionColour();
// Returns a red for a text on this background.
wxColour WarningColour(const wxColour& background);

}  // namespace golf
