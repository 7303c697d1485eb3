// Writes a desktop entry as freedesktop.org describes it.

#include <wx/file.h>
#include <wx/filename.h>

#include "desktop/shortcut.h"

namespace golf {
namespace {

// Returns an argument of the key Exec, in quotes. Backslashes are escaped twice, once by the rules
// for arguments and once by the rules for texts. A percent sign would begin a field code.
wxString Quoted(const wxString& argument) {
  wxString quoted = "\"";
  for (const wxUniChar c : argument) {
    if (c == '%') quoted += '%';
    if (c == '\\') quoted += "\\\\\\";
    if (c == '"' || c == '`' || c == '$') quoted += "\\\\";
    quoted += c;
  }
  return quoted + "\"";
}

}  // namespace

bool WriteShortcut(const wxString& folder, const Shortcut& shortcut) {
  const wxString path = wxFileName(folder, shortcut.name, "desktop").GetFullPath();
  wxFile file;
  if (!file.Create(path, true)) return false;
  const bool written = file.Write("[Desktop Entry]\nType=Application\nName=" + shortcut.name +
                                  "\nExec=" + Quoted(shortcut.program) + " --install " +
                                  Quoted(shortcut.install) + "\nTerminal=false\n");
  return file.Close() && written && wxFileName(path).SetPermissions(wxS_DEFAULT | wxS_IXUSR);
}

}  // namespace golf
