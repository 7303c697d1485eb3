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

// These functions add a label, and a list or a multi-line text below it. A gap separates the label
// from the control above. The list or text becomes smaller on a small display.
void AddLabelledList(wxSizer& content, ScreenPanel& panel, Label& label, Grid& grid,
                     SelectedRows selected, const Room& room);
void AddLabelledText(wxSizer& content, ScreenPanel& panel, Label& label, TextBox& text,
                     const Room& room);

}  // namespace golf
