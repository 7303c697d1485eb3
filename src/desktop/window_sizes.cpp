#include "desktop/window_sizes.h"

#include <wx/fileconf.h>
#include <wx/filename.h>
#include <wx/log.h>

#include "desktop/desktop_profile.h"
#include "desktop/wx_text.h"

namespace golf {
namespace {

constexpr const char* kFile = "windows.ini";

}  // namespace

void RestoreSize(wxTopLevelWindow& window, const std::string& name, const wxSize& most) {
  const wxLogNull quiet;  // a window without a stored size has its usual size
  const wxFileConfig settings("", "", UserSettingsPath(kFile), "", wxCONFIG_USE_LOCAL_FILE);
  const wxString section = WxText(name);
  wxSize size;
  if (!settings.Read(section + "/Width", &size.x) || !settings.Read(section + "/Height", &size.y)) {
    return;
  }
  size.IncTo(window.GetMinClientSize());
  size.DecTo(most);
  window.SetClientSize(size);
}

void KeepSize(const wxTopLevelWindow& window, const std::string& name, const wxSize& noted) {
  const wxSize size = window.GetClientSize();
  if (size == noted || window.IsMaximized()) return;
  const wxLogNull quiet;  // a size that cannot be stored is no reason to disturb the operator
  const wxString path = UserSettingsPath(kFile);
  wxFileName::Mkdir(wxPathOnly(path), wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
  wxFileConfig settings("", "", path, "", wxCONFIG_USE_LOCAL_FILE);
  const wxString section = WxText(name);
  settings.Write(section + "/Width", size.x);
  settings.Write(section + "/Height", size.y);
}

}  // namespace golf
