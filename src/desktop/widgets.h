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

#include <functional>
#include <string>

#include "desktop/binding.h"

namespace golf {

// Each of these functions creates a widget and connects it to its control. The order of the calls
// is the tab order.

// Is a function that returns the part of a text that is shown, without the key at its end.
using Shown = std::string (*)(const std::string& text);

// Creates a text that no control has. It is not the label of another widget.
wxStaticText* MakeText(wxWindow* parent, const wxString& text);
// Shows "&" as a plain character, since the caption is data. A text that is too long is cut and
// ends in dots.
wxStaticText* MakeLabel(Binding& binding, wxWindow* parent, Label& control, Shown shown = nullptr);
// Creates a label that shows a path. It needs only this width, in pixels. If the path is wider than
// the label, its beginning is cut, and a tooltip shows the whole path.
wxStaticText* MakePathLabel(Binding& binding, wxWindow* parent, Label& control, int width);
// Creates a label whose caption has an access key. The key moves the focus to the widget that is
// created next.
wxStaticText* MakeFieldLabel(Binding& binding, wxWindow* parent, Label& control);
// Wraps the text at this width, in pixels.
wxStaticText* MakeWrappedLabel(Binding& binding, wxWindow* parent, Label& control, int width);
wxButton* MakeButton(Binding& binding, wxWindow* parent, Button& control);
wxCheckBox* MakeCheckBox(Binding& binding, wxWindow* parent, CheckBox& control);
// The first option of a group needs the style wxRB_GROUP.
wxRadioButton* MakeOption(Binding& binding, wxWindow* parent, OptionButton& control,
                          long style = 0);
wxListBox* MakeListBox(Binding& binding, wxWindow* parent, ListBox& control, Shown shown = nullptr);
wxChoice* MakeChoice(Binding& binding, wxWindow* parent, ComboBox& control, Shown shown = nullptr);
// Does the same for a list that may have thousands of items. Such a long list is always open, since
// GTK needs many seconds to create its drop-down.
wxControl* MakeLongChoice(Binding& binding, wxWindow* parent, ComboBox& control,
                          Shown shown = nullptr);
wxTextCtrl* MakeTextBox(Binding& binding, wxWindow* parent, TextBox& control, long style = 0);
wxComboBox* MakeTextCombo(Binding& binding, wxWindow* parent, TextCombo& control);
// Creates a warning that shows what `note` returns. It is updated after each change of a control.
// It wraps the text at `width` pixels and reserves space for this number of lines. With 0 lines it
// is hidden while the text is empty.
wxStaticText* MakeNote(Binding& binding, wxWindow* parent, const wxString& name,
                       std::function<std::string()> note, int width, int lines = 0);
// Creates a frame, which contains the widgets of its controls.
wxPanel* MakeFrame(Binding& binding, wxWindow* parent, Frame& control);
// Creates a tab control with an empty panel for each page.
wxNotebook* MakeTab(Binding& binding, wxWindow* parent, Tab& control);

}  // namespace golf
