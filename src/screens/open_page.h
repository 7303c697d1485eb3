#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "forms/screen_host.h"

namespace golf {

// Opens a web page in the browser. `write` writes the page and returns its path in UTF-8. If that
// or the browser fails, shows a message, which contains the path of a page that was written.
void OpenPage(ScreenHost& host, const std::function<std::string()>& write);

// Returns the message that a page was written but could not be opened. `problem` is a sentence.
Box UnopenedPage(const std::string& problem, const std::string& utf8_path);

// Opens the help in the browser at the heading with this id. The name of a screen is the id of its
// heading.
void ShowHelp(ScreenHost& host, std::string_view heading);

}  // namespace golf
