#pragma once

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/notebook.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "desktop/binding.h"

namespace golf {

// One widget for each kind of control, made and tied. The order of the calls is the tab order.

// A caption that is data: "&" is a character like any other. A text too long for its place ends in
// dots.
wxStaticText* MakeLabel(Binding& binding, wxWindow* parent, Label& control);
// Broken into lines of this width, in pixels.
wxStaticText* MakeWrappedLabel(Binding& binding, wxWindow* parent, Label& control, int width);
wxButton* MakeButton(Binding& binding, wxWindow* parent, Button& control);
wxCheckBox* MakeCheckBox(Binding& binding, wxWindow* parent, CheckBox& control);
wxTextCtrl* MakeTextBox(Binding& binding, wxWindow* parent, TextBox& control, long style = 0);
// With an empty panel for each page.
wxNotebook* MakeTab(Binding& binding, wxWindow* parent, Tab& control);

}  // namespace golf
