#pragma once

#include <wx/button.h>
#include <wx/sizer.h>

#include <initializer_list>

#include "desktop/screen_panel.h"

namespace golf {

// Distances and arrangements that all views share, so that they look alike. Distances are pixels of
// the window's own screen.

// Between controls that belong together, between groups, and from the window's edge.
int CloseGap(const wxWindow& window);
int GroupGap(const wxWindow& window);
int EdgeGap(const wxWindow& window);

// Controls below each other, all as wide as the column.
wxSizer* Column(std::initializer_list<wxWindow*> controls);

// The two ends of a transfer, equally wide. A list, since the order in which widgets are made is
// the order of the tab key.
wxSizer* SideBySide(const wxWindow& window, std::initializer_list<wxSizer*> ends);

// The buttons that end a dialog, in the order of the platform. Any of them may be null.
struct EndButtons {
  wxButton* affirmative = nullptr;
  wxButton* negative = nullptr;
  wxButton* cancel = nullptr;
  wxButton* aside = nullptr;  // ends nothing: at the other end of the row
};
wxSizer* ButtonRow(const EndButtons& buttons);

// A roster or league with its heading above and the button that finds it below.
wxSizer* RosterColumn(Binding& binding, wxWindow* parent, Label& heading, TextBox& name,
                      Button& finder);

// What a run shows, and the buttons that start it and leave the screen.
struct RunControls {
  Label& heading;
  TextBox& log;  // in columns, with buttons to copy and save it below
  Label& working;
  Label* count;  // may be null
  Button& transfer;
  Button& leave;
};
// Adds them below what a run is asked for, with the panel's gauge.
void AddRun(wxSizer& content, ScreenPanel& panel, wxWindow* parent, const RunControls& run);

// Adds a widget that keeps its place while it is hidden.
void AddKeepingPlace(wxSizer& sizer, wxWindow& widget, int gap_above);

void MakeBold(wxWindow& widget);

// Puts the content into the panel and gives the window the size that it needs, which is also its
// smallest one.
void FinishWindow(ScreenPanel& panel, wxSizer* content);
// After widgets have come or gone: the window grows where it must.
void LayOutAgain(ScreenPanel& panel);

}  // namespace golf
