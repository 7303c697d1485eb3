#pragma once

#include <wx/button.h>
#include <wx/sizer.h>

#include <initializer_list>

#include "desktop/screen_panel.h"

namespace golf {

// All views use these functions. Distances are in pixels of the window's display.

// These return the gap between controls that belong together, the gap between groups, and the gap
// to the window's edge.
int CloseGap(const wxWindow& window);
int GroupGap(const wxWindow& window);
int EdgeGap(const wxWindow& window);

// Arranges controls in a column. All are as wide as the column.
wxSizer* Column(std::initializer_list<wxWindow*> controls);

// Arranges the source and the destination of a transfer side by side, equally wide. The parameter
// is a list, since widgets must be created in the order of the tab key.
wxSizer* SideBySide(const wxWindow& window, std::initializer_list<wxSizer*> ends);

// Holds the buttons at the end of a dialog. Any of them may be null. ButtonRow arranges them in the
// platform's order.
struct EndButtons {
  wxButton* affirmative = nullptr;
  wxButton* variant = nullptr;  // beside the affirmative button, such as its preview
  wxButton* negative = nullptr;
  wxButton* cancel = nullptr;
  wxButton* aside = nullptr;  // at the other end of the row; does not close the dialog
};
wxSizer* ButtonRow(const EndButtons& buttons);

// Lays out a roster or league: its heading, its name, and the button that opens the list.
wxSizer* RosterColumn(Binding& binding, wxWindow* parent, Label& heading, TextBox& name,
                      Button& finder);

// Lays out a log beside the panel's list of what a run has left out.
wxSizer* BesideLeftOut(ScreenPanel& panel, wxWindow* parent, wxSizer* log);

// Holds the controls that show a run, and the buttons that start it, preview it and leave the
// screen.
struct RunControls {
  Label& heading;
  TextBox& log;  // gets buttons that copy and save it
  Label& working;
  Label* count;  // may be null
  Button& transfer;
  Button& preview;
  Button& leave;
};
// Adds these controls and the panel's gauge to the content.
void AddRun(wxSizer& content, ScreenPanel& panel, wxWindow* parent, const RunControls& run);

// Adds a widget that keeps its space while it is hidden.
void AddKeepingPlace(wxSizer& sizer, wxWindow& widget, int gap_above);

void MakeBold(wxWindow& widget);

// Adds the content to the panel and gives the window the size that the content needs, which is also
// its minimum size.
void FinishWindow(ScreenPanel& panel, wxSizer* content);
// Lays out the window after widgets have appeared or disappeared, and enlarges it if needed.
void LayOutAgain(ScreenPanel& panel);

}  // namespace golf
