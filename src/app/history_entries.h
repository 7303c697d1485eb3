#pragma once

#include "app/menu_entry.h"

namespace golf {

// Returns a function that returns the entries of the menu "History": the undo of the last transfer,
// with a line about it, and the list of all transfers. The function keeps the line, since making it
// reads all changes of the transfer. It raises no numbered error.
MenuEntries HistoryEntries();

}  // namespace golf
