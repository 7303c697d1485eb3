#pragma once

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/combobox.h>
#include <wx/listbox.h>
#include <wx/notebook.h>
#include <wx/panel.h>
#include <wx/radiobut.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <vector>

#include "desktop/binding.h"

namespace golf {

// One widget for each kind of control, made and tied. The order of the calls is the tab order.

// What of a text is meant to be read, where a key stands behind it out of sight.
using Shown = std::string (*)(const std::string& text);

// A caption that is data: "&" is a character like any other. A text too long for its place ends in
// dots.
wxStaticText* MakeLabel(Binding& binding, wxWindow* parent, Label& control, Shown shown = nullptr);
// Broken into lines of this width, in pixels.
wxStaticText* MakeWrappedLabel(Binding& binding, wxWindow* parent, Label& control, int width);
wxButton* MakeButton(Binding& binding, wxWindow* parent, Button& control);
wxCheckBox* MakeCheckBox(Binding& binding, wxWindow* parent, CheckBox& control);
// The first one of a group has the style wxRB_GROUP.
wxRadioButton* MakeOption(Binding& binding, wxWindow* parent, OptionButton& control,
                          long style = 0);
wxListBox* MakeListBox(Binding& binding, wxWindow* parent, ListBox& control, Shown shown = nullptr);
wxChoice* MakeChoice(Binding& binding, wxWindow* parent, ComboBox& control, Shown shown = nullptr);
wxTextCtrl* MakeTextBox(Binding& binding, wxWindow* parent, TextBox& control, long style = 0);
wxComboBox* MakeTextCombo(Binding& binding, wxWindow* parent, TextCombo& control);
// The first line of the first note that there is among these controls, broken into so many lines of
// this width, in pixels; their place is kept. The controls themselves are marked as well.
wxStaticText* MakeNote(Binding& binding, wxWindow* parent, std::vector<const Control*> controls,
                       int width, int lines);
// Holds the widgets of the controls that the frame holds.
wxPanel* MakeFrame(Binding& binding, wxWindow* parent, Frame& control);
// With an empty panel for each page.
wxNotebook* MakeTab(Binding& binding, wxWindow* parent, Tab& control);

}  // namespace golf
