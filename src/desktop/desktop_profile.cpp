#include "desktop/desktop_profile.h"

#include <wx/fileconf.h>
#include <wx/filename.h>
#include <wx/log.h>
#include <wx/stdpaths.h>
#include <wx/utils.h>

#include "desktop/shortcut.h"

namespace golf {
namespace {

constexpr const char* kProgram = "golf-transfer";
constexpr const char* kFile = "program.ini";

wxStandardPaths& StandardPaths() {
  wxStandardPaths& paths = wxStandardPaths::Get();
  paths.SetFileLayout(wxStandardPaths::FileLayout_XDG);
  paths.UseAppInfo(wxStandardPaths::AppInfo_None);
  return paths;
}

// Returns the user's folder for data, without the program's name.
wxString DataFolderOfUser() {
#ifdef __WXGTK__
  wxString folder;
  if (wxGetEnv("XDG_DATA_HOME", &folder) && wxFileName(folder).IsAbsolute()) return folder;
  return wxFileName::GetHomeDir() + "/.local/share";
#else
  return StandardPaths().GetUserLocalDataDir();
#endif
}

}  // namespace

wxString UserSettingsPath(const wxString& file) {
  wxFileName path(StandardPaths().GetUserConfigDir(), file);
  path.AppendDir(kProgram);
  return path.GetFullPath();
}

std::string DesktopProfile::Setting(const std::string& name) const {
  const std::string kept = UserProfile::Setting(name);
  if (!kept.empty()) return kept;
  const wxLogNull quiet;
  const wxFileConfig settings("", "", UserSettingsPath(kFile), "", wxCONFIG_USE_LOCAL_FILE);
  return settings.Read(wxString::FromUTF8(name)).utf8_string();
}

void DesktopProfile::KeepSetting(const std::string& name, const std::string& text) {
  UserProfile::KeepSetting(name, text);
  const wxLogNull quiet;
  const wxString path = UserSettingsPath(kFile);
  wxFileName::Mkdir(wxPathOnly(path), wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
  wxFileConfig settings("", "", path, "", wxCONFIG_USE_LOCAL_FILE);
  settings.Write(wxString::FromUTF8(name), wxString::FromUTF8(text));
}

std::string DesktopProfile::SettingsFolder() const { return UserSettingsPath("").utf8_string(); }

std::string DesktopProfile::DataFolder() const {
  const wxLogNull quiet;
  wxFileName folder(DataFolderOfUser(), "");
  folder.AppendDir(kProgram);
  if (!folder.Mkdir(wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL)) return {};
  return folder.GetPathWithSep().utf8_string();
}

std::string DesktopProfile::ProgramFile() const {
  return StandardPaths().GetExecutablePath().utf8_string();
}

std::string DesktopProfile::MakeShortcut(const std::string& folder) {
  const wxLogNull quiet;
  const wxString desktop = StandardPaths().GetUserDir(wxStandardPaths::Dir_Desktop);
  wxFileName path(wxString::FromUTF8(folder), "");
  const wxString install = path.GetDirCount() > 0 ? path.GetDirs().Last() : path.GetVolume();
  const wxString name = "Golf Transfer (" + install + ")";
  const Shortcut shortcut{name, StandardPaths().GetExecutablePath(), path.GetPath()};
  if (!wxDirExists(desktop) || !WriteShortcut(desktop, shortcut)) return {};
  return name.utf8_string();
}

}  // namespace golf
