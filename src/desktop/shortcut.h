#pragma once

#include <wx/string.h>

namespace golf {

// Describes a link that starts the program with an install.
struct Shortcut {
  wxString name;     // shown below its icon
  wxString program;  // the path of the program
  wxString install;  // the folder of the install
};

// Writes a link into a folder, in the form of the system. Replaces a link of the same name. Returns
// false if it cannot be written.
bool WriteShortcut(const wxString& folder, const Shortcut& shortcut);

}  // namespace golf
