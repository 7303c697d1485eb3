#include "desktop/accessible.h"

#include <wx/control.h>

#include "desktop/wx_text.h"

namespace golf {

wxString NameOf(const Label& label) {
  const wxString name = wxControl::RemoveMnemonics(WxText(label.caption())).Trim(false);
  const std::size_t last = name.find_last_not_of(" .:");
  return last == wxString::npos ? wxString() : name.Mid(0, last + 1);
}

}  // namespace golf
