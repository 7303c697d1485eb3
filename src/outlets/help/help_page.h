#pragma once

#include <string>
#include <string_view>

namespace golf {

// These are the parts of the help that are built into the program. docs/help and packaging contain
// their sources. All texts are UTF-8.

// Returns the number of this version, such as "1.0.0".
std::string_view ProgramVersion();

// Returns the copyright line of the programs.
std::string_view ProgramCopyright();

// Returns the names, versions, licences and copyright lines of the libraries that are linked into
// the programs.
std::string LibrariesText();

// Returns the help as one web page, which loads nothing. A browser shows it from its start.
std::string HelpPage();

// Returns the same page, which a browser shows from the heading with this id, such as "KVtoQB". The
// page begins with a link to the heading, for a browser that runs no scripts. Returns HelpPage() if
// there is no such heading.
std::string HelpPageFrom(std::string_view heading);

// Writes HelpPageFrom(heading) to the user's folder for temporary files and returns the path. Each
// heading has its own file, which is replaced. If the file cannot be replaced, for example because
// it belongs to another user, the page is written to a new file. Raises the errors of
// WriteTemporaryPage.
std::string WriteHelpPage(std::string_view heading);

}  // namespace golf
