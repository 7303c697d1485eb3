#pragma once

#include <wx/window.h>

#include <functional>
#include <string>

namespace golf {

// Calls `open` with the path, in UTF-8, when the operator drops a folder or file on the window. Of
// several ones it takes the first.
void AcceptFolders(wxWindow& window, std::function<void(const std::string& utf8_path)> open);

}  // namespace golf
