#pragma once

#include <wx/button.h>
#include <wx/sizer.h>

#include <initializer_list>

#include "desktop/screen_panel.h"

namespace golf {

// Distances and arrangements that all views share. Distances are in pixels of the window's screen.

// Return the gap between controls that belong together, the gap between groups, and the gap to the
// window's edge.
int CloseGap(const wxWindow& window);
int GroupGap(const wxWindow& window);
int EdgeGap(const wxWindow& window);

// Stacks controls, all as wide as the column.
wxSizer* Column(std::initializer_list<wxWindow*> controls);

// Puts the two ends of a transfer side by side, equally wide. They are a list, since widgets must
// be made in the order of the tab key.
wxSizer* SideBySide(const wxWindow& window, std::initializer_list<wxSizer*> ends);

// The buttons at the end of a dialog. ButtonRow puts them in the platform's order. Any may be null.
struct EndButtons {
  wxButton* affirmative = nullptr;
  wxButton* negative = nullptr;
  wxButton* cancel = nullptr;
  wxButton* aside = nullptr;  // does not close the dialog; at the other end of the row
};
wxSizer* ButtonRow(const EndButtons& buttons);

// Lays out a roster or league: its heading, its name, and the button that finds it.
wxSizer* RosterColumn(Binding& binding, wxWindow* parent, Label& heading, TextBox& name,
                      Button& finder);

// What a run shows, and the buttons that start it and leave the screen.
struct RunControls {
  Label& heading;
  TextBox& log;  // in columns, with buttons to copy and save it
  Label& working;
  Label* count;  // may be null
  Button& transfer;
  Button& leave;
};
// Adds these controls and the panel's gauge below the run's choices.
void AddRun(wxSizer& content, ScreenPanel& panel, wxWindow* parent, const RunControls& run);

// Adds a widget that keeps its space while it is hidden.
void AddKeepingPlace(wxSizer& sizer, wxWindow& widget, int gap_above);

void MakeBold(wxWindow& widget);

// Puts the content into the panel and sets the window to the size that it needs, which is also its
// smallest size.
void FinishWindow(ScreenPanel& panel, wxSizer* content);
// Lays out the window after widgets have appeared or disappeared, and enlarges it if needed.
void LayOutAgain(ScreenPanel& panel);

}  // namespace golf
