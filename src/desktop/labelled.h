#pragma once

#include "desktop/list_widget.h"
#include "desktop/screen_panel.h"

namespace golf {

// Gives the size of a list or a text when its window opens, in characters and lines, and its share
// of the height that is left over.
struct Room {
  int characters;
  int lines;
  int share;
};

// These add a list or a text of several lines below its label, with a gap to what is above. Both
// can become smaller on a small display.
void AddLabelledList(wxSizer& content, ScreenPanel& panel, Label& label, Grid& grid,
                     SelectedRows selected, const Room& room);
void AddLabelledText(wxSizer& content, ScreenPanel& panel, Label& label, TextBox& text,
                     const Room& room);

}  // namespace golf
