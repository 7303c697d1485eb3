#pragma once

#include <wx/button.h>
#include <wx/sizer.h>

#include <initializer_list>
#include <vector>

#include "desktop/screen_panel.h"
#include "screens/outlets/cancellable_run.h"

namespace golf {

// All views use these functions. Distances are in pixels of the window's display.

// These return the gap between controls that belong together, the gap between groups, and the gap
// to the window's edge.
int CloseGap(const wxWindow& window);
int GroupGap(const wxWindow& window);
int EdgeGap(const wxWindow& window);

// These return the size of this number of characters or lines in the font of the window.
int TextWidth(const wxWindow& window, int characters);
int TextHeight(const wxWindow& window, int lines);
// Makes an entry or a list so wide that it shows this number of digits.
void SetColumns(wxControl& widget, int characters);

// Returns the least width of a label that shows a path.
int PathWidth(const wxWindow& window);

// Returns the width of a line of text. The line has this number of characters, or fewer on a narrow
// display.
int LineWidth(const ScreenPanel& panel, int characters);

// Gives a list, a table or a log this size in characters and lines when its window opens. The
// preferred width of a table is the width of its columns if `characters` is 0. The widget becomes
// smaller on a small display, but it never has less than 4 lines.
void SetRoom(ScreenPanel& panel, wxWindow& widget, int characters, int lines);
// Does the same for a widget whose minimum size is already the preferred one.
void SetRoom(ScreenPanel& panel, wxWindow& widget);

// Arranges controls in a column. All are as wide as the column.
wxSizer* Column(std::initializer_list<wxWindow*> controls);

// Arranges the source and the destination of a transfer side by side, equally wide. The parameter
// is a list, since widgets must be created in the order of the tab key.
wxSizer* SideBySide(const wxWindow& window, std::initializer_list<wxSizer*> ends);

// Holds the buttons at the end of a dialog. At least one of them is not null. ButtonRow arranges
// them in the platform's order, which is also the order of the tab key.
struct EndButtons {
  wxButton* affirmative = nullptr;
  wxButton* variant = nullptr;  // beside the affirmative button, such as its preview
  wxButton* negative = nullptr;
  wxButton* cancel = nullptr;
  std::vector<wxButton*> aside = {};  // at the other end of the row; do not close the dialog
};
wxBoxSizer* ButtonRow(const EndButtons& buttons);

// Lays out a roster or league: its heading, its name, and the button that opens the list.
wxSizer* RosterColumn(Binding& binding, wxWindow* parent, Label& heading, TextBox& name,
                      Button& finder);

// Adds a log beside the panel's list of what a run has left out. Below them are the buttons that
// copy and save the log, and the progress of the run. `count` may be null.
void AddLog(wxSizer& content, ScreenPanel& panel, wxStaticText& heading, wxTextCtrl& log,
            Label& working, Label* count);

// Holds the controls that show a run, and the buttons that start it, preview it and leave the
// screen.
struct RunControls {
  Label& heading;
  TextBox& log;
  Label& working;
  Label* count;  // may be null
  Button& transfer;
  Button& preview;
  Button& leave;
};
// Adds these controls and the panel's gauge to the content, and the buttons to the foot.
void AddRun(wxSizer& content, ScreenPanel& panel, wxWindow* parent, const RunControls& run);

// Adds the button that starts a run, the progress of the run, and the button that cancels it.
void AddCancellableRun(wxSizer& content, ScreenPanel& panel, Button& start, CancellableRun& run);

// Creates a warning that wraps at this width, in pixels. A screen reader says each new text.
wxStaticText* MakeWarning(ScreenPanel& panel, Label& control, int width);

// Adds a widget that keeps its space while it is hidden.
void AddKeepingPlace(wxSizer& sizer, wxWindow& widget, int gap_above);

void MakeBold(wxWindow& widget);
// Creates a bold text above a list or a group.
wxStaticText* MakeHeading(wxWindow* parent, const wxString& text);
// Gives a log the monospaced font.
void MakeMonospaced(wxWindow& widget);
// Creates a log in the monospaced font.
wxTextCtrl* MakeLog(ScreenPanel& panel, wxWindow* parent, TextBox& control, int characters,
                    int lines);

// Adds a row of buttons to the foot of the panel. It becomes two rows on a narrow display.
void AddToFoot(ScreenPanel& panel, wxBoxSizer* buttons);
// Adds the content to the panel. The window gets the size that the content prefers. If the display
// is too small, these steps follow until the window fits: the flexible widgets become smaller, the
// gaps are halved, the rows that are too wide become columns, and the content scrolls. The operator
// cannot make the window smaller than its content, unless the display is smaller than that.
void FinishWindow(ScreenPanel& panel, wxSizer* content);
// Returns the largest client size with which the window fits on its display.
wxSize MostClientSize(const wxTopLevelWindow& window);
// Moves the window to the place, or as near to it as the display has space for the whole window.
void MoveOntoDisplay(wxTopLevelWindow& window, wxPoint place);
// Lays out the window after widgets have appeared or disappeared, and enlarges it if needed.
void LayOutAgain(ScreenPanel& panel);

}  // namespace golf
