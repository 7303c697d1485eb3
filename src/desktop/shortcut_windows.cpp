#include <shlobj.h>
#include <wx/filename.h>
#include <wx/msw/ole/oleutils.h>
#include <wx/msw/wrapwin.h>

#include "desktop/shortcut.h"

namespace golf {
namespace {

// Holds a pointer to a COM object.
template <class Interface>
class ComPointer {
 public:
  ComPointer() = default;
  ComPointer(const ComPointer&) = delete;
  ComPointer& operator=(const ComPointer&) = delete;
  ~ComPointer() {
    if (object_ != nullptr) object_->Release();
  }
  void** Address() { return reinterpret_cast<void**>(&object_); }
  Interface* operator->() const { return object_; }

 private:
  Interface* object_ = nullptr;
};

}  // namespace

bool WriteShortcut(const wxString& folder, const Shortcut& shortcut) {
  ComPointer<IShellLinkW> link;
  ComPointer<IPersistFile> file;
  const wxString path = wxFileName(folder, shortcut.name, "lnk").GetFullPath();
  // A backslash before the quote would belong to it.
  const wxString install = shortcut.install + (shortcut.install.EndsWith("\\") ? "." : "");
  const wxString arguments = "--install \"" + install + "\"";
  return SUCCEEDED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                                    link.Address())) &&
         SUCCEEDED(link->SetPath(shortcut.program.wc_str())) &&
         SUCCEEDED(link->SetArguments(arguments.wc_str())) &&
         SUCCEEDED(link->SetWorkingDirectory(shortcut.install.wc_str())) &&
         SUCCEEDED(link->QueryInterface(IID_IPersistFile, file.Address())) &&
         SUCCEEDED(file->Save(path.wc_str(), TRUE));
}

}  // namespace golf
