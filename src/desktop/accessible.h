#pragma once

#include <wx/dataview.h>
#include <wx/window.h>

#include <functional>
#include <utility>

#include "desktop/binding.h"
#include "forms/control.h"

namespace golf {

// These functions describe widgets to screen readers. On GTK they use ATK, and on Windows MSAA.

// Sets the name that a screen reader says for a widget.
void SetAccessibleName(wxWindow& widget, const wxString& name);

// Sets the text that a screen reader says after the name and the value.
void SetAccessibleDescription(wxWindow& widget, const wxString& description);

// Makes a panel a group. A screen reader says the heading when the focus enters the group.
void MakeAccessibleGroup(wxWindow& panel, const wxString& heading);

// Sets the name of a cell that shows no text, such as a tick. `row` and `column` count from 0. The
// name is lost when the number of rows or a column changes. On Windows this does nothing, since a
// row's name contains all its cells there.
void SetAccessibleCellName(wxDataViewCtrl& list, int row, int column, const wxString& name);

// Makes a screen reader say a text that has just appeared in a widget.
void Announce(wxWindow& widget, const wxString& text);

// Sets the name of a widget, and sets it again whenever `name` returns a different one after a
// change of a control. Returns the widget.
template <class Widget>
Widget* NameBy(Binding& binding, Widget* widget, std::function<wxString()> name) {
  binding.ShowAlso([widget, name = std::move(name), last = wxString()]() mutable {
    const wxString now = name();
    if (std::exchange(last, now) != now) SetAccessibleName(*widget, now);
  });
  return widget;
}

// Returns the caption of a label without its access key, without blanks around it, and
// without dots and colons at its end.
wxString NameOf(const Label& label);

// Names a widget after its label. Returns the widget.
template <class Widget>
Widget* NameAfter(Binding& binding, const Label& label, Widget* widget) {
  return NameBy(binding, widget, [&label] { return NameOf(label); });
}

// Names a widget whose name never changes. Returns the widget.
template <class Widget>
Widget* Named(const wxString& name, Widget* widget) {
  SetAccessibleName(*widget, name);
  return widget;
}

}  // namespace golf
